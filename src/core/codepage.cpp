#include "codepage.h"

#include "logging.h"

#include <QHash>
#include <QMutex>

#include <vector>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#include <iconv.h>
#endif

namespace quovara {

// Decoding: a character for every single byte, and for double-byte code pages a character for
// every lead byte and second byte. Encoding: the bytes of every character of the Basic
// Multilingual Plane the code page has (no code page here has characters beyond it).
struct EngineCodec::Tables {
    static constexpr char16_t kNone = 0xFFFF;
    // Single bytes; kNone for a lead byte or an unassigned byte.
    char16_t single[256];
    bool lead[256] = {};
    // Double bytes, index lead * 256 + second; empty for single-byte code pages.
    std::vector<char16_t> pairs;
    // Bytes of a character: 0 none, 0x10000 | byte, 0x20000 | lead << 8 | second.
    std::vector<quint32> bytesOf;
};

namespace {

constexpr quint32 kSingle = 0x10000;
constexpr quint32 kDouble = 0x20000;

// The converter's name for a Windows code page on this system.
QByteArray converterName(int number) {
    if (number == 874)
        return "WINDOWS-874";
    return "CP" + QByteArray::number(number);
}

#ifdef Q_OS_WIN
// What the system makes of `size` bytes: one character, or none when they are no character
// (or only the start of one).
char16_t decodeOne(int number, const char* bytes, int size, bool* incomplete) {
    wchar_t out[4];
    *incomplete = false;
    if (size == 1 && IsDBCSLeadByteEx(UINT(number), BYTE(bytes[0]))) {
        *incomplete = true;
        return EngineCodec::Tables::kNone;
    }
    const int n = MultiByteToWideChar(UINT(number), MB_ERR_INVALID_CHARS, bytes, size, out, 4);
    return n == 1 ? char16_t(out[0]) : EngineCodec::Tables::kNone;
}
#else
char16_t decodeOne(iconv_t cd, const char* bytes, size_t size, bool* incomplete) {
    char32_t out[4];
    char* in = const_cast<char*>(bytes);
    size_t inLeft = size;
    char* outPtr = reinterpret_cast<char*>(out);
    size_t outLeft = sizeof out;
    iconv(cd, nullptr, nullptr, nullptr, nullptr);
    const size_t r = iconv(cd, &in, &inLeft, &outPtr, &outLeft);
    *incomplete = r == size_t(-1) && errno == EINVAL;
    const size_t produced = (sizeof out - outLeft) / sizeof(char32_t);
    if (r == size_t(-1) || inLeft != 0 || produced != 1 || out[0] > 0xFFFD)
        return EngineCodec::Tables::kNone;
    return char16_t(out[0]);
}
#endif

std::shared_ptr<const EngineCodec::Tables> makeTables(int number) {
    auto t = std::make_shared<EngineCodec::Tables>();
#ifdef Q_OS_WIN
    CPINFO info;
    if (!GetCPInfo(UINT(number), &info))
        return nullptr;
    auto one = [number](const char* b, int n, bool* incomplete) {
        return decodeOne(number, b, n, incomplete);
    };
#else
    const iconv_t cd = iconv_open("UTF-32LE", converterName(number).constData());
    if (cd == iconv_t(-1))
        return nullptr;
    auto one = [cd](const char* b, size_t n, bool* incomplete) {
        return decodeOne(cd, b, n, incomplete);
    };
#endif
    bool doubleByte = false;
    for (int b = 0; b < 256; ++b) {
        const char byte = char(b);
        bool incomplete = false;
        t->single[b] = one(&byte, 1, &incomplete);
        t->lead[b] = incomplete && b >= 0x80;
        doubleByte = doubleByte || t->lead[b];
    }
    t->bytesOf.assign(0x10000, 0);
    if (doubleByte) {
        t->pairs.assign(0x10000, EngineCodec::Tables::kNone);
        for (int l = 0x80; l < 256; ++l) {
            if (!t->lead[l])
                continue;
            for (int s = 0x40; s < 256; ++s) {
                const char pair[2] = {char(l), char(s)};
                bool incomplete = false;
                const char16_t c = one(pair, 2, &incomplete);
                t->pairs[size_t(l * 256 + s)] = c;
                if (c != EngineCodec::Tables::kNone && t->bytesOf[c] == 0)
                    t->bytesOf[c] = kDouble | quint32(l << 8 | s);
            }
        }
    }
    // Single bytes win over pairs for the same character.
    for (int b = 255; b >= 0; --b) {
        const char16_t c = t->single[b];
        if (c != EngineCodec::Tables::kNone)
            t->bytesOf[c] = kSingle | quint32(b);
    }
#ifndef Q_OS_WIN
    iconv_close(cd);
#endif
    return t;
}

// One set of tables per code page for the whole program.
std::shared_ptr<const EngineCodec::Tables> tablesFor(int number, bool* valid) {
    static QMutex mutex;
    static QHash<int, std::shared_ptr<const EngineCodec::Tables>> made;
    static QHash<int, bool> unavailable;
    const QMutexLocker lock(&mutex);
    *valid = true;
    if (const auto it = made.constFind(number); it != made.constEnd())
        return *it;
    if (!unavailable.contains(number)) {
        if (auto t = makeTables(number)) {
            made.insert(number, t);
            return t;
        }
        qCDebug(lcRunner) << "code page" << number << "cannot be converted on this system";
        unavailable.insert(number, true);
    }
    *valid = false;
    return nullptr;
}

} // namespace

EngineCodec::EngineCodec() : EngineCodec(437, 0) {}

EngineCodec::EngineCodec(int number, int) : number_(number) {
    if (number == 65001)
        return;
    bool valid = true;
    tables_ = tablesFor(number, &valid);
    if (!valid) {
        bool cp437 = true;
        tables_ = tablesFor(437, &cp437);
    }
    valid_ = valid && tables_ != nullptr;
}

EngineCodec EngineCodec::ForCodePage(int number) {
    return EngineCodec(number, 0);
}

QString EngineCodec::decode(const char* data, qsizetype size) const {
    if (number_ == 65001)
        return QString::fromUtf8(data, size);
    if (!tables_)
        return QString::fromLatin1(data, size);
    const Tables& t = *tables_;
    QString out(size, Qt::Uninitialized);
    QChar* d = out.data();
    qsizetype n = 0;
    for (qsizetype i = 0; i < size; ++i) {
        const unsigned char b = static_cast<unsigned char>(data[i]);
        if (t.lead[b] && !t.pairs.empty()) {
            if (i + 1 < size) {
                const unsigned char s = static_cast<unsigned char>(data[i + 1]);
                const char16_t c = t.pairs[size_t(b * 256 + s)];
                if (c != Tables::kNone) {
                    d[n++] = QChar(c);
                    ++i;
                    continue;
                }
            }
            // A lead byte without its second byte (a line cut in the middle of a letter).
            d[n++] = QChar(QChar::ReplacementCharacter);
            continue;
        }
        const char16_t c = t.single[b];
        d[n++] = c == Tables::kNone ? QChar(b < 0x80 ? char16_t(b) : char16_t(0xFFFD)) : QChar(c);
    }
    out.truncate(n);
    return out;
}

QByteArray EngineCodec::encode(const QString& text) const {
    if (number_ == 65001)
        return text.toUtf8();
    QByteArray out;
    out.reserve(text.size());
    for (const QChar c : text) {
        const quint32 v = valid_ && tables_ && !c.isSurrogate() ? tables_->bytesOf[c.unicode()]
                          : c.unicode() < 0x80                  ? (kSingle | c.unicode())
                                                                : 0;
        if (v & kDouble) {
            out.append(char((v >> 8) & 0xFF));
            out.append(char(v & 0xFF));
        } else if (v & kSingle) {
            out.append(char(v & 0xFF));
        } else {
            out.append('?');
        }
    }
    return out;
}

QString EngineCodec::lacking(const QString& text) const {
    QString missing;
    if (number_ == 65001) {
        // Only a broken surrogate pair has no UTF-8.
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar c = text[i];
            if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
                ++i;
                continue;
            }
            if (c.isSurrogate() && !missing.contains(c))
                missing += c;
        }
        return missing;
    }
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            const QString pair = text.mid(i, 2);
            if (!missing.contains(pair))
                missing += pair;
            ++i;
            continue;
        }
        const bool known = c.unicode() < 0x80 ? true
                           : valid_ && tables_ && !c.isSurrogate()
                               ? tables_->bytesOf[c.unicode()] != 0
                               : false;
        if (!known && !missing.contains(c))
            missing += c;
    }
    return missing;
}

bool EngineCodec::canEncode(const QString& text) const {
    return lacking(text).isEmpty();
}

QString FromCp437(const char* data, qsizetype size) {
    return EngineCodec::Cp437().decode(data, size);
}

QStringList SplitAnyLineEnds(const QString& text) {
    QStringList lines;
    qsizetype start = 0;
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = text[i];
        if (c != QLatin1Char('\r') && c != QLatin1Char('\n'))
            continue;
        lines.append(text.mid(start, i - start));
        if (c == QLatin1Char('\r') && i + 1 < n && text[i + 1] == QLatin1Char('\n'))
            ++i;
        start = i + 1;
    }
    if (start < n)
        lines.append(text.mid(start));
    return lines;
}

QStringList SplitEngineLines(const QString& text) {
    QStringList lines;
    qsizetype start = 0;
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        if (text[i] == QLatin1Char('\r')) {
            lines.append(text.mid(start, i - start));
            if (i + 1 < n && text[i + 1] == QLatin1Char('\n'))
                ++i;
            start = i + 1;
        }
    }
    if (start < n)
        lines.append(text.mid(start));
    return lines;
}

} // namespace quovara
