// The code pages the stand-in plays. Run by the stand-in launcher under a locale, it behaves as
// the real engine does under wine (QUOVARA_STANDIN_CODEPAGES="<oem>,<ansi>", for example
// "866,1251"): the names it reads from its command line or the disk pass through the ANSI code
// page, where a letter that code page lacks becomes "?"; it keeps names in the OEM code page
// (letters that one lacks become "?" too), stores them in its archives as OEM bytes, writes its
// console output and logs in OEM, and reads list files in OEM. Without the variable it works in
// UTF-8 throughout, as a Linux program.
#pragma once

#include <string>

namespace standin {

struct CodePages {
    bool active = false;
    int oem = 0;
    int ansi = 0;
};

// From QUOVARA_STANDIN_CODEPAGES, read once.
const CodePages& codePages();

// A name (UTF-8) as the engine holds it after reading it: through the ANSI code page, then
// kept in the OEM one. Unchanged without code pages.
std::string asEngineName(const std::string& utf8);

// Console and log text (UTF-8) as the engine writes it: OEM bytes.
std::string toOem(const std::string& utf8);
// OEM bytes (a stored name, a list file line) as UTF-8.
std::string fromOem(const std::string& bytes);
// A password's bytes as the engine uses them: ANSI.
std::string toAnsi(const std::string& utf8);

} // namespace standin
