#include "scriptexec.h"

namespace quovara {

namespace {

bool isBlank(QChar c) {
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

// Reads one word starting at i (quotes group and are removed); stops at a blank or, outside
// quotes, at '>'. Returns the index after the word.
int readWord(const QString& line, int i, QString& word, bool stopAtRedirect) {
    bool quoted = false;
    while (i < line.size()) {
        const QChar c = line[i];
        if (c == QLatin1Char('"')) {
            quoted = !quoted;
            ++i;
            continue;
        }
        if (!quoted && (isBlank(c) || (stopAtRedirect && c == QLatin1Char('>'))))
            break;
        word.append(c);
        ++i;
    }
    return i;
}

} // namespace

ParsedJob SplitCommandLine(const QString& line) {
    ParsedJob job;
    int i = 0;
    while (i < line.size()) {
        if (isBlank(line[i])) {
            ++i;
            continue;
        }
        if (line[i] == QLatin1Char('>')) {
            ++i;
            job.appendOutput = false;
            if (i < line.size() && line[i] == QLatin1Char('>')) {
                job.appendOutput = true;
                ++i;
            }
            while (i < line.size() && isBlank(line[i]))
                ++i;
            QString target;
            i = readWord(line, i, target, true);
            job.outputTarget = target;
            continue;
        }
        QString word;
        i = readWord(line, i, word, true);
        job.arguments.append(word);
    }
    return job;
}

ParsedJob ParseJobScript(const QByteArray& script) {
    // Scripts are 8-bit text; lines end in CR LF (a lone CR or LF is accepted too).
    const QString text = QString::fromLatin1(script);
    QStringList lines;
    QString current;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
            if (c == QLatin1Char('\r') && i + 1 < text.size() && text[i + 1] == QLatin1Char('\n'))
                ++i;
            lines.append(current);
            current.clear();
        } else {
            current.append(c);
        }
    }
    lines.append(current);

    QList<QPair<QString, QString>> environment;
    QString command;
    for (const QString& raw : lines) {
        const QString trimmed = raw.trimmed();
        if (trimmed.isEmpty())
            continue;
        const QString lower = trimmed.toLower();
        if (lower == QLatin1String("@echo off") || lower == QLatin1String("cls"))
            continue;
        if (lower.startsWith(QLatin1String("set "))) {
            // The value keeps its blanks: "set uharc_opt= -d2" sets " -d2".
            int start = 0;
            while (start < raw.size() && isBlank(raw[start]))
                ++start;
            const QString assignment = raw.mid(start + 4);
            const int eq = assignment.indexOf(QLatin1Char('='));
            if (eq > 0) {
                environment.append({assignment.left(eq).trimmed(), assignment.mid(eq + 1)});
                continue;
            }
        }
        command = raw;
    }
    ParsedJob job = SplitCommandLine(command);
    job.environment = environment;
    return job;
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
