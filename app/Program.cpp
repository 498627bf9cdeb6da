// SPDX-FileCopyrightText: 2026 The qmClient authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Program.h"

#include "app/HelpLook.h"
#include "app/MessageFiles.h"
#include "app/NetworkBrowsing.h"
#include "app/OutsideEvents.h"
#include "app/SearchedShares.h"
#include "data/ShareMappings.h"
#include "platform/basic/RuntimeError.h"
#include "platform/forms/ModalState.h"
#include "platform/forms/Text.h"
#include "platform/forms/UserLocale.h"
#include "platform/jet/Connection.h"
#include "platform/share/MountTable.h"
#include "platform/share/smb/CredentialsFile.h"
#include "resources/LocalText.h"
#include "resources/ProductData.h"

#include <QApplication>
#include <QDBusConnection>
#include <QRandomGenerator>

#include <filesystem>
#include <utility>

namespace app {
namespace {

using resources::localText;

std::string executable() {
    return forms::fromQString(QCoreApplication::applicationFilePath());
}

errors::ErrorLog errorLog() {
    return {errors::baseNameOf(executable()) + ".log", errors::stateFolder()};
}

// Beside the user's settings.
std::string credentialsFile() {
    const std::filesystem::path settings = registry::pathsFromEnvironment().currentUser;
    return (settings.parent_path() / "credentials").string();
}

// Empty for a name that is no path.
std::string serverOf(const std::string& share) {
    try {
        return share::UncPath::parse(share).server();
    } catch (const basic::RuntimeError&) {
        return {};
    }
}

forms::MessageBoxButtonTexts buttonTexts() {
    return {localText(5000, "OK"), localText(5001, "Cancel"), localText(5002, "Yes"), localText(5003, "No")};
}

// Beside a modal window the main one cannot be shown: the user can only go on with that one.
void activate(frmMain& window) {
    if (!forms::bringModalToFront())
        window.showWindow();
}

} // namespace

Program::Program(Application& application, SingleInstance& instance)
    : m_application(application), m_dateTimeFormat(forms::userDateTimeFormat()),
      m_facts(errors::programFacts(executable())),
      m_messageBoxes(buttonTexts(), forms::toQString(resources::kProductTitle)),
      m_mail(localText(5080, "The error report is attached as a text file.")),
      m_report(m_mail, m_messageBoxes, m_clock),
      m_shownErrors(
          errorLog(), m_clock,
          [this] { return std::make_unique<errors::frmError>(m_facts, m_errorDialogState, &m_report); }),
      m_errorHandler(m_shownErrors, [this] { m_smbServers.tryNow(); }),
      m_registry(registry::pathsFromEnvironment(), m_systemCalls),
      m_remembered(m_keyring, [this] { passwordNotStored(); }), m_logOns(logOnServices()),
      m_smbServers(smbSurroundings(), smbAddresses()), m_folders(resolver(), m_waiter),
      m_servers(m_smbServers, m_waiter), m_files(resolver(), m_folders, m_servers),
      m_countsAhead(m_smbServers, resolver()), m_engine(m_files, jet::Engine::sleepBriefly, sharingWait()),
      m_common(m_errorHandler, m_files, [this] { return std::make_shared<jet::Connection>(m_engine); }),
      m_values(m_registry, m_messageBoxes),
      m_sound(messageFiles(registry::pathsFromEnvironment(), smbSurroundings()), m_waiter),
      m_audio(m_errorHandler, m_sound.waveOut()),
      m_mailboxSearch(SearchedShares(m_smbServers, data::ShareMappings(m_registry), m_logOns.desk())),
      m_network(networkTexts(), networkSources(browsingSurroundings(), smbAddresses())),
      m_browser(m_errorHandler, m_network), m_serverDialog(serverDialogServices()),
      m_trayHosts(QDBusConnection::sessionBus()), m_notificationArea(m_windows, m_icons, m_trayHosts),
      m_areaWatch(m_trayHosts, m_patience), m_help(helpLayout(), helpSurroundings()), m_main(mainServices()) {
    connectEvents(instance);
    m_application.reportTo(&m_errorHandler);
}

// While others are in a database, painting goes on; a program that ends waits for nobody.
jet::SharingWait Program::sharingWait() {
    return {.sleep = [this](std::chrono::milliseconds time) {
        if (!m_waiter.pass(time))
            throw basic::RuntimeError(basic::kProviderFailure);
    }};
}

share::ShareResolver Program::resolver() {
    return {data::ShareMappings(m_registry), share::MountTable::systemText};
}

share::smb::SmbServers::Addresses Program::smbAddresses() {
    return [mappings = data::ShareMappings(m_registry)](std::string_view server) {
        return share::smb::addressOf(mappings(server).value_or(std::string()));
    };
}

void Program::passwordNotStored() {
    if (!m_waiter.isEnded())
        m_messageBoxes.show(localText(5056, "The password could not be stored in the keyring."),
                            forms::kExclamation, {});
}

shell::Remembering Program::remembering(const std::string& server) const {
    if (!shell::Keyring::isThere())
        return shell::Remembering::Impossible;
    return m_remembered.isRemembered(server) ? shell::Remembering::Chosen : shell::Remembering::Offered;
}

// A program that ends asks nobody.
LogOns::Services Program::logOnServices() {
    return {.otherwise = m_remembered.source([file = credentialsFile()](const std::string&) {
                return share::smb::readCredentialsFile(file);
            }),
            .ask =
                [this](const std::string& server, const share::smb::Credentials& last) {
                    return askForCredentials(server, last, remembering(server));
                },
            .remember =
                [this](const std::string& server, const share::smb::Credentials& who, bool isWanted) {
                    if (isWanted)
                        m_remembered.remember(server, who);
                    else
                        m_remembered.forget(server);
                },
            .afterWaiting =
                [this](std::function<void()> work) {
                    if (!m_waiter.isEnded())
                        m_waiter.afterWaiting(std::move(work));
                },
            .tryNow = [this] { m_smbServers.tryNow(); },
            .goOn =
                [this] {
                    if (m_main.timer().isTicking()) // else the start-up is not that far
                        m_main.mTimer_ThatTime();
                }};
}

share::smb::SmbServer::Surroundings Program::smbSurroundings() {
    return {.program = share::smb::helperProgram(),
            .spread = [] { return QRandomGenerator::global()->generateDouble(); },
            .credentials = m_logOns.source(),
            .prepare = m_remembered.preparation(),
            .refused = m_logOns.refusalHook(),
            .refusals = m_refusals};
}

// Looking around on the network asks nobody for a password.
share::smb::SmbServer::Surroundings Program::browsingSurroundings() {
    share::smb::SmbServer::Surroundings surroundings = smbSurroundings();
    surroundings.refused = [](const std::string&) {};
    return surroundings;
}

ShareAccess Program::shareAccess() {
    return {.afterWaiting = [this](std::function<void()> work) { m_waiter.afterWaiting(std::move(work)); },
            .userActs = [this] { m_smbServers.tryNow(); },
            .userLogsOn = [this] { m_smbServers.logOnAnew(); },
            .endWaits =
                [this] {
                    m_countsAhead.end();
                    m_mailboxSearch.end();
                    m_waiter.endWaits();
                },
            .countsAhead = &m_countsAhead};
}

MainServices Program::mainServices() {
    return {m_errorHandler,
            m_files,
            m_common,
            m_clipboard,
            m_messageBoxes,
            m_desktop,
            tray::TrayServices{m_notificationArea, m_windows, m_icons},
            m_dateTimeFormat,
            [this] { return std::make_shared<data::clsConfig>(m_registry, m_messageBoxes, m_errorHandler); },
            playerServices(),
            helpServices(),
            dialogs::OptionsServices{m_mailboxSearch, m_serverDialog},
            shareAccess()};
}

HelpServices Program::helpServices() {
    return {m_help, QCoreApplication::applicationDirPath(), m_registry,
            [this](const std::string& path) { m_programs.start(path); }};
}

audio::PlayerServices Program::playerServices() {
    return {m_errorHandler, m_messageBoxes, m_files, m_audio, [this] {
                return std::make_shared<audio::clsWave>(audio::WaveServices{
                    m_errorHandler, m_messageBoxes, m_sound.graphs(), m_audio, m_values, m_clock});
            }};
}

dialogs::frmServer::Services Program::serverDialogServices() {
    return {m_errorHandler, m_common, m_messageBoxes, m_browser, [this](const std::string& share) {
                return m_logOns.reach(serverOf(share), [&] { return m_files.FolderExists(share); });
            }};
}

void Program::connectEvents(SingleInstance& instance) {
    const OutsideEvents events{m_errorHandler,
                               {[this] { activate(m_main); }, [this] { m_main.notificationAreaMissing(); },
                                [this] { m_main.notificationAreaReturned(); },
                                [this] { m_main.unload(UnloadMode::SessionEnd); }}};
    // From then on nobody can be asked: each dialog's event loop ends as it begins.
    QObject::connect(&m_main, &frmMain::unloading, &m_main, [this] {
        m_shownErrors.askNobody();
        QCoreApplication::exit();
    });
    QObject::connect(&m_main, &frmMain::unloaded, &m_main, [this] { m_errorHandler.fallSilent(); });
    QObject::connect(&instance, &SingleInstance::activated, &m_main, [events] { events.activated(); });
    QObject::connect(&m_areaWatch, &shell::NotificationAreaWatch::missing, &m_main,
                     [events] { events.notificationAreaMissing(); });
    QObject::connect(&m_areaWatch, &shell::NotificationAreaWatch::returned, &m_main,
                     [events] { events.notificationAreaReturned(); });
    QObject::connect(&m_signals, &TerminationSignals::received, &m_main, [events] { events.sessionEnds(); });
    QObject::connect(&m_application, &Application::askedToQuit, &m_main, [events] { events.sessionEnds(); });
    QObject::connect(&m_sessionLoss, &SessionLoss::lost, &m_main, [events] { events.sessionEnds(); });
}

Program::~Program() {
    m_application.reportTo(nullptr);
}

int Program::run() {
    m_main.Form_Load();
    if (m_main.isUnloaded()) // while a report of the start-up was up
        return 0;
    return QCoreApplication::exec();
}

} // namespace app
