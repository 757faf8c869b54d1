// Text as the engine writes it: code page 437, lines ended by CR or CR LF.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quovara {

QString FromCp437(const char* data, qsizetype size);
inline QString FromCp437(const QByteArray& bytes) {
    return FromCp437(bytes.constData(), bytes.size());
}

// Splits engine text into lines: a line ends at CR or CR LF, never at a lone LF; the last,
// unfinished line counts too.
QStringList SplitEngineLines(const QString& text);

} // namespace quovara
