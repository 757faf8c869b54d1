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

QString HostPathsInText(const QString& text) {
    QString out;
    out.reserve(text.size());
    const qsizetype n = text.size();
    qsizetype i = 0;
    while (i < n) {
        const bool atPath = i + 2 < n &&
                            (text[i] == QLatin1Char('Z') || text[i] == QLatin1Char('z')) &&
                            text[i + 1] == QLatin1Char(':') && text[i + 2] == QLatin1Char('\\') &&
                            (i == 0 || !text[i - 1].isLetterOrNumber());
        if (!atPath) {
            out += text[i++];
            continue;
        }
        i += 2; // the drive; the backslash after it becomes the root
        while (i < n && text[i] != QLatin1Char('"') &&
               !(text[i] == QLatin1Char(' ') && i + 1 < n && text[i + 1] == QLatin1Char(' '))) {
            out += text[i] == QLatin1Char('\\') ? QLatin1Char('/') : text[i];
            ++i;
        }
    }
    return out;
}

} // namespace quovara
