// Stored names that would place an entry outside the folder it is extracted into. An archive is
// untrusted input: the engine stores whatever path it is given ("..\..\x", "C:\x", "\tmp\x",
// a Linux name holding backslashes) and, when extracting, writes each entry where its stored
// name points. One rule decides which names are unsafe; the mirror tree shows such entries under
// a safe name, and no extraction ever hands one to the engine.
#pragma once

#include "core/enginelocale.h"

#include <QString>
#include <QStringList>

namespace quovara {

// True when `stored` (a decoded stored name) would climb out of any folder: split at "\" and
// "/", a part is "..", or a part holds ":" (a drive, or a name no Windows file system can hold),
// or the name starts with a separator. Dots inside names ("a..b", "...") are ordinary letters.
bool IsUnsafeEntryName(const QString& stored);

// Test seam: with the check off, IsUnsafeEntryName says false for every name, so that tests
// can show that the confinement of extractions holds by itself. On by default; never switched
// off by the program.
void SetUnsafeNameCheckForTesting(bool on);

// The one-part name under which an unsafe entry is shown at the top of the mirror tree: its
// stored name with "\" and "/" shown as "∖" and ":" as "꞉", so that it reads like the stored
// name and can never be taken for a path.
QString UnsafeShownName(const QString& stored);

// How many unsafe names a message names before it says "and n more".
inline constexpr int kUnsafeNamesNamed = 5;

// The stored names as a message lists them: the first few, one per line, then "… and n more".
QString UnsafeNamesList(const QStringList& names, qsizetype count);

// Said once when a listing holds unsafe names: they are shown and never extracted.
QString UnsafeEntriesMessage(const QString& archive, const QStringList& names, qsizetype count);

// Said at the end of an extraction that left unsafe entries out.
QString LeftOutMessage(const QStringList& names);

// Said instead of running an extraction when every entry it could take is unsafe.
QString NothingSafeMessage(const QStringList& names);

// The engine takes unsafe names out of an extraction only one by one, on its command line
// (a list of exclusions in a file is not read as such), and a Windows command line holds at
// most 32,767 characters: true when exclusions for all of `names` fit in the room kept for them.
inline constexpr qsizetype kLeftOutRoom = 24000;
bool LeftOutFits(const QStringList& names);
// Said instead of running an extraction whose unsafe names do not fit.
QString TooManyUnsafeMessage(qsizetype count);

// Why an Add of `source` must not run, or empty: a file or folder whose name holds "\" or ":"
// (possible on Linux) would be stored as another path, one that may climb out of a folder when
// extracted. The source itself is looked at, and for a folder what it holds (below its
// sub-folders too when `recurse`). For a Windows `engine`, a name inside the folder with a
// letter the engine's code pages lack is refused too, before the engine would fail on it
// ("Can't read file"): the message names the letters and a locale that has them.
QString AddSourceProblem(const QString& source, bool recurse,
                         const EngineTextCodecs& engine = EngineTextCodecs());

// Said when the user asks for one unsafe entry by name.
QString UnsafeItemMessage(const QString& stored);

} // namespace quovara
