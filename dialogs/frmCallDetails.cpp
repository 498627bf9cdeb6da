// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/frmCallDetails.h"

#include "data/CallLog.h"
#include "dialogs/KeyColour.h"
#include "platform/forms/Text.h"
#include "resources/Icons.h"
#include "resources/LocalText.h"
#include "resources/StringTable.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>

#include <utility>

namespace dialogs {
namespace {

using forms::fromQString;
using forms::toQString;
using resources::LoadLocalString;

constexpr const char* kModule = "frmCallDetails";
constexpr const char* kLineEnd = "\r\n";

} // namespace

frmCallDetails::frmCallDetails(const CallDetailsServices& services, QWidget* owner)
    : QDialog(owner), m_services(services), m_controls(*this) {
    setObjectName(QString::fromLatin1(kModule));
    setWindowTitle(resources::localText(128, "Call Details"));
    for (const std::int32_t image : {resources::kDetailsWithMessage, resources::kDetailsWithoutMessage})
        m_ImageList1.Set(image, resources::detailsIcon(image));
    connect(m_controls.cmdUp, &QPushButton::clicked, this, [this] { cmdUp_Click(); });
    connect(m_controls.cmdDown, &QPushButton::clicked, this, [this] { cmdDown_Click(); });
    connect(m_controls.cmdCopy, &QPushButton::clicked, this, [this] { cmdCopy_Click(); });
    connect(m_controls.Command1, &QPushButton::clicked, this, &QWidget::hide);
    connect(m_controls.picType, &forms::PictureBox::Outdated, this, [this] { drawPicture(); });
    showNoCall();
    Form_Initialize();
}

void frmCallDetails::Form_Initialize() {
    errors::Procedure proc{m_services.errorHandler, kModule, "Form_Initialize"};
    proc.step([&] { setTabCaption(); });
}

void frmCallDetails::Init(CallSelection& mainForm) {
    errors::Procedure proc{m_services.errorHandler, kModule, "Init"};
    proc.step([&] {
        disconnect(m_subscription);
        m_subscription = mainForm.whenItemChanged(*this, [this](const auto& connection, const auto& callID) {
            MainForm_ItemChanged(connection, callID);
        });
        m_MainForm = &mainForm;
    });
    proc.step([&] { setTabCaption(); });
}

// No trap (frmCallDetails, UnInit): nothing in it can fail.
void frmCallDetails::UnInit() noexcept {
    disconnect(m_subscription);
    m_connection.reset();
    m_MainForm = nullptr;
}

void frmCallDetails::MainForm_ItemChanged(const std::shared_ptr<jet::Connection>& connection,
                                          const std::string& callID) {
    errors::Procedure proc{m_services.errorHandler, kModule, "MainForm_ItemChanged"};
    proc.step([&] { setTabCaption(); });
    proc.step([&] { m_connection = connection; });
    proc.step([&] { m_PropCallEntry = callID; });
    proc.step([&] { LoadData(); });
}

// A server that is waited for and the report of a failure let events run, in which another call may be
// announced, and the window's owner may let it go.
void frmCallDetails::LoadData() {
    const auto self = shared_from_this();
    const auto connection = m_connection;
    const std::string statement = data::oneCall(m_PropCallEntry);
    errors::Procedure proc{m_services.errorHandler, kModule, "LoadData"};
    if (m_loading != nullptr)
        m_loading->leave();
    const QScopedValueRollback loading(m_loading, &proc);
    proc.step([&] { clear(); });
    std::shared_ptr<jet::Recordset> records;
    if (connection)
        proc.step([&] { records = connection->Execute(statement); });
    if (records && proc.value(false, [&] { return !records->eof(); }))
        showCall(proc, *records);
    else
        proc.step([&] { showNoCall(); });
}

void frmCallDetails::clear() {
    for (QLabel* value :
         {m_controls.lblDate, m_controls.lblCallID, m_controls.lblCaller, m_controls.lblMessage})
        value->clear();
    m_details.clear();
    m_controls.txtDetails->clear();
    m_controls.picType->Cls();
}

void frmCallDetails::showCall(errors::Procedure& proc, jet::Recordset& records) {
    const CallFields fields{records, m_services.dateTimeFormat, m_services.locale};
    proc.step([&] { showControls(); });
    proc.step([&] { m_controls.lblDate->setText(toQString(fields.date())); });
    proc.step([&] { m_controls.lblCallID->setText(toQString(fields.callID())); });
    proc.step([&] { m_controls.lblCaller->setText(toQString(fields.caller())); });
    proc.step([&] { showMessage(fields); });
    proc.step([&] {
        m_details = fields.details();
        m_controls.txtDetails->setPlainText(toQString(m_details));
    });
    proc.step([&] { records.Close(); });
    proc.step([&] {
        m_controls.lblNoEvent->hide();
        m_controls.picType->show();
    });
    proc.step([&] { drawPicture(); });
}

void frmCallDetails::showControls() {
    for (QWidget* control : m_controls.all())
        control->setVisible(control != m_controls.picType && control != m_controls.lblNoEvent);
}

void frmCallDetails::showMessage(const CallFields& fields) {
    m_controls.lblMessage->setText(toQString(fields.message()));
    m_icon = fields.hasMessage() ? resources::kDetailsWithMessage : resources::kDetailsWithoutMessage;
}

void frmCallDetails::showNoCall() {
    for (QWidget* control : m_controls.all())
        control->setVisible(control == m_controls.CVTab1 || control == m_controls.Command1);
    m_controls.lblNoEvent->setText(resources::localText(136, "Currently there is no call entry selected."));
    m_controls.lblNoEvent->show();
}

void frmCallDetails::drawPicture() {
    m_controls.picType->Cls();
    if (const auto* image = m_ImageList1.find(m_icon)) {
        m_controls.picType->PaintPicture(image->icon);
        replaceKeyColour(*m_controls.picType);
    }
}

void frmCallDetails::cmdUp_Click() {
    errors::Procedure proc{m_services.errorHandler, kModule, "cmdUp_Click"};
    if (m_MainForm != nullptr)
        proc.step([&] { m_MainForm->MoveList(false); });
}

void frmCallDetails::cmdDown_Click() {
    errors::Procedure proc{m_services.errorHandler, kModule, "cmdDown_Click"};
    if (m_MainForm != nullptr)
        proc.step([&] { m_MainForm->MoveList(true); });
}

void frmCallDetails::cmdCopy_Click() {
    errors::Procedure proc{m_services.errorHandler, kModule, "cmdCopy_Click"};
    const std::string copied = copiedText();
    proc.step([&] { m_services.clipboard.Clear(); });
    proc.step([&] { m_services.clipboard.SetText(copied); });
}

std::string frmCallDetails::copiedText() const {
    const std::initializer_list<std::pair<QLabel*, QLabel*>> fields{
        {m_controls.Label2, m_controls.lblDate},
        {m_controls.Label3, m_controls.lblCallID},
        {m_controls.Label1, m_controls.lblCaller},
        {m_controls.Label7, m_controls.lblMessage}};
    std::string text;
    for (const auto& [caption, value] : fields)
        text.append(fromQString(caption->text()))
            .append("\t")
            .append(fromQString(value->text()))
            .append(kLineEnd);
    return text.append(fromQString(m_controls.Label11->text()))
        .append(kLineEnd)
        .append(m_details)
        .append(kLineEnd);
}

void frmCallDetails::setTabCaption() {
    m_controls.CVTab1->SetTabCaption(1, LoadLocalString(3677, "Detail Information"));
}

} // namespace dialogs
