#include "utf8.h"

#include <clocale>
#include <cwctype>
#include <locale.h>

namespace standin {

namespace {

constexpr char32_t kRawByteBase = 0xDC80;

// The length of a well-formed sequence at s[i], or 0.
std::size_t sequenceLength(const std::string& s, std::size_t i, char32_t& cp) {
    const auto b = [&](std::size_t k) { return static_cast<unsigned char>(s[i + k]); };
    const auto cont = [&](std::size_t k) { return i + k < s.size() && (b(k) & 0xC0) == 0x80; };
    const unsigned char c = b(0);
    if (c < 0x80) {
        cp = c;
        return 1;
    }
    if (c >= 0xC2 && c <= 0xDF && cont(1)) {
        cp = (c & 0x1Fu) << 6 | (b(1) & 0x3Fu);
        return 2;
    }
    if (c >= 0xE0 && c <= 0xEF && cont(1) && cont(2)) {
        cp = (c & 0x0Fu) << 12 | (b(1) & 0x3Fu) << 6 | (b(2) & 0x3Fu);
        // Overlong forms and UTF-16 surrogates are not characters.
        return cp < 0x800 || (cp >= 0xD800 && cp <= 0xDFFF) ? 0 : 3;
    }
    if (c >= 0xF0 && c <= 0xF4 && cont(1) && cont(2) && cont(3)) {
        cp = (c & 0x07u) << 18 | (b(1) & 0x3Fu) << 12 | (b(2) & 0x3Fu) << 6 | (b(3) & 0x3Fu);
        return cp < 0x10000 || cp > 0x10FFFF ? 0 : 4;
    }
    return 0;
}

// Case mapping of the C.UTF-8 locale, used without changing the program's own locale;
// where that locale is missing, only A-Z are folded.
locale_t caseLocale() {
    static locale_t loc = newlocale(LC_CTYPE_MASK, "C.UTF-8", static_cast<locale_t>(0));
    return loc;
}

} // namespace

std::u32string decodeUtf8(const std::string& s) {
    std::u32string out;
    out.reserve(s.size());
    for (std::size_t i = 0; i < s.size();) {
        char32_t cp = 0;
        std::size_t n = sequenceLength(s, i, cp);
        if (n == 0) {
            out.push_back(kRawByteBase + static_cast<unsigned char>(s[i]));
            ++i;
        } else {
            out.push_back(cp);
            i += n;
        }
    }
    return out;
}

std::string encodeUtf8(const std::u32string& s) {
    std::string out;
    out.reserve(s.size());
    for (char32_t cp : s) {
        if (cp >= kRawByteBase && cp <= kRawByteBase + 0xFF) {
            out.push_back(static_cast<char>(cp - kRawByteBase));
        } else if (cp < 0x80) {
            out.push_back(static_cast<char>(cp));
        } else if (cp < 0x800) {
            out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        } else if (cp < 0x10000) {
            out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        } else {
            out.push_back(static_cast<char>(0xF0 | (cp >> 18)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
            out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
        }
    }
    return out;
}

std::size_t charCount(const std::string& s) {
    return decodeUtf8(s).size();
}

std::u32string folded(const std::string& s) {
    std::u32string out = decodeUtf8(s);
    const locale_t loc = caseLocale();
    for (auto& cp : out) {
        if (cp >= 'A' && cp <= 'Z')
            cp += 'a' - 'A';
        else if (cp >= 0x80 && loc != static_cast<locale_t>(0) &&
                 !(cp >= kRawByteBase && cp <= kRawByteBase + 0xFF))
            cp = static_cast<char32_t>(towlower_l(static_cast<wint_t>(cp), loc));
    }
    return out;
}

} // namespace standin
