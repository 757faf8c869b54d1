// Convert: each archive is listed (its password asked for as everywhere), extracted by the
// engine into a private staging folder through the Extract progress window, checked entry by
// entry against its listing and written into an open format (engine/convert.h), beside
// itself or into a chosen folder, under a free name. The staging folder goes at the end, on a
// failure and on a stop. Messages name the archive they are about; with several archives a
// last message names those not converted.
#pragma once

#include "engine/convertformat.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace quovara {

class frmApri;

namespace convert_job {
inline constexpr char NoPassword[] =
    QT_TRANSLATE_NOOP("Convert", "Nothing was converted: no password was given.");
inline constexpr char NotProtected[] =
    QT_TRANSLATE_NOOP("Convert", "The new archive will not be protected by a password.");
inline constexpr char CannotWrite[] = QT_TRANSLATE_NOOP("Convert", "Nothing was converted: %1.");
// %1 names the entries.
inline constexpr char UnsafeNames[] = QT_TRANSLATE_NOOP(
    "Convert",
    "Nothing was converted: these entries have names that would leave any folder they were "
    "extracted to, so the archive cannot be converted whole:\n%1");
inline constexpr char NotConverted[] = QT_TRANSLATE_NOOP("Convert", "Nothing was converted. %1");
// %1 is the list of archives, one per line.
inline constexpr char Summary[] =
    QT_TRANSLATE_NOOP("Convert", "These archives were not converted:\n\n%1");
} // namespace convert_job

struct ConvertRun {
    ConvertFormat format = ConvertFormat::Zip;
    QStringList archives;
    // Where the new archives go; empty: beside each archive.
    QString destinationFolder;
    // The password of the first archive, when the caller knows it (the archive open in the
    // main window); asked for otherwise.
    QString knownPassword;
    // Filled in: the new archives made.
    QStringList made;
};

// Runs the conversion with `main`'s engine and prompter. Returns the exit status: 0 when every
// archive was converted and checked, 1 otherwise.
int RunConvert(frmApri& main, ConvertRun& run);

} // namespace quovara
