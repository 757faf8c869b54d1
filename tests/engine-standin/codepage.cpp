#include "codepage.h"

#include <cerrno>
#include <cstdlib>
#include <iconv.h>

namespace standin {

namespace {

std::string converterName(int page) {
    return page == 874 ? "WINDOWS-874" : "CP" + std::to_string(page);
}

// Converts with iconv; a character that cannot be converted becomes "?" (one per character,
// as the Windows conversions do it without a best fit).
std::string convert(const std::string& in, const std::string& to, const std::string& from) {
    iconv_t cd = iconv_open(to.c_str(), from.c_str());
    if (cd == iconv_t(-1))
        return in;
    std::string out;
    char* src = const_cast<char*>(in.data());
    size_t left = in.size();
    char buf[256];
    while (left > 0) {
        char* dst = buf;
        size_t room = sizeof buf;
        const size_t r = iconv(cd, &src, &left, &dst, &room);
        out.append(buf, size_t(dst - buf));
        if (r != size_t(-1))
            continue;
        if (errno == E2BIG)
            continue;
        // EILSEQ or EINVAL: one character cannot be converted (or is cut short); skip it
        // whole and put "?" in its place.
        std::size_t skip = 1;
        if (from == "UTF-8") {
            const unsigned char c = static_cast<unsigned char>(*src);
            skip = c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : c >= 0xC0 ? 2 : 1;
        }
        if (skip > left)
            skip = left;
        src += skip;
        left -= skip;
        if (to == "UTF-8")
            out += "?";
        else
            out += convert("?", to, "UTF-8");
        iconv(cd, nullptr, nullptr, nullptr, nullptr);
    }
    iconv_close(cd);
    return out;
}

CodePages readCodePages() {
    CodePages c;
    const char* v = std::getenv("QUOVARA_STANDIN_CODEPAGES");
    if (!v || !*v)
        return c;
    char* end = nullptr;
    c.oem = static_cast<int>(std::strtol(v, &end, 10));
    c.ansi = end && *end == ',' ? static_cast<int>(std::strtol(end + 1, nullptr, 10)) : c.oem;
    c.active = c.oem > 0 && c.ansi > 0;
    return c;
}

} // namespace

const CodePages& codePages() {
    static const CodePages pages = readCodePages();
    return pages;
}

std::string asEngineName(const std::string& utf8) {
    const CodePages& c = codePages();
    if (!c.active)
        return utf8;
    const std::string ansi = convert(utf8, converterName(c.ansi), "UTF-8");
    const std::string back = convert(ansi, "UTF-8", converterName(c.ansi));
    return fromOem(toOem(back));
}

std::string toOem(const std::string& utf8) {
    const CodePages& c = codePages();
    return c.active ? convert(utf8, converterName(c.oem), "UTF-8") : utf8;
}

std::string fromOem(const std::string& bytes) {
    const CodePages& c = codePages();
    return c.active ? convert(bytes, "UTF-8", converterName(c.oem)) : bytes;
}

std::string toAnsi(const std::string& utf8) {
    const CodePages& c = codePages();
    return c.active ? convert(utf8, converterName(c.ansi), "UTF-8") : utf8;
}

} // namespace standin
