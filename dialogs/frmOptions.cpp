// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/frmOptions.h"

#include "platform/basic/Conversion.h"
#include "platform/basic/ObjectOf.h"
#include "platform/forms/CVTab.h"
#include "platform/forms/ListViewMacros.h"
#include "platform/forms/Text.h"
#include "resources/LocalText.h"
#include "resources/StringTable.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include <cmath>
#include <utility>

namespace dialogs {
namespace {

using resources::localText;

constexpr const char* kModule = "frmOptions";
constexpr int kLeastInterval = 5;

} // namespace

frmOptions::frmOptions(errors::ErrorHandler& errorHandler, const data::basCommon& common,
                       const OptionsServices& services, QWidget* owner)
    : QDialog(owner), m_errors(errorHandler), m_common(common), m_search(services.search),
      m_servers(services.servers), m_controls(*this), m_list(errorHandler, common, *m_controls.lsMailboxes) {
    setObjectName(QStringLiteral("frmOptions"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    Form_Load();
    connect(m_controls.cmdOK, &QPushButton::clicked, this, &frmOptions::cmdOK_Click);
    connect(m_controls.cmdCancel, &QPushButton::clicked, this, &frmOptions::reject);
    connect(m_controls.cmdServer, &QPushButton::clicked, this, &frmOptions::cmdServer_Click);
}

frmOptions::~frmOptions() {
    m_search.cancel();
}

void frmOptions::Form_Load() {
    errors::Procedure proc{m_errors, kModule, "Form_Load"};
    proc.step([&] { setCaptions(); });
    proc.step([&] {
        forms::ListView_SetExtendedListViewStyleEx(*m_controls.lsMailboxes, forms::LVS_EX_CHECKBOXES,
                                                   forms::LVS_EX_CHECKBOXES);
    });
    proc.step([&] { forms::selectFullRows(*m_controls.lsMailboxes); });
}

void frmOptions::setCaptions() {
    setWindowTitle(localText(138, "Options"));
    m_controls.CVTab1->SetTabCaption(1, resources::LoadLocalString(138, "Options"));
    m_controls.Label1->setText(localText(3752, "Quillamar-Server:"));
    m_controls.Label2->setText(localText(3758, "Update-Interval:"));
    m_controls.Label3->setText(localText(3757, "s (10s - 600s)"));
    m_controls.Label4->setText(
        localText(139, "Select the mailboxes you want to monitor from the list above. "
                       "Please note that you must have permission to access these mailboxes."));
    m_controls.cmdOK->setText(localText(122, "OK"));
    m_controls.cmdCancel->setText(localText(114, "Cancel"));
    m_controls.cmdServer->setAccessibleName(localText(5070, "Choose server"));
    m_controls.cmdServer->setToolTip(localText(5070, "Choose server"));
    m_controls.txtServer->setAccessibleName(m_controls.Label1->text());
    m_controls.txtInterval->setAccessibleName(m_controls.Label2->text() + u' ' + m_controls.Label3->text());
    m_controls.lsMailboxes->SetAccessibleName(localText(5011, "Mailboxes"));
    m_controls.lblSearch->setText(localText(5110, "Looking for mailboxes..."));
    m_controls.barSearch->setAccessibleName(m_controls.lblSearch->text());
    m_controls.reserveRoom();
}

void frmOptions::setConfig(std::shared_ptr<data::clsConfig> config) {
    m_config = std::move(config);
    const data::clsConfig& now = basic::objectOf(m_config);
    m_before = {now.ServerName, now.PollInterval, now.Mailboxes};
}

void frmOptions::Init() {
    errors::Procedure proc{m_errors, kModule, "Init"};
    const auto config = m_config;
    m_search.cancel();
    setSearching(false);
    proc.step(
        [&] { m_controls.txtInterval->setText(QString::number(basic::objectOf(config).PollInterval)); });
    proc.step([&] { m_controls.txtServer->setText(forms::toQString(basic::objectOf(config).ServerName)); });
    if (proc.running() && m_controls.txtServer->text().isEmpty())
        proc.step([&] { cmdServer_Click(); });
    m_list.begin(proc);
    proc.step([&] { beginSearch(); });
}

void frmOptions::beginSearch() {
    const std::string qmPath = m_common.GetQMPath(basic::objectOf(m_config).ServerName);
    setSearching(true);
    m_search.begin(qmPath,
                   {[this](int read, int total) { showProgress(read, total); },
                    [this](const FoundMailboxes& found) { fill(found); }, [this] { return isInFront(); }});
}

// A failure that fill() told beside another one's report would be answered unseen, and OK would give up the
// mailboxes that are missing from the list.
bool frmOptions::isInFront() const {
    const QWidget* const modal = QApplication::activeModalWidget();
    return modal == nullptr || modal == this;
}

void frmOptions::setSearching(bool isSearching) {
    m_controls.barSearch->setRange(0, 0);
    m_controls.lblSearch->setVisible(isSearching);
    m_controls.barSearch->setVisible(isSearching);
    m_controls.cmdOK->setEnabled(!isSearching);
}

void frmOptions::showProgress(int read, int total) {
    m_controls.barSearch->setRange(0, total);
    m_controls.barSearch->setValue(read);
}

// The rest of Init, over what the search found.
void frmOptions::fill(const FoundMailboxes& found) {
    errors::Procedure proc{m_errors, kModule, "Init"};
    setSearching(false);
    bool isTold = false;
    proc.step([&] { // "try again" looks once more
        if (found.failure && !std::exchange(isTold, true))
            throw basic::RuntimeError(*found.failure);
        if (!found.failure)
            return;
        beginSearch();
        proc.leave();
    });
    const auto config = m_config;
    for (const FoundMailbox& mailbox : found.mailboxes) {
        if (!proc.running())
            return;
        m_list.add(proc, *config, mailbox);
    }
    proc.step([&] { m_list.check(proc, basic::objectOf(config)); });
}

void frmOptions::cmdOK_Click() {
    errors::Procedure proc{m_errors, kModule, "cmdOK_Click"};
    const auto config = m_config;
    // First of all: it is what can fail, and an Abort must leave the settings that ticks count by.
    const std::int32_t interval = proc.value(m_before.PollInterval, [&] { return typedInterval(); });
    proc.step([&] { basic::objectOf(config).Clear(); });
    proc.step([&] { m_list.take(proc, basic::objectOf(config)); });
    proc.step([&] { basic::objectOf(config).PollInterval = interval; });
    proc.step([&] {
        if (basic::objectOf(config).PollInterval < kLeastInterval)
            config->PollInterval = data::kDefaultPollInterval;
    });
    proc.step([&] { basic::objectOf(config).SaveConfig(); });
    proc.step([&] { m_isCancelled = false; });
    proc.step([&] { accept(); });
}

// The number that the text begins with, without its decimal places.
std::int32_t frmOptions::typedInterval() const {
    return basic::CLng(std::trunc(basic::Val(forms::fromQString(m_controls.txtInterval->text()))));
}

void frmOptions::cmdServer_Click() {
    errors::Procedure proc{m_errors, kModule, "cmdServer_Click"};
    const auto config = m_config;
    std::optional<QString> chosen;
    proc.step([&] {
        chosen = m_servers.select(isVisible() ? this : parentWidget(), m_controls.txtServer->text());
    });
    if (!chosen || !m_config) // the program may have ended meanwhile
        return;
    proc.step([&] { config->Clear(); });
    proc.step([&] { m_controls.txtServer->setText(*chosen); });
    proc.step([&] { config->ServerName = forms::fromQString(*chosen); });
    proc.step([&] { Init(); });
}

void frmOptions::reject() {
    m_search.cancel();
    putBack();
    m_config.reset();
    m_isCancelled = true;
    QDialog::reject();
}

void frmOptions::putBack() {
    if (!m_config)
        return;
    m_config->ServerName = m_before.ServerName;
    m_config->PollInterval = m_before.PollInterval;
    m_config->Mailboxes = m_before.Mailboxes;
}

} // namespace dialogs
