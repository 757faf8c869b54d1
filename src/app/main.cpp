// Quovara: start-up and command line. The main window does the rest.
#include "app/archivelocale.h"
#include "app/consolecommands.h"
#include "app/display.h"
#include "app/language.h"
#include "app/options.h"
#include "core/engineinstall.h"
#include "core/launcherserver.h"
#include "core/notifications.h"
#include "core/processcontrol.h"
#include "core/singleinstance.h"
#include "ui/browser/commandline.h"
#include "ui/browser/frmapri.h"
#include "ui/common/preparingnotice.h"

#include <QApplication>
#include <QIcon>
#include <QTextStream>

#include <cstdio>
#include <functional>
#include <vector>

namespace {

// An option given on the command line: it does its work on the console and ends, without a
// display (only a core application object exists).
int RunOption(int argc, char** argv, const quovara::OptionUse& use) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quovara"));
    quovara::InstallTranslations(app);
    QTextStream out(stdout);
    QTextStream err(stderr);
    switch (use.option->id) {
    case quovara::OptionId::ArchiveLocale:
        return 0; // applied before any other option
    case quovara::OptionId::Help:
        return quovara::ShowHelp(out);
    case quovara::OptionId::Version:
        return quovara::ShowVersion(out);
    case quovara::OptionId::InstallEngine:
        return quovara::InstallEngineCommand(use.values, out, err);
    case quovara::OptionId::ExtractHere:
    case quovara::OptionId::Convert:
        break; // needs the display: main() runs it
    }
    return 2;
}

// The work is done: the engine's server has ended. A desktop notice still on its way, or whose
// button ("Open folder") may still be chosen, keeps the program a little longer (without its
// lock, so that a new copy may start), so that the notice is shown and its button works.
int EndAfterNotices(int status) {
    constexpr int kNoticeButtonMs = 60000;
    quovara::LauncherServer::Shutdown();
    if (quovara::DesktopNotifications::instance().busy()) {
        quovara::ReleaseInstanceLocks();
        quovara::DesktopNotifications::instance().settle(kNoticeButtonMs);
    }
    return status;
}

// Prints on standard error a message made once the catalogues are loaded (the program's
// texts are translated only while an application object lives), and ends with `status`.
int PrintTranslated(int argc, char** argv, const std::function<QString()>& message, int status) {
    QCoreApplication app(argc, argv);
    quovara::InstallTranslations(app);
    std::fputs(message().toLocal8Bit().constData(), stderr);
    return status;
}

} // namespace

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const quovara::ParsedArguments parsed = quovara::ParseArguments(arguments);
    if (!parsed.error.isEmpty()) {
        return PrintTranslated(
            argc, argv,
            [&] { return quovara::UsageErrorText(quovara::ParseArguments(arguments).error); }, 2);
    }
    // The archive locale changes how the engine is run for the whole session (and for
    // --install-engine's check); every other option does its work and ends.
    const QString archiveLocale = quovara::ArchiveLocaleOfArguments(parsed);
    if (!archiveLocale.isEmpty()) {
        const QString problem = quovara::UseArchiveLocale(archiveLocale);
        if (!problem.isEmpty()) {
            return PrintTranslated(
                argc, argv,
                [&] { return quovara::UseArchiveLocale(archiveLocale) + QLatin1Char('\n'); },
                problem.startsWith(QLatin1String("quovara:")) ? 2 : 1);
        }
    }
    QStringList extractHere;
    bool extractHereGiven = false;
    const quovara::OptionUse* convert = nullptr;
    for (const quovara::OptionUse& use : parsed.options) {
        if (use.option->id == quovara::OptionId::ExtractHere) {
            extractHereGiven = true;
            extractHere = use.values;
            break;
        }
        if (use.option->id == quovara::OptionId::Convert) {
            convert = &use;
            break;
        }
        if (use.option->id != quovara::OptionId::ArchiveLocale)
            return RunOption(argc, argv, use);
    }
    if (extractHereGiven && extractHere.isEmpty()) {
        return PrintTranslated(
            argc, argv,
            [] {
                return quovara::UsageErrorText(QCoreApplication::translate(
                    "Options", "option '--extract-here' needs an archive"));
            },
            2);
    }
    if (convert && !quovara::ConvertArgumentsProblem(convert->values).isEmpty()) {
        return PrintTranslated(
            argc, argv,
            [&] {
                return quovara::UsageErrorText(quovara::ConvertArgumentsProblem(convert->values));
            },
            2);
    }

    // Everything else opens a window. Qt sees only the arguments before "--" and takes its
    // own options ("-platform NAME") out of them; those after "--" are never read as options.
    const QStringList shownToQt = parsed.operands.mid(0, parsed.operandsBeforeEnd);
    const QString noDisplay =
        quovara::MissingDisplayMessage(shownToQt, QProcessEnvironment::systemEnvironment());
    if (!noDisplay.isEmpty()) {
        return PrintTranslated(
            argc, argv,
            [&] {
                return quovara::MissingDisplayMessage(shownToQt,
                                                      QProcessEnvironment::systemEnvironment()) +
                       QLatin1Char('\n');
            },
            1);
    }
    std::vector<char*> qtArgv{argv[0]};
    for (qsizetype i = 0; i < parsed.operandsBeforeEnd; ++i)
        qtArgv.push_back(argv[parsed.operandIndex.at(i) + 1]);
    qtArgv.push_back(nullptr);
    int qtArgc = int(qtArgv.size()) - 1;

    QApplication app(qtArgc, qtArgv.data());
    QApplication::setApplicationName(QStringLiteral("quovara"));
    quovara::InstallTranslations(app);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/quovara.svg")));
    // A Qt resource static library needs its resources pulled in explicitly.
    Q_INIT_RESOURCE(quovara);

    // An engine must never outlive the program, also when it is ended by a signal.
    quovara::EndJobsOnTerminationSignals();
    quovara::frmApri window;
    // The first use of the engine prepares its wine prefix: the user is told, not left waiting.
    quovara::InstallPreparingNotice(&window);
    if (convert) {
        // Each archive converted beside itself, as Extract Here does.
        return EndAfterNotices(
            window.Convert(convert->values.constFirst(), convert->values.mid(1)));
    }
    if (extractHereGiven) {
        // Each archive beside itself, each with its progress window; the main window stays
        // hidden and the program ends when all are done.
        return EndAfterNotices(window.ExtractHere(extractHere));
    }
    const QStringList request =
        app.arguments().mid(1) + parsed.operands.mid(parsed.operandsBeforeEnd);
    if (!window.Form_Load(quovara::CommandLineText(request)))
        return EndAfterNotices(0);
    window.show();
    // The launcher's server kept warm for this session ends with it.
    return EndAfterNotices(app.exec());
}
