// What an extraction must leave out: the unsafe names of an archive (see unsafenames.h), read
// from the listing shown or, for an archive that is not shown, by a list job that makes no tree.
#pragma once

#include "versionswitch.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace quovara {

struct ArchiveNames {
    // The listing was read to its end: `entries` and `unsafe` are complete.
    bool known = false;
    qint64 entries = 0;
    QStringList unsafe;
};

// Lists `archive` (with `password` when not empty) without making a tree, taking the other
// engine version when the engine asks for it (the switch stays for the job that follows, whose
// window undoes it). Nothing is shown to the user: an archive the engine cannot list comes back
// not known, and the extraction's own window reports the engine's error.
ArchiveNames ReadArchiveNames(const QString& archive, const QString& password,
                              EngineSwitchState& engineSwitch);

// Why an extraction of an archive with these names must not run, in words for the user; empty
// when it may (leaving the unsafe names out): every entry is unsafe, or the exclusions of the
// unsafe ones do not fit on the engine's command line.
QString UnsafeExtractionProblem(const ArchiveNames& names);

// The unsafe names among `names` that the extraction patterns would take: a pattern with a "\"
// is matched against the whole stored name, any other against its last part ("*" and "?",
// without regard to case; "a\*.*" takes everything below "a"). No pattern takes them all.
QStringList UnsafeNamesTaken(const QStringList& names, const QStringList& patterns);

} // namespace quovara
