#include "mirroraliases.h"

#include <QCoreApplication>

namespace quovara {

void MirrorAliases::add(const QString& shown, const QString& stored) {
    map_.insert(shown, stored);
}

QString MirrorAliases::storedOf(const QString& item) const {
    if (map_.isEmpty())
        return item;
    const bool rooted = item.startsWith(QLatin1Char('\\'));
    const QString path = rooted ? item.mid(1) : item;
    // From the whole path down to its first part: the longest renamed start wins.
    qsizetype end = path.size();
    while (end > 0) {
        const auto it = map_.constFind(path.left(end));
        if (it != map_.constEnd())
            return (rooted ? QStringLiteral("\\") : QString()) + *it + path.mid(end);
        end = path.lastIndexOf(QLatin1Char('\\'), end - 1);
    }
    return item;
}

QString AliasName(const QString& name, int n) {
    QString base = name;
    QString extension;
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    if (dot > 0 && name.size() - dot <= 16) {
        base = name.left(dot);
        extension = name.mid(dot);
    }
    const QString number = n >= 2 ? QStringLiteral(" (%1)").arg(n) : QString();
    QString mark;
    while ((base + mark + number + extension).toUtf8().size() > kLongestNameBytes &&
           !base.isEmpty()) {
        base.chop(base.size() >= 2 && base.back().isLowSurrogate() ? 2 : 1);
        mark = QString(QChar(0x2026));
    }
    return base + mark + number + extension;
}

QString AliasesMessage(const QString& archive, qsizetype count) {
    if (count == 1)
        return QCoreApplication::translate(
                   "MirrorAliases",
                   "Some names of the archive\n%1\ncannot stand as they are on this system (a "
                   "name longer than 255 bytes, or a file and a folder of one name): 1 name is "
                   "shown shortened or numbered. They are extracted under their stored names.")
            .arg(archive);
    return QCoreApplication::translate(
               "MirrorAliases",
               "Some names of the archive\n%1\ncannot stand as they are on this system (a name "
               "longer than 255 bytes, or a file and a folder of one name): %n names are shown "
               "shortened or numbered. They are extracted under their stored names.",
               nullptr, int(count))
        .arg(archive);
}

} // namespace quovara
