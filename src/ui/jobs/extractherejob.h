// Extract Here: each archive named on the command line is extracted beside itself, one after
// another, each with its progress window, never into or over anything that exists (see
// engine/extracthere.h). A protected archive asks for its password; a cancelled prompt skips
// it. Messages name the archive they are about. At the end a summary names the archives that
// were not extracted.
#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace quovara {

class frmApri;

namespace extract_here {
// %1 is the archive's name, %2 the message about it.
inline constexpr char AboutArchive[] = QT_TRANSLATE_NOOP("ExtractHere", "%1:\n%2");
inline constexpr char NotFound[] = QT_TRANSLATE_NOOP("ExtractHere", "There is no such file.");
inline constexpr char NotAnArchive[] =
    QT_TRANSLATE_NOOP("ExtractHere", "This is not a UHARC archive (.uha).");
inline constexpr char CannotWrite[] =
    QT_TRANSLATE_NOOP("ExtractHere", "Nothing was extracted: %1.");
inline constexpr char NoPassword[] =
    QT_TRANSLATE_NOOP("ExtractHere", "Nothing was extracted: no password was given.");
inline constexpr char NotPlaced[] =
    QT_TRANSLATE_NOOP("ExtractHere", "The files were extracted but %1; nothing was left behind.");
// %1 is the list of archives, one per line.
inline constexpr char Summary[] =
    QT_TRANSLATE_NOOP("ExtractHere", "These archives were not extracted:\n\n%1");
} // namespace extract_here

// Runs Extract Here for `archives` with `main`'s engine and prompter; `main` stays hidden.
// Returns the exit status: 0 when every archive was extracted, 1 otherwise.
int RunExtractHere(frmApri& main, const QStringList& archives);

} // namespace quovara
