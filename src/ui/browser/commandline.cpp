#include "commandline.h"

#include "core/vbtext.h"

#include <QDir>

namespace quovara {

QString CommandLineText(const QStringList& arguments) {
    return arguments.join(QLatin1Char(' '));
}

CommandRequest ClassifyCommandLine(const QString& c) {
    const bool extract = Like(c, QStringLiteral("extract*"));
    const bool sfx = Like(c, QStringLiteral("sfx*"));
    const bool add = Like(c, QStringLiteral("add*"));
    CommandRequest r;
    if (!extract && !sfx && !add && Like(c, QStringLiteral("*.uha"))) {
        r.kind = CommandRequest::Archive;
        r.path = c;
    } else if (extract && !sfx && !add) {
        r.kind = CommandRequest::Extract;
        r.path = c.mid(9);
    } else if (add && !sfx && !extract) {
        r.kind = CommandRequest::Add;
        r.path = c.mid(5);
    } else if (sfx && !extract && !add) {
        r.kind = CommandRequest::Sfx;
        r.path = c.mid(5);
    }
    return r;
}

QString FolderOf(const QString& path) {
    const QString native = QDir::toNativeSeparators(path);
    const int cut = native.lastIndexOf(QDir::separator());
    if (cut < 0)
        return QString();
    QString folder = native.left(cut);
    if (folder.isEmpty())
        return QString(QDir::separator());
    if (folder.endsWith(QLatin1Char(':')))
        folder += QDir::separator();
    return folder;
}

} // namespace quovara
