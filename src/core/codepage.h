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

// True when every character of `text` has a byte in code page 437 (what the real engine, a
// Windows console program, reads and writes).
bool RepresentableInCp437(const QString& text);

// The bytes of `text` in code page 437; '?' for a character it lacks.
QByteArray ToCp437(const QString& text);

// How the active engine writes its logs and console output: the real engine (a Windows
// program) in code page 437; a native engine (the stand-in) in the locale's encoding (UTF-8).
enum class EngineCodec { Cp437, Utf8 };
QString DecodeEngineText(const char* data, qsizetype size, EngineCodec codec);
inline QString DecodeEngineText(const QByteArray& bytes, EngineCodec codec) {
    return DecodeEngineText(bytes.constData(), bytes.size(), codec);
}

// The codec of the engine that a job started now would run: code page 437 for a Windows
// executable in the ProgramFolder, UTF-8 otherwise.
EngineCodec ActiveEngineCodec();

// Splits engine text into lines: a line ends at CR or CR LF, never at a lone LF; the last,
// unfinished line counts too.
QStringList SplitEngineLines(const QString& text);

// Splits text into lines at CR LF, CR or LF alike (logs and list files written by other tools);
// the last, unfinished line counts too.
QStringList SplitAnyLineEnds(const QString& text);

} // namespace quovara
