#include "jobscript.h"

#include "logging.h"

#include <QFile>

namespace quovara {

QByteArray ToAnsi(const QString& text) {
    QByteArray out;
    out.reserve(text.size());
    for (QChar c : text)
        out.append(c.unicode() < 256 ? char(c.unicode()) : '?');
    return out;
}

QByteArray JobScriptBytes(Preamble preamble, const QStringList& commandPieces, LastLine last) {
    QByteArray out;
    if (preamble == Preamble::List)
        out += "cls\r\n@echo off\r\n";
    else
        out += "@echo off\r\ncls\r\nset uharc_opt= -d2\r\n";
    for (const QString& piece : commandPieces)
        out += ToAnsi(piece);
    if (last == LastLine::LineEnd)
        out += "\r\n";
    return out;
}

bool WriteJobScript(const QString& path, Preamble preamble, const QStringList& commandPieces,
                    LastLine last) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        qCDebug(lcRunner) << "cannot write job script" << path << file.errorString();
        return false;
    }
    const QByteArray bytes = JobScriptBytes(preamble, commandPieces, last);
    const bool ok = file.write(bytes) == bytes.size();
    file.close();
    return ok;
}

} // namespace quovara
