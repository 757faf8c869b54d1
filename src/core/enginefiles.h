// Engine files in the ProgramFolder. Their names were defined on a file system that ignores
// case ("Uharc.exe", "uharc.exe" and "UHARC.EXE" are one file). Here every look-up of an engine
// name finds the file whatever its case, and the active engine has the single canonical name
// "uharc.exe", whichever spelling a rename asks for.
#pragma once

#include <QString>

namespace quovara {

// True for the names that answer without regard to case: the active engine ("uharc.exe"),
// the stored versions ("Uharc<version>.fns") and the SFX stub ("SFX.exe").
bool IsEngineFileName(const QString& name);

// The name a file gets on disk: every spelling of "uharc.exe" becomes "uharc.exe".
QString CanonicalEngineFileName(const QString& name);

// The existing file in `folder` answering to `name` (exact match first, then the first entry
// equal without regard to case, for engine names only). Empty when there is none.
QString ResolveEngineFile(const QString& folder, const QString& name);

// Renames folder/from to folder/to with both names answering without regard to case.
// Fails (false, logged) when the source is missing or another file already answers to the
// target name; the files are then left as they were.
bool RenameEngineFile(const QString& folder, const QString& from, const QString& to);

// True when the file starts with the "MZ" signature of a Windows executable.
bool IsWindowsExecutable(const QString& path);

} // namespace quovara
