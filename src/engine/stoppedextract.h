// What an extraction that was stopped leaves behind. The engine writes each file under its
// final name and stamps it with its stored time only once it is complete, so a stop in the
// middle of a file leaves a truncated copy among the user's files. Its console output tells
// which file it was writing (the last "Extracting" progress line with no line of completion
// after it) and how many it finished; this removes the truncated copy and says what happened.
#pragma once

#include "core/codepage.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

namespace quovara {

// What the console output of an extraction says about its files.
struct ExtractTrail {
    int wholeFiles = 0; // files the engine reported complete
    // The name the engine showed for the file it was writing when it stopped, as it showed
    // it (its target folder included, backslashes as separators); empty when none.
    QString writing;
    // The name did not fit its column: `writing` holds only its end.
    bool writingCut = false;

    bool operator==(const ExtractTrail&) const = default;
};

// Reads the console lines (as SplitConsoleLines gives them) of an extract job.
ExtractTrail ReadExtractTrail(const QStringList& lines);

// Where the stopped job wrote and how it ran.
struct StoppedExtractJob {
    QString destination; // the target folder, or the folder the job ran in
    QString workingFolder;
    bool overwrite = false;
    bool underLauncher = false; // names are shown in the launcher's form ("Z:\...")
    QDateTime started;
};

// What was done about the file being written.
struct StoppedExtract {
    int wholeFiles = 0;
    QString removed;       // the incomplete file that was removed (host path)
    QString kept;          // the file named last was found complete and kept (host path)
    QString notFound;      // the file being written could not be found (its name as shown)
    QString notRemovedWhy; // the incomplete file could not be removed: why (with `removed` set)
    // The removed file had been one of the user's files that the engine was overwriting
    // (`replacedUnsure`: the file system keeps no creation time, and overwriting was on).
    bool replacedUsersFile = false;
    bool replacedUnsure = false;
};

// Finds the file the trail names on disk, removes it when it is incomplete (written to since
// the job started) and keeps it otherwise. A cut name is found by its end among the files
// below the destination written since the job started. Nothing outside the destination and
// the working folder is touched.
StoppedExtract CleanUpStoppedExtract(const ExtractTrail& trail, const StoppedExtractJob& job);

// The message that tells the user what the stop left.
QString StoppedExtractMessage(const StoppedExtract& result);

} // namespace quovara
