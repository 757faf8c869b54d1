#include "names.h"

#include "utf8.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <ctime>

namespace fs = std::filesystem;

namespace standin {

std::string lower(std::string s) {
    for (auto& c : s)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

std::string trim(const std::string& s) {
    auto b = s.find_first_not_of(" \t");
    if (b == std::string::npos)
        return {};
    auto e = s.find_last_not_of(" \t");
    return s.substr(b, e - b + 1);
}

std::string replaced(std::string s, char from, char to) {
    std::replace(s.begin(), s.end(), from, to);
    return s;
}

std::vector<std::string> splitPath(const std::string& s) {
    std::vector<std::string> parts;
    std::string cur;
    for (char c : s) {
        if (c == '\\' || c == '/') {
            parts.push_back(cur);
            cur.clear();
        } else {
            cur.push_back(c);
        }
    }
    parts.push_back(cur);
    return parts;
}

bool isDrive(const std::string& c) {
    return c.size() == 2 && c[1] == ':' && std::isalpha(static_cast<unsigned char>(c[0]));
}

std::string join(const std::vector<std::string>& parts, const std::string& sep) {
    std::string s;
    for (std::size_t i = 0; i < parts.size(); ++i)
        s += (i ? sep : "") + parts[i];
    return s;
}

std::string filePart(const std::string& stored) {
    auto pos = stored.find_last_of("\\/");
    return pos == std::string::npos ? stored : stored.substr(pos + 1);
}

bool hasWildcard(const std::string& s) {
    return s.find_first_of("*?") != std::string::npos;
}

bool wildMatch(const std::string& pattern, const std::string& text) {
    const std::u32string p = folded(pattern), s = folded(text);
    std::size_t pi = 0, si = 0, star = std::u32string::npos, resume = 0;
    while (si < s.size()) {
        if (pi < p.size() && p[pi] == U'*') {
            star = pi++;
            resume = si;
        } else if (pi < p.size() && (p[pi] == U'?' || p[pi] == s[si])) {
            ++pi;
            ++si;
        } else if (star != std::u32string::npos) {
            pi = star + 1;
            si = ++resume;
        } else {
            return false;
        }
    }
    while (pi < p.size() && p[pi] == U'*')
        ++pi;
    return pi == p.size();
}

bool nameMatches(const std::string& pattern, const std::string& stored) {
    std::string pat = replaced(trim(pattern), '/', '\\');
    while (pat.rfind(".\\", 0) == 0)
        pat.erase(0, 2);
    if (pat.empty())
        return false;
    std::string target =
        pat.find('\\') != std::string::npos ? replaced(stored, '/', '\\') : filePart(stored);
    if (wildMatch(pat, target))
        return true;
    if (pat.size() > 2 && pat.compare(pat.size() - 2, 2, ".*") == 0)
        return wildMatch(pat.substr(0, pat.size() - 2), target);
    return false;
}

bool anyMatches(const std::vector<std::string>& patterns, const std::string& stored) {
    return std::any_of(patterns.begin(), patterns.end(),
                       [&](const std::string& p) { return nameMatches(p, stored); });
}

std::int64_t nowSeconds() {
    return std::chrono::duration_cast<std::chrono::seconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

std::int64_t fileTimeSeconds(const fs::path& p) {
    std::error_code ec;
    auto ft = fs::last_write_time(p, ec);
    if (ec)
        return nowSeconds();
    auto sys = std::chrono::file_clock::to_sys(ft);
    return std::chrono::duration_cast<std::chrono::seconds>(sys.time_since_epoch()).count();
}

void setFileTime(const fs::path& p, std::int64_t t) {
    std::error_code ec;
    auto sys = std::chrono::sys_seconds(std::chrono::seconds(t));
    fs::last_write_time(p, std::chrono::file_clock::from_sys(sys), ec);
}

void setReadOnly(const fs::path& p) {
    std::error_code ec;
    fs::permissions(p, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove, ec);
}

} // namespace standin
