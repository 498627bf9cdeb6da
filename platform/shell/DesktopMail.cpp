// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shell/DesktopMail.h"

#include "platform/basic/RuntimeError.h"
#include "platform/shell/ExternalProgram.h"
#include "platform/shell/MailMessage.h"

#include <QStandardPaths>
#include <QTemporaryFile>

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <ctime>
#include <utility>

namespace shell {
namespace {

// An argument may have 128 KiB, but what the mail program is started with in turn may have less.
constexpr std::size_t kLongestUri = std::size_t{30} * 1024;

std::string xdgEmail() {
    return findProgram("xdg-email");
}

std::tm localNow() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return local;
}

MailSender user() {
    std::array<char, 256> host{};
    const passwd* entry = ::getpwuid(::getuid());
    if (entry == nullptr || ::gethostname(host.data(), host.size() - 1) != 0)
        return {};
    const std::string_view person(entry->pw_gecos == nullptr ? "" : entry->pw_gecos);
    return {std::string(person.substr(0, person.find(','))), localAddress(entry->pw_name, host.data())};
}

// Readable by its owner only. The mail program may read it as late as the mail is sent.
std::string keepForTheSession(const std::string& text) {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    QTemporaryFile file(folder + QStringLiteral("/message-XXXXXX.txt"));
    file.setAutoRemove(false);
    if (!file.open() || file.write(text.data(), static_cast<qint64>(text.size())) < 0 || !file.flush())
        throw basic::RuntimeError(basic::kPathFileAccess, "write: " + file.fileName().toStdString());
    return file.fileName().toStdString();
}

} // namespace

class DesktopMail::Item final : public MailItem {
public:
    explicit Item(DesktopMail& program) : m_program(program) {}

    void Display(Done done) override { m_program.display(text(), done); }
    void Send(Done done) override { m_program.send(text(), done); }

private:
    MailText text() const { return {To.toStdString(), Subject.toStdString(), Body.toStdString()}; }

    DesktopMail& m_program;
};

DesktopMail::DesktopMail(QString attachedNotice, std::vector<std::string> sendmailFolders)
    : m_attachedNotice(std::move(attachedNotice)), m_sendmailFolders(std::move(sendmailFolders)) {}

std::unique_ptr<MailItem> DesktopMail::CreateItem() {
    if (xdgEmail().empty() && sendmail().empty())
        throw basic::RuntimeError(basic::kCannotCreateObject);
    return std::make_unique<Item>(*this);
}

std::string DesktopMail::sendmail() const {
    return findProgram("sendmail", m_sendmailFolders);
}

void DesktopMail::display(MailText mail, const MailItem::Done& done) {
    const std::string program = xdgEmail();
    if (program.empty()) {
        done(MailOutcome::Failed);
        return;
    }
    std::vector<std::string> arguments;
    std::string uri = mailtoUri(mail);
    if (uri.size() > kLongestUri) {
        arguments = {"--attach", keepForTheSession(withMailLineEnds(mail.body))};
        mail.body = m_attachedNotice.toStdString();
        uri = mailtoUri(mail);
    }
    arguments.push_back(std::move(uri));
    run(program, arguments, {}, MailOutcome::Displayed, done);
}

void DesktopMail::send(const MailText& mail, const MailItem::Done& done) {
    const std::string program = sendmail();
    if (program.empty()) {
        display(mail, done);
        return;
    }
    // -i: a line with a single dot is part of the text. The address is an argument, so that no header adds
    // others.
    run(program, {"-i", "--", mail.to}, mailMessage(mail, user(), localNow()), MailOutcome::Sent, done);
}

void DesktopMail::run(const std::string& program, const std::vector<std::string>& arguments,
                      const std::string& input, MailOutcome success, const MailItem::Done& done) {
    auto process = std::make_unique<ExternalProgram>();
    process->start(program, arguments, input);
    auto* running = process.release();
    running->setParent(this);
    connect(running, &ExternalProgram::ended, this, [running, success, done](int exitCode) {
        running->deleteLater();
        done(exitCode == 0 ? success : MailOutcome::Failed);
    });
}

} // namespace shell
