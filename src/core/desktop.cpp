#include "desktop.h"

#include "logging.h"
#include "mimeapps.h"
#include "prompter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace quovara {

namespace {

AssociationLookup& lookup() {
    static AssociationLookup current;
    return current;
}

DesktopLauncher& launcher() {
    static DesktopLauncher current;
    return current;
}

// True when the desktop's opener command can be started (or a launcher stands in for it).
bool openerInstalled() {
    if (launcher())
        return true;
    if (QStandardPaths::findExecutable(QStringLiteral("xdg-open")).isEmpty()) {
        qCDebug(lcDesktop) << "no xdg-open on the PATH" << qEnvironmentVariable("PATH");
        return false;
    }
    return true;
}

bool launch(const QString& target) {
    if (launcher())
        return launcher()(target);
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty()) {
        qCDebug(lcDesktop) << "no xdg-open on the PATH";
        return false;
    }
    return QProcess::startDetached(opener, {target});
}

// True when some application opens files of the kind of `path`.
bool hasApplication(const QString& path) {
    const QStringList types = MimeTypesOfFile(path);
    const QString app = lookup() ? lookup()(types) : AssociatedApplication(types);
    if (app.isEmpty()) {
        qCDebug(lcDesktop) << "no application opens" << types.value(0) << "files:" << path;
        return false;
    }
    return true;
}

int defaultOpen(const QString& target, const QString&, const QString&) {
    const QUrl url = QUrl::fromUserInput(target);
    if (url.isLocalFile()) {
        const QFileInfo info(url.toLocalFile());
        if (!info.dir().exists())
            return 3;
        if (!info.exists())
            return 2;
        // Without the desktop's opener nothing can be opened, whatever the associations say.
        if (!openerInstalled())
            return OpenerMissingCode;
        // A file that no application opens would be handed over for nothing: the desktop's
        // opener says so only where the user cannot see it.
        if (!hasApplication(info.filePath()))
            return 31;
    } else if (!openerInstalled()) {
        return OpenerMissingCode;
    }
    if (!launch(url.isLocalFile() ? url.toLocalFile() : target))
        return 31;
    return 42;
}

DesktopOpener& opener() {
    static DesktopOpener current;
    return current;
}

} // namespace

QStringList MimeTypesOfFile(const QString& path) {
    const QMimeDatabase db;
    const QMimeType type = db.mimeTypeForFile(path);
    QStringList types{type.name()};
    for (const QStringList& more : {type.aliases(), type.allAncestors()})
        for (const QString& t : more)
            if (!types.contains(t))
                types << t;
    return types;
}

void SetAssociationLookup(AssociationLookup l) {
    lookup() = std::move(l);
}

void SetDesktopLauncher(DesktopLauncher l) {
    launcher() = std::move(l);
}

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
        text = QCoreApplication::translate("quovara::Desktop",
                                           "Memoria o risorse del sistema esaurite. ");
        break;
    case 2:
        text = QCoreApplication::translate("quovara::Desktop", "Impossibile trovare il file. ");
        break;
    case 3:
        text = QCoreApplication::translate("quovara::Desktop", "Impossibile trovare la cartella. ");
        break;
    case 11:
        text =
            QCoreApplication::translate("quovara::Desktop", "Il formato del file non è valido. ");
        break;
    case 31:
        text = QCoreApplication::translate(
            "quovara::Desktop",
            "Il sistema in uso non presenta alcuna associazione per questo tipo di file");
        break;
    default:
        return QString();
    }
    text += QStringLiteral("\r\r");
    const QString trimmed = parameters.trimmed();
    if (!trimmed.isEmpty())
        text += QCoreApplication::translate("quovara::Desktop", "Parametri: '%1'").arg(trimmed);
    return text;
}

QString OpenerMissingText(const QString& file) {
    return QCoreApplication::translate(
               "quovara::Desktop",
               "%1 cannot be opened: the program that opens files, xdg-open, is not installed.\n\n"
               "It comes with the package xdg-utils; install it (for example with "
               "\"sudo apt install xdg-utils\") and try again.")
        .arg(QFileInfo(file).fileName());
}

int ShellOpenReport(Prompter& prompter, const QString& file, const QString& parameters,
                    const QString& folder, qint32 showCommand) {
    Q_UNUSED(showCommand);
    const int code = DesktopOpen(file, parameters, folder);
    if (code >= 32)
        return code;
    const QString text = code == OpenerMissingCode ? OpenerMissingText(file)
                                                   : ShellOpenFailureText(code, parameters);
    qCDebug(lcDesktop) << "open failed with" << code << "for" << file;
    if (!text.isEmpty()) {
        prompter.critical(text);
        QCoreApplication::processEvents();
    }
    return code;
}

} // namespace quovara
