#include "command_line.h"

#include "codepage.h"
#include "names.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <initializer_list>

extern char** environ;

namespace fs = std::filesystem;

namespace standin {

namespace {

void setError(Options& o, const std::string& msg) {
    if (o.error.empty())
        o.error = msg;
}

void parseSwitch(const std::string& a, Options& o) {
    const std::string l = lower(a);
    auto is = [&](std::initializer_list<const char*> forms) {
        return std::any_of(forms.begin(), forms.end(), [&](const char* f) { return l == f; });
    };
    if (is({"-r", "-r+"}))
        o.recurse = true;
    else if (is({"-r-"}))
        o.recurse = false;
    else if (is({"-ed", "-ed+"}))
        o.emptyFolders = true;
    else if (is({"-ed-"}))
        o.emptyFolders = false;
    else if (is({"-y", "-y+"}))
        o.yes = true;
    else if (is({"-y-"}))
        o.yes = false;
    else if (is({"-o", "-o+"}))
        o.overwrite = 1;
    else if (is({"-o-"}))
        o.overwrite = 0;
    else if (is({"-d0", "-d1", "-d2"}))
        o.display = l[2] - '0';
    else if (is({"-mm", "-mm+"}))
        o.multimedia = true;
    else if (is({"-mm-"}))
        o.multimedia = false;
    else if (is({"-md+", "-md-"}))
        ; // accepted as the real engine accepts it; the size switch decides
    else if (is({"-m0", "-m1", "-m2", "-m3", "-mx", "-mz"}))
        o.method = l[2];
    else if (l.rfind("-md", 0) == 0) {
        std::string v = l.substr(3);
        bool digits = !v.empty() && v.size() < 7 &&
                      std::all_of(v.begin(), v.end(), [](char c) { return c >= '0' && c <= '9'; });
        unsigned kb = digits ? static_cast<unsigned>(std::stoul(v)) : 0;
        if (kb < 64 || kb > 32768 || (kb & (kb - 1)) != 0)
            setError(o, "Invalid dictionary size");
        else
            o.dictionaryKB = kb;
    } else if (is({"-pr"}))
        o.paths = 'r';
    else if (is({"-pf"}))
        o.paths = 'f';
    else if (is({"-pn"}))
        o.paths = 0;
    else if (l.rfind("-pw", 0) == 0)
        o.password = toAnsi(a.substr(3));
    else if (l.rfind("-lg", 0) == 0) {
        o.hasLog = true;
        o.logFile = a.substr(3);
    } else if (l.rfind("-t", 0) == 0)
        o.target = a.substr(2);
    else
        setError(o, "Invalid switch \"" + a + "\"");
}

std::vector<std::string> readListFile(const std::string& path, Options& o) {
    std::vector<std::string> names;
    std::ifstream in(fs::path(replaced(path, '\\', '/')), std::ios::binary);
    if (!in) {
        setError(o, "Can't open listfile \"" + path + "\"");
        return names;
    }
    std::string line;
    bool first = true;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        // A list file saved as UTF-8 by an editor may start with a byte order mark.
        if (first && line.rfind("\xEF\xBB\xBF", 0) == 0)
            line.erase(0, 3);
        // Playing code pages, list files are read in the OEM one, as the real engine does.
        line = fromOem(line);
        first = false;
        if (!trim(line).empty())
            names.push_back(line);
    }
    return names;
}

} // namespace

void parseArgument(const std::string& a, Options& o, bool fromEnvironment) {
    if (a.empty())
        return;
    if (a[0] == '-' && a.size() > 1) {
        parseSwitch(a, o);
    } else if (fromEnvironment) {
        return; // the variable holds switches only
    } else if (o.archive.empty()) {
        o.archive = a;
        if (filePart(a).find('.') == std::string::npos)
            o.archive += ".uha";
    } else if (a[0] == '@') {
        auto more = readListFile(a.substr(1), o);
        o.names.insert(o.names.end(), more.begin(), more.end());
    } else if (a[0] == '!') {
        o.excludes.push_back(a.substr(1));
    } else {
        o.names.push_back(a);
    }
}

std::string environmentOptions(Options& o) {
    std::string value;
    for (char** e = environ; e && *e; ++e) {
        std::string kv = *e;
        auto eq = kv.find('=');
        if (eq != std::string::npos && lower(kv.substr(0, eq)) == "uharc_opt") {
            value = kv.substr(eq + 1);
            break;
        }
    }
    std::string token;
    for (char c : value + " ") {
        if (c == ' ' || c == '\t') {
            parseArgument(token, o, true);
            token.clear();
        } else {
            token.push_back(c);
        }
    }
    return value;
}

} // namespace standin
