// The program's command line: a bare archive path, or a request word ("extract", "add",
// "sfx") followed by two separator characters and a path.
#pragma once

#include <QString>
#include <QStringList>

namespace quovara {

struct CommandRequest {
    enum Kind { None, Archive, Extract, Add, Sfx };
    Kind kind = None;
    QString path;
};

// The command-line text: the program's arguments joined by single blanks. The desktop has
// already removed the quotes that a Windows shell would leave around the text, so nothing
// more is dropped here ("extract  /data/a.uha" asks for the Extract dialog on /data/a.uha).
QString CommandLineText(const QStringList& arguments);

// Classifies the text with case-sensitive wildcard matches. The path of a request word starts
// at position length-of-word + 3 (1-based).
CommandRequest ClassifyCommandLine(const QString& c);

// The folder part of a path (text before the last separator; a bare drive gets its separator
// back, the root stays the root).
QString FolderOf(const QString& path);

} // namespace quovara
