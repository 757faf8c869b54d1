#include "scriptexec.h"

#include "jobscript.h"

namespace quovara {

ParsedJob SplitCommandLine(const QString& line) {
    return SplitPieces(CommandPieces{Fragment(line)});
}

QString ToLauncherPath(const QString& argument) {
    static const char* const prefixes[] = {"-lg", "-t", "@", "!", ""};
    for (const char* prefix : prefixes) {
        const QString p = QString::fromLatin1(prefix);
        if (argument.startsWith(p) && argument.mid(p.size()).startsWith(QLatin1Char('/'))) {
            QString path = argument.mid(p.size());
            path.replace(QLatin1Char('/'), QLatin1Char('\\'));
            return p + QStringLiteral("Z:") + path;
        }
    }
    return argument;
}

} // namespace quovara
