// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/dialogs/AboutWorld.h"
#include "tests/errors/Provocation.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace dialogs {
namespace {

using errors::Effect;
using errors::Provocation;
using errors::Trial;

// Fails while a window gets this caption.
class CaptionWatch final : public QObject {
public:
    explicit CaptionWatch(QString caption) : m_caption(std::move(caption)) { qApp->installEventFilter(this); }

private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::WindowTitleChange && qobject_cast<frmAbout*>(watched) != nullptr &&
            static_cast<QWidget*>(watched)->windowTitle() == m_caption)
            throw basic::RuntimeError(basic::kObjectNotSet);
        return false;
    }

    QString m_caption;
};

// The first of the texts fails. A window that has a caption is not given it again.
const Provocation kLoad{
    "frmAbout", "Form_Load", basic::kObjectNotSet, [](Trial& trial) -> Effect {
        AboutWorld world;
        const CaptionWatch watch(QStringLiteral("About Quillamar"));
        const frmAbout form(trial, world.systemInformation());
        const auto text = [&](const char* name) {
            return form.findChild<QLabel*>(QString::fromLatin1(name))->text();
        };
        return {!text("lblDescription").isEmpty(), text("lblTitle") == QStringLiteral("Quillamar Client")};
    }};

// The owner's handler of the end fails.
const Provocation kOk{"frmAbout", "cmdOK_Click", basic::kObjectNotSet, [](Trial& trial) -> Effect {
                          AboutWorld world;
                          frmAbout form(trial, world.systemInformation());
                          form.show();
                          bool isBroken = true;
                          bool wasHandled = false;
                          trial.repair = [&] { isBroken = false; };
                          QObject::connect(&form, &QDialog::accepted, [&] {
                              if (isBroken)
                                  throw basic::RuntimeError(basic::kObjectNotSet);
                              wasHandled = true;
                          });
                          QTest::mouseClick(form.findChild<QPushButton*>(QStringLiteral("cmdOK")),
                                            Qt::LeftButton);
                          return {wasHandled};
                      }};

} // namespace
} // namespace dialogs
