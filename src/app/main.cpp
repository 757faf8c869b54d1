// Quovara: start-up and command line. The main window does the rest.
#include "core/engineinstall.h"
#include "core/launcherserver.h"
#include "core/processcontrol.h"
#include "ui/browser/commandline.h"
#include "ui/browser/frmapri.h"

#include <QApplication>
#include <QIcon>
#include <QTextStream>

#include <cstdio>
#include <cstring>

int main(int argc, char** argv) {
    // "--install-engine FILE...": a console command that never opens a window (it works
    // without a display).
    if (argc > 1 && std::strcmp(argv[1], quovara::InstallEngineSwitch) == 0) {
        QCoreApplication app(argc, argv);
        QCoreApplication::setApplicationName(QStringLiteral("quovara"));
        QTextStream out(stdout);
        QTextStream err(stderr);
        return quovara::InstallEngineCommand(app.arguments().mid(2), out, err);
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quovara"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/quovara.svg")));
    // A Qt resource static library needs its resources pulled in explicitly.
    Q_INIT_RESOURCE(quovara);

    // An engine must never outlive the program, also when it is ended by a signal.
    quovara::EndJobsOnTerminationSignals();
    quovara::frmApri window;
    if (!window.Form_Load(quovara::CommandLineText(app.arguments().mid(1)))) {
        quovara::LauncherServer::Shutdown();
        return 0;
    }
    window.show();
    const int code = app.exec();
    // The launcher's server kept warm for this session ends with it.
    quovara::LauncherServer::Shutdown();
    return code;
}
