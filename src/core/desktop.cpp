#include "desktop.h"

#include "logging.h"
#include "prompter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace quovara {

namespace {

int defaultOpen(const QString& target, const QString&, const QString&) {
    const QUrl url = QUrl::fromUserInput(target);
    if (url.isLocalFile()) {
        const QFileInfo info(url.toLocalFile());
        if (!info.dir().exists())
            return 3;
        if (!info.exists())
            return 2;
    }
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty() ||
        !QProcess::startDetached(opener, {url.isLocalFile() ? url.toLocalFile() : target}))
        return 31;
    return 42;
}

DesktopOpener& opener() {
    static DesktopOpener current;
    return current;
}

} // namespace

void SetDesktopOpener(DesktopOpener o) {
    opener() = std::move(o);
}

int DesktopOpen(const QString& target, const QString& parameters, const QString& folder) {
    if (opener())
        return opener()(target, parameters, folder);
    return defaultOpen(target, parameters, folder);
}

void ShellOpen(const QString& target) {
    const int code = DesktopOpen(target);
    if (code < 32)
        qCDebug(lcDesktop) << "open failed with" << code << "for" << target;
}

QString ShellOpenFailureText(int code, const QString& parameters) {
    QString text;
    switch (code) {
    case 0:
        text = QStringLiteral("Memoria o risorse del sistema esaurite. ");
        break;
    case 2:
        text = QStringLiteral("Impossibile trovare il file. ");
        break;
    case 3:
        text = QStringLiteral("Impossibile trovare la cartella. ");
        break;
    case 11:
        text = QString::fromUtf8("Il formato del file non \u00e8 valido. ");
        break;
    case 31:
        text = QStringLiteral(
            "Il sistema in uso non presenta alcuna associazione per questo tipo di file");
        break;
    default:
        return QString();
    }
    text += QStringLiteral("\r\r");
    const QString trimmed = parameters.trimmed();
    if (!trimmed.isEmpty())
        text += QStringLiteral("Parametri: '") + trimmed + QStringLiteral("'");
    return text;
}

int ShellOpenReport(Prompter& prompter, const QString& file, const QString& parameters,
                    const QString& folder, qint32 showCommand) {
    Q_UNUSED(showCommand);
    const int code = DesktopOpen(file, parameters, folder);
    if (code >= 32)
        return code;
    const QString text = ShellOpenFailureText(code, parameters);
    qCDebug(lcDesktop) << "open failed with" << code << "for" << file;
    if (!text.isEmpty()) {
        prompter.critical(text);
        QCoreApplication::processEvents();
    }
    return code;
}

} // namespace quovara
