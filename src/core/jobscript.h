// JobScripts: the small batch files that every engine run goes through. They are always written
// in one exact shape (CR LF line ends, a fixed preamble, the command line last), whatever runs
// them afterwards.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quovara {

enum class Preamble {
    // "cls", "@echo off": the list script.
    List,
    // "@echo off", "cls", "set uharc_opt= -d2": add, extract, test and single-item scripts.
    Job,
};

enum class LastLine {
    // The command line is the end of the file (every script but one).
    NoLineEnd,
    // The command line ends with CR LF (the test script).
    LineEnd,
};

// The exact bytes of a script: preamble lines ended by CR LF, then the command pieces written
// one after the other with nothing between them. Text goes out in the 8-bit code page.
QByteArray JobScriptBytes(Preamble preamble, const QStringList& commandPieces,
                          LastLine last = LastLine::NoLineEnd);

// Writes the script (replacing an older one). False when the file cannot be written.
bool WriteJobScript(const QString& path, Preamble preamble, const QStringList& commandPieces,
                    LastLine last = LastLine::NoLineEnd);

// The 8-bit code page used for scripts and settings records: Latin-1, '?' for what it lacks.
QByteArray ToAnsi(const QString& text);

} // namespace quovara
