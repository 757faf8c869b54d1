// Quovara: start-up and command line. The main window does the rest.
#include "ui/browser/commandline.h"
#include "ui/browser/frmapri.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quovara"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/quovara.svg")));
    // A Qt resource static library needs its resources pulled in explicitly.
    Q_INIT_RESOURCE(quovara);

    quovara::frmApri window;
    if (!window.Form_Load(quovara::CommandLineText(app.arguments().mid(1))))
        return 0;
    window.show();
    return app.exec();
}
