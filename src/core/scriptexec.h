// What a JobScript asks for (program, arguments, variables, output target), so that it can be
// run without a batch interpreter and without ever handing the command line to a shell.
#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

namespace quovara {

struct ParsedJob {
    // Variables set by "set NAME=VALUE" preamble lines, in order (VALUE as written, blanks
    // included).
    QList<QPair<QString, QString>> environment;
    // The command line split into arguments; the first one is the program.
    QStringList arguments;
    // For each argument, what its value is ("archive", "destination folder", ...: the field of
    // the first value in it); empty for fixed text alone, or when the line was not built from
    // pieces.
    QStringList argumentFields;
    // Target of ">" (standard output, created or truncated) or ">>" (appended); empty: none.
    QString outputTarget;
    bool appendOutput = false;
    // The folder the command runs in ("cd /d" line of the script); empty: the caller's choice.
    QString workingFolder;

    bool isValid() const { return !arguments.isEmpty(); }
};

// Splits a command line of fixed text with the Windows rules that matter for our scripts:
// blanks separate arguments, double quotes group and are removed (-pw"a b" is one argument
// "-pwa b"), every other character, backslashes included, stands for itself. Outside quotes,
// ">" or ">>" takes the next word as the output target. Nothing else (&, |, %, $, ;) means
// anything.
ParsedJob SplitCommandLine(const QString& line);

// Turns an absolute host path into the form a Windows program under the launcher sees
// ("/a/b" -> "Z:\a\b"), also after a switch prefix ("-t/a", "-lg/a", "@/a", "!/a").
// Other arguments are returned unchanged.
QString ToLauncherPath(const QString& argument);

// The text with every path in the launcher's form turned back into the host path the user
// knows ("Z:\home\anna\a.uha" -> "/home/anna/a.uha"), for texts that are shown, never for
// the columns that are read. A path starts at "Z:\" (not inside a word) and runs to a double
// quote, two blanks in a row, or the end of the text.
QString HostPathsInText(const QString& text);

} // namespace quovara
