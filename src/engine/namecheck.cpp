#include "namecheck.h"

#include "listing.h"
#include "unsafenames.h"

#include "core/logging.h"
#include "core/prompter.h"
#include "core/vbtext.h"

namespace quovara {

namespace {

// The list job's messages go nowhere: the extraction that follows reports the engine's own.
class QuietPrompter : public Prompter {
public:
    void critical(const QString& t) override { qCDebug(lcListing) << "name check:" << t; }
    void exclamation(const QString& t) override { qCDebug(lcListing) << "name check:" << t; }
    void information(const QString& t) override { qCDebug(lcListing) << "name check:" << t; }
    void plain(const QString& t) override { qCDebug(lcListing) << "name check:" << t; }
    QString askPassword(const QString&) override { return QString(); }
    bool question(const QString&) override { return false; }
};

QString lastPart(const QString& name) {
    const qsizetype cut = std::max(name.lastIndexOf(QLatin1Char('\\')), name.lastIndexOf('/'));
    return cut < 0 ? name : name.mid(cut + 1);
}

bool takes(const QString& pattern, const QString& name) {
    const QString p = TrimBlanks(pattern);
    if (p.isEmpty())
        return false;
    if (p.contains(QLatin1Char('\\')) || p.contains(QLatin1Char('/')))
        return WildcardMatch(name, QString(p).replace(QLatin1Char('/'), QLatin1Char('\\')));
    return WildcardMatch(lastPart(name), p);
}

} // namespace

ArchiveNames ReadArchiveNames(const QString& archive, const QString& password,
                              EngineSwitchState& engineSwitch) {
    QuietPrompter quiet;
    ArchiveLister lister(quiet, engineSwitch);
    lister.setNamesOnly(true);
    lister.listing().archivePath = archive;
    lister.listing().password = password;
    ArchiveNames names;
    for (int tries = 0; tries < 2; ++tries) {
        lister.Batch();
        if (lister.listing().status != ListStatus::EngineSwitched)
            break;
    }
    const ListingPass& pass = lister.lastPass();
    if (lister.listing().status == ListStatus::Opened && pass.treeComplete) {
        names.known = true;
        names.entries = pass.entryCount;
    }
    // Unsafe names seen before a log was cut short still count.
    names.unsafe = pass.unsafeNames;
    qCDebug(lcListing) << "names of" << archive << (names.known ? "read:" : "not read:")
                       << names.entries << "entries," << names.unsafe.size() << "unsafe";
    return names;
}

QString UnsafeExtractionProblem(const ArchiveNames& names) {
    if (names.unsafe.isEmpty())
        return QString();
    if (names.known && names.unsafe.size() >= names.entries)
        return NothingSafeMessage(names.unsafe);
    if (!LeftOutFits(names.unsafe))
        return TooManyUnsafeMessage(names.unsafe.size());
    return QString();
}

QStringList UnsafeNamesTaken(const QStringList& names, const QStringList& patterns) {
    QStringList usable;
    for (const QString& p : patterns) {
        if (!TrimBlanks(p).isEmpty())
            usable << p;
    }
    if (usable.isEmpty())
        return names;
    QStringList taken;
    for (const QString& name : names) {
        for (const QString& p : usable) {
            if (takes(p, name)) {
                taken << name;
                break;
            }
        }
    }
    return taken;
}

} // namespace quovara
