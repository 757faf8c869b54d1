// Text as the engine writes and reads it. The real engine is a Windows console program: under
// wine its logs, console output and stored names are in the OEM code page of the locale it runs
// under (437, 852, 866, 932 ...), and the names it reads from its command line or the disk pass
// through the ANSI code page of that locale (1252, 1250, 1251, 932 ...). A native engine (the
// stand-in run directly) writes the locale's encoding, UTF-8.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

namespace quovara {

// One code page: single-byte (437, 866, 1251 ...), double-byte (932, 936, 949, 950: a lead
// byte and a second byte that may be any byte from 0x40 up, 0x5C "\" included) or UTF-8.
// Cheap to copy; the tables behind it are made once per code page and never change, so one
// codec can be used from several threads.
class EngineCodec {
public:
    // Code page 437, the engine's text under an English (United States) locale.
    EngineCodec();
    static EngineCodec Cp437() { return ForCodePage(437); }
    static EngineCodec Utf8() { return ForCodePage(65001); }
    // The codec of a Windows code page number (65001 is UTF-8). A code page that this system
    // cannot convert gives an invalid codec that decodes bytes as code page 437 would and
    // encodes nothing (isValid() false).
    static EngineCodec ForCodePage(int number);

    int number() const { return number_; }
    bool isValid() const { return valid_; }
    bool isUtf8() const { return number_ == 65001; }

    QString decode(const char* data, qsizetype size) const;
    QString decode(const QByteArray& bytes) const {
        return decode(bytes.constData(), bytes.size());
    }
    // The bytes of `text`; "?" for each character the code page lacks.
    QByteArray encode(const QString& text) const;
    // True when every character of `text` has bytes in the code page, so that it comes back
    // unchanged from encode and decode.
    bool canEncode(const QString& text) const;
    // The characters of `text` that the code page lacks, each once, in their order.
    QString lacking(const QString& text) const;

    bool operator==(const EngineCodec& other) const { return number_ == other.number_; }

    struct Tables;

private:
    EngineCodec(int number, int);

    int number_ = 437;
    bool valid_ = true;
    std::shared_ptr<const Tables> tables_;
};

QString FromCp437(const char* data, qsizetype size);
inline QString FromCp437(const QByteArray& bytes) {
    return FromCp437(bytes.constData(), bytes.size());
}

inline QString DecodeEngineText(const char* data, qsizetype size, const EngineCodec& codec) {
    return codec.decode(data, size);
}
inline QString DecodeEngineText(const QByteArray& bytes, const EngineCodec& codec) {
    return codec.decode(bytes);
}

// Splits engine text into lines: a line ends at CR or CR LF, never at a lone LF; the last,
// unfinished line counts too.
QStringList SplitEngineLines(const QString& text);

// Splits text into lines at CR LF, CR or LF alike (logs and list files written by other tools);
// the last, unfinished line counts too.
QStringList SplitAnyLineEnds(const QString& text);

} // namespace quovara
