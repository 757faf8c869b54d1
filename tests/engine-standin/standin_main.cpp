// Quovara's stand-in engine: a test fixture and demonstration engine, NOT the UHARC archiver.
//
// It accepts the command lines that Quovara writes for the real engine (commands a, m, e,
// x, l, t, their switches, @listfile, !exclude and the uharc_opt variable) and answers with
// the real engine's console output and listing log, line for line and column for column,
// so that the program can be tested and tried without the closed engine. Files are kept in
// the stand-in's own small container format (see archive.h), never in UHA archives, and the
// banner and log title say so. Built twice, as version 0.6 and 0.4 (STANDIN_VERSION), so
// that the engine version fallback can be exercised.
#include "archive.h"
#include "codec.h"
#include "codepage.h"
#include "console_key.h"
#include "layout.h"
#include "utf8.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <unistd.h>

#ifndef STANDIN_VERSION
#error "STANDIN_VERSION must name the engine version, such as \"0.6\""
#endif

extern char** environ;

namespace fs = std::filesystem;
using namespace standin;

namespace {

const std::string kVersion = STANDIN_VERSION;
const std::string kDashes(kWidth, '-');
const std::string kBlankLine(kWidth, ' ');
const std::string kTempName = "UHA$0000.$$$";

const std::string kMsgCantOpen = "Can't open archive file";
const std::string kMsgPassword =
    "Archive requires a password to access --> use switch -pw[password]";
const std::string kMsgCorrupt =
    "Can't read from archive file / Unexpected end of file (maybe corrupt)";
const std::string kMsgCantCreate = "Can't create archive file";

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

// The parts of a stored or given path that may name a place under a target folder: empty,
// "." and ".." parts and a leading drive are dropped, so nothing can climb out.
std::vector<std::string> safeParts(const std::string& s) {
    std::vector<std::string> out;
    auto parts = splitPath(s);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const auto& p = parts[i];
        if (p.empty() || p == "." || p == ".." || (i == 0 && isDrive(p)))
            continue;
        out.push_back(p);
    }
    return out;
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

// Case-insensitive whole-string match with "*" (any run, separators included) and "?" (one
// character, however many bytes it takes in UTF-8).
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

// A pattern with a folder part is matched against the whole stored name, one without
// against the file name only. As on DOS, a trailing ".*" also matches names without a dot.
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

// ---------------------------------------------------------------------------------------
// Options

struct Options {
    char command = 0;
    std::string archive; // as given, with ".uha" added when it has no extension
    std::vector<std::string> names;
    std::vector<std::string> excludes;
    bool recurse = false;
    char method = '2';
    bool multimedia = true;
    unsigned dictionaryKB = 4096;
    std::string password;
    int overwrite = -1; // -1: not given
    std::string target;
    bool yes = false;
    int display = 1;
    bool hasLog = false;
    std::string logFile;
    std::string error; // first problem found in the command line
};

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
    } else if (l.rfind("-pw", 0) == 0)
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

// The switches in uharc_opt (the name is matched without regard to case) come first, so
// that the command line can override them. Returns the raw value for the log.
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

// QUOVARA_STANDIN_WRITE_MS: a file is written 64 KiB at a time with this many milliseconds
// between pieces and a progress line for each, as the engine shows a big file.
constexpr std::size_t kSlowChunk = 64 * 1024;
int chunkDelayMs() {
    const char* v = std::getenv("QUOVARA_STANDIN_WRITE_MS");
    const int ms = v ? std::atoi(v) : 0;
    return ms > 0 ? ms : 0;
}

int perFileDelayMs() {
    const char* v = std::getenv("QUOVARA_STANDIN_DELAY_MS");
    if (!v)
        return 0;
    int ms = std::atoi(v);
    return ms > 0 ? ms : 0;
}

// ---------------------------------------------------------------------------------------
// Output: console (standard output, flushed after every write) and the optional log

class Output {
public:
    void openLog(const std::string& path) {
        log_ = std::fopen(replaced(path, '\\', '/').c_str(), "ab");
    }
    // Text goes out in the OEM code page when the stand-in plays code pages.
    void console(const std::string& text) {
        const std::string s = toOem(text);
        std::fwrite(s.data(), 1, s.size(), stdout);
        std::fflush(stdout);
    }
    void log(const std::string& text) {
        if (!log_)
            return;
        const std::string s = toOem(text);
        std::fwrite(s.data(), 1, s.size(), log_);
    }
    // A whole line, to the console and the log.
    void line(const std::string& s) {
        console(s + "\r\n");
        log(s + "\r\n");
        progressOpen_ = false;
    }
    // A per-file result that overwrites its progress line on the console.
    void fileLine(const std::string& s) {
        console("\r" + s + "\r\n");
        log(s + "\r\n");
        progressOpen_ = false;
    }
    void progress(const std::string& s) {
        console("\r" + s);
        progressOpen_ = true;
    }
    // A progress line is the last thing on the console (no line end after it).
    bool progressOpen() const { return progressOpen_; }
    // Everything written so far reaches the console and the log file.
    void flush() {
        std::fflush(stdout);
        if (log_)
            std::fflush(log_);
    }
    [[noreturn]] void finish(int code) {
        log(std::string(kWidth, '=') + "\r\n\r\n");
        if (log_)
            std::fclose(log_);
        std::fflush(stdout);
        std::exit(code);
    }
    // An error ends the run; one found while progress lines are written first ends the
    // current console line and blanks the next, as the engine does.
    [[noreturn]] void fail(const std::string& msg, bool midProgress = false) {
        if (midProgress)
            console("\r\n\r" + kBlankLine + "\r");
        line("ERROR: " + msg);
        line("Process aborted.");
        finish(255);
    }

private:
    std::FILE* log_ = nullptr;
    bool progressOpen_ = false;
};

// ---------------------------------------------------------------------------------------
// Faults on demand, for tests of the program that runs the engine: QUOVARA_STANDIN_FAULT
// makes a run end the way a real one can end badly, once its first progress output is out
// (the first file's progress line in an add, extract or test, written or not by the display
// mode; the first entry of a listing, so that the log holds part of the listing).
//
//   exit:N     the run ends with exit code N (0-255), no "ERROR:" line, no log closing line
//   signal:N   signal N is raised with its default action (a signal whose default is to be
//              ignored, or to stop until continued, lets the run carry on)
//   hang       the run waits for ever, to be killed
//   enospc     a failed write: "ERROR: No space left on device", "Process aborted.",
//              exit 255; an add removes its temporary archive as for other write errors

enum class FaultKind { None, Exit, Signal, Hang, NoSpace };

struct Fault {
    FaultKind kind = FaultKind::None;
    int value = 0;
    bool done = false;
};

Fault g_fault;

bool numberIn(const std::string& s, int lo, int hi, int& out) {
    if (s.empty() || s.size() > 3 ||
        !std::all_of(s.begin(), s.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return false;
    out = std::stoi(s);
    return out >= lo && out <= hi;
}

// Reads QUOVARA_STANDIN_FAULT; a value that names no fault ends the run with exit code 2 and
// a message on standard error, so that a mistyped test setting does not go unnoticed.
void readFault() {
    const char* v = std::getenv("QUOVARA_STANDIN_FAULT");
    if (!v || !*v)
        return;
    const std::string value = v;
    Fault f;
    if (value == "hang")
        f.kind = FaultKind::Hang;
    else if (value == "enospc")
        f.kind = FaultKind::NoSpace;
    else if (value.rfind("exit:", 0) == 0 && numberIn(value.substr(5), 0, 255, f.value))
        f.kind = FaultKind::Exit;
    else if (value.rfind("signal:", 0) == 0 && numberIn(value.substr(7), 1, SIGRTMAX, f.value))
        f.kind = FaultKind::Signal;
    if (f.kind == FaultKind::None) {
        std::fprintf(stderr,
                     "QUOVARA_STANDIN_FAULT=\"%s\" names no fault (exit:N, signal:N, hang, "
                     "enospc)\n",
                     v);
        std::exit(2);
    }
    g_fault = f;
}

// The place where the fault happens, once per run. `cleanUp` undoes what a failed write
// would leave behind.
void faultPoint(Output& out, const std::function<void()>& cleanUp = {}) {
    if (g_fault.kind == FaultKind::None || g_fault.done)
        return;
    g_fault.done = true;
    out.flush();
    switch (g_fault.kind) {
    case FaultKind::None:
        return;
    case FaultKind::Exit:
        std::_Exit(g_fault.value);
    case FaultKind::Signal: {
        std::signal(g_fault.value, SIG_DFL);
        sigset_t set;
        sigemptyset(&set);
        sigaddset(&set, g_fault.value);
        sigprocmask(SIG_UNBLOCK, &set, nullptr);
        std::raise(g_fault.value);
        return;
    }
    case FaultKind::Hang:
        for (;;)
            pause();
    case FaultKind::NoSpace:
        if (cleanUp)
            cleanUp();
        out.fail("No space left on device", out.progressOpen());
    }
}

std::string quoteIfBlank(const std::string& a) {
    return a.find(' ') != std::string::npos ? "\"" + a + "\"" : a;
}

void writeBanner(Output& out) {
    const std::string lines[] = {
        "Quovara stand-in engine " + kVersion +
            "  ---  for tests and demonstration  ---  NOT UHARC",
        "This program is not UHARC. It takes UHARC command lines for Quovara's tests and",
        "****  demonstrations; it keeps files in its own container, never in UHA  ****",
    };
    std::string s = "\r\n";
    for (const auto& l : lines)
        s += padRight(l, kWidth) + "\r\n";
    out.console(s + "\r\n");
}

void writeLogHeader(Output& out, const std::string& envValue, int argc, char** argv) {
    std::string cmd;
    for (int i = 0; i < argc; ++i)
        cmd += (i ? " " : "") + quoteIfBlank(argv[i]);
    out.log("\r\n" + logTitleLine(kVersion, nowSeconds()) + "\r\n");
    out.log("Environment: \"" + envValue + "\"\r\n");
    out.log("Commandline: \"" + cmd + "\"\r\n\r\n");
}

void sleepPerFile(int ms) {
    if (ms > 0)
        std::this_thread::sleep_for(std::chrono::milliseconds(ms));
}

double secondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

fs::path hostPath(const std::string& s) {
    return fs::path(replaced(s, '\\', '/'));
}

// ---------------------------------------------------------------------------------------
// Reading an archive for list, test, extract and add

void failOnRead(Output& out, const ReadResult& r, const Archive& a) {
    switch (r.status) {
    case ReadStatus::Ok:
        return;
    case ReadStatus::CantOpen:
        out.fail(kMsgCantOpen);
    case ReadStatus::NotArchive:
        out.fail("No UHARC " + kVersion + " archive");
    case ReadStatus::OtherVersion:
        out.fail("Archive was created by another version --> use UHARC version " + a.version);
    case ReadStatus::PasswordRequired:
        out.line("");
        out.fail(kMsgPassword);
    case ReadStatus::Corrupt:
        if (r.headerRead)
            out.line("");
        out.fail(kMsgCorrupt);
    }
}

Archive openArchive(Output& out, const Options& o) {
    Archive a;
    ReadResult r = readArchive(hostPath(o.archive), kVersion, o.password, a);
    if (r.headerRead)
        out.line("Processing archive \"" + o.archive + "\" (created: " + createdText(a.created) +
                 ").");
    failOnRead(out, r, a);
    return a;
}

std::vector<const Entry*> selectEntries(const Archive& a, const Options& o) {
    std::vector<const Entry*> sel;
    for (const auto& e : a.entries) {
        if (!o.names.empty() && !anyMatches(o.names, e.name))
            continue;
        if (anyMatches(o.excludes, e.name))
            continue;
        sel.push_back(&e);
    }
    return sel;
}

// ---------------------------------------------------------------------------------------
// l: list

[[noreturn]] void commandList(Output& out, const Options& o) {
    Archive a = openArchive(out, o);
    auto sel = selectEntries(a, o);
    // Listed in the order of their file names, as the engine lists them.
    std::stable_sort(sel.begin(), sel.end(), [](const Entry* x, const Entry* y) {
        auto fx = folded(filePart(x->name)), fy = folded(filePart(y->name));
        return fx != fy ? fx < fy : folded(x->name) < folded(y->name);
    });
    out.line("");
    out.line("file                                size     date        time    attr   crc-32 ");
    out.line(kDashes);
    std::uint64_t size = 0, packed = 0;
    for (const Entry* e : sel) {
        out.line(e->name);
        out.line(listDetailLine(e->size, e->mtime, e->attr, e->crc));
        faultPoint(out);
        size += e->size;
        packed += e->packed.size();
    }
    faultPoint(out);
    out.line(kDashes);
    out.line(listTotalsLine1(sel.size(), size));
    out.line(listTotalsLine2(packed, a.method, size));
    out.finish(0);
}

// ---------------------------------------------------------------------------------------
// t, e, x: test and extract

std::string displayTarget(const std::string& target) {
    std::string t = replaced(target, '/', '\\');
    while (t.size() > 1 && t.back() == '\\')
        t.pop_back();
    return t;
}

[[noreturn]] void commandTestOrExtract(Output& out, const Options& o) {
    const bool extract = o.command != 't';
    const bool withPaths = o.command == 'x';
    const std::string verb = extract ? "Extracting" : "Testing";
    Archive a = openArchive(out, o);
    auto sel = selectEntries(a, o);
    if (!o.names.empty() && sel.empty()) {
        // Named entries of which none is there: the engine's own words, no "ERROR:" line.
        out.line("No matching files found !");
        out.line("Process aborted.");
        out.finish(255);
    }
    std::uint64_t total = 0;
    for (const Entry* e : sel)
        total += e->size;
    out.line("Using 1.8 MB for decompression and 216 KB for file buffers.");
    out.line("");
    out.line(verb + " " + std::to_string(sel.size()) + " files (" + std::to_string(total) +
             " bytes)");
    out.line(kDashes);

    const bool overwrite = o.overwrite < 0 ? o.yes : o.overwrite == 1;
    const fs::path base = o.target.empty() ? fs::path(".") : hostPath(o.target);
    const std::string shownBase = o.target.empty() ? "" : displayTarget(o.target) + "\\";
    const int delay = perFileDelayMs();
    const auto start = std::chrono::steady_clock::now();
    std::uint64_t done = 0;
    const Entry* failed = nullptr; // a CRC failure is reported while the next file starts
    for (const Entry* e : sel) {
        auto parts = safeParts(e->name);
        if (!withPaths && !parts.empty())
            parts = {parts.back()};
        std::string shown = extract ? shownBase + join(parts, "\\") : e->name;
        if (o.display >= 2)
            out.progress(jobProgressLine(verb, shown, percentDone(done, total)));
        faultPoint(out);
        if (failed)
            out.fail("CRC-failure (file \"" + failed->name + "\")", o.display >= 2);
        sleepPerFile(delay);
        done += e->size;
        fs::path dest = base;
        for (const auto& p : parts)
            dest /= p;
        std::error_code ec;
        if (extract && (parts.empty() || (!overwrite && fs::exists(dest, ec)))) {
            if (o.display >= 2)
                out.fileLine(jobFileLine("Skipping", shown));
            continue;
        }
        Bytes data;
        bool ok = unpack(e->method, e->packed, e->size, data) &&
                  crc32(data.data(), data.size()) == e->crc;
        if (!ok)
            failed = e;
        if (extract && data.size() == e->size) {
            fs::create_directories(dest.parent_path(), ec);
            // Into the file under its own name, as the engine writes: a stop halfway leaves
            // a truncated copy with the current time, and a replaced file keeps its inode.
            std::ofstream f(dest, std::ios::binary | std::ios::trunc);
            const int chunkDelay = chunkDelayMs();
            const std::size_t chunk = chunkDelay > 0 ? kSlowChunk : data.size();
            for (std::size_t at = 0; at < data.size() || at == 0; at += chunk) {
                const std::size_t n = std::min(chunk, data.size() - at);
                f.write(reinterpret_cast<const char*>(data.data() + at),
                        static_cast<std::streamsize>(n));
                if (chunkDelay <= 0 || at + n >= data.size())
                    break;
                f.flush();
                const std::uint64_t written = done - e->size + at + n;
                if (o.display >= 2)
                    out.progress(jobProgressLine(verb, shown, percentDone(written, total),
                                                 static_cast<int>((at + n) * 100 / data.size())));
                sleepPerFile(chunkDelay);
            }
            f.close();
            if (!f)
                out.fail("Can't create file \"" + shown + "\"", o.display >= 2);
            setFileTime(dest, e->mtime);
        }
        if (o.display >= 2)
            out.fileLine(jobFileLine(verb, shown));
    }
    if (failed) {
        out.console("\r" + kBlankLine + "\r");
        out.fail("CRC-failure (file \"" + failed->name + "\")");
    }
    faultPoint(out);
    out.line(kDashes);
    out.line(jobTotalLine(secondsSince(start)));
    out.finish(0);
}

// ---------------------------------------------------------------------------------------
// a, m: add and move
//
// Stored names: the source path as given, with its root or drive and any "." and ".."
// parts removed and "/" turned into "\", so "/data/Src/*.*" stores "data\Src\a.txt" and
// a relative "folder\*" stores "folder\sub\data.bin".

// A file to add: where it is, its stored name, and its name as the progress lines show it
// (the path as given, drive included, with "\" as separator: the engine shows
// "Z:\tmp\src\two.txt" shortened for a file it stores as "tmp\src\two.txt").
struct Source {
    fs::path path;
    std::string stored;
    std::string shown;
};

std::string shownPrefix(const std::string& folder) {
    std::string s = replaced(folder, '/', '\\');
    return s.empty() || s.back() == '\\' ? s : s + "\\";
}

std::string storedPrefix(const std::string& folder) {
    auto parts = safeParts(folder);
    return parts.empty() ? "" : join(parts, "\\") + "\\";
}

bool isExcluded(const Options& o, const std::string& stored) {
    return anyMatches(o.excludes, stored);
}

void walk(const fs::path& dir, const std::string& prefix, const std::string& shown,
          const std::string& pattern, const Options& o, std::vector<Source>& out) {
    std::vector<fs::directory_entry> files, dirs;
    std::error_code ec;
    for (fs::directory_iterator it(dir, ec), end; !ec && it != end; it.increment(ec)) {
        std::error_code ec2;
        if (it->is_regular_file(ec2))
            files.push_back(*it);
        else if (o.recurse && it->is_directory(ec2) && !it->is_symlink(ec2))
            dirs.push_back(*it);
    }
    auto byName = [](const fs::directory_entry& x, const fs::directory_entry& y) {
        return folded(x.path().filename().string()) < folded(y.path().filename().string());
    };
    std::sort(files.begin(), files.end(), byName);
    std::sort(dirs.begin(), dirs.end(), byName);
    for (const auto& f : files) {
        std::string name = f.path().filename().string();
        std::string stored = prefix + name;
        if (nameMatches(pattern, name) && !isExcluded(o, stored))
            out.push_back({f.path(), stored, shown + name});
    }
    for (const auto& d : dirs) {
        const std::string sub = d.path().filename().string() + "\\";
        walk(d.path(), prefix + sub, shown + sub, pattern, o, out);
    }
}

std::vector<Source> collectSources(const Options& o) {
    std::vector<Source> found;
    for (const auto& raw : o.names) {
        std::string s = replaced(raw, '\\', '/');
        if (s.empty())
            continue;
        std::error_code ec;
        std::string dir, pattern;
        if (!hasWildcard(s) && fs::is_directory(s, ec)) {
            dir = s;
            pattern = "*";
        } else {
            auto pos = s.rfind('/');
            dir = pos == std::string::npos ? "" : (pos == 0 ? "/" : s.substr(0, pos));
            pattern = pos == std::string::npos ? s : s.substr(pos + 1);
        }
        const std::string prefix = storedPrefix(dir);
        const std::string shown = shownPrefix(dir);
        if (!hasWildcard(pattern)) {
            fs::path p = hostPath(s);
            std::string stored = prefix + pattern;
            if (fs::is_regular_file(p, ec) && !isExcluded(o, stored))
                found.push_back({p, stored, shown + pattern});
            continue;
        }
        walk(dir.empty() ? fs::path(".") : fs::path(dir), prefix, shown, pattern, o, found);
    }
    // One source per stored name (names compare without regard to case).
    std::vector<Source> unique;
    std::set<std::u32string> seen;
    for (auto& s : found)
        if (seen.insert(folded(s.stored)).second)
            unique.push_back(std::move(s));
    return unique;
}

bool samePath(const fs::path& a, const fs::path& b) {
    std::error_code ec;
    return fs::exists(a, ec) && fs::exists(b, ec) && fs::equivalent(a, b, ec);
}

double memoryMB(char method) {
    switch (method) {
    case '0':
        return 0.2;
    case '1':
        return 1.2;
    case '2':
        return 3.0;
    case '3':
        return 4.1;
    case 'x':
        return 6.5;
    default:
        return 3.2;
    }
}

// The smallest power of two KB that holds the data (the engine shows 1 KB for a few bytes),
// at most the size asked for.
unsigned shownDictionaryKB(unsigned requested, std::uint64_t bytes) {
    unsigned kb = 1;
    while (kb < requested && static_cast<std::uint64_t>(kb) * 1024 < bytes)
        kb *= 2;
    return std::min(kb, requested);
}

// The engine shows 216 KB of file buffers for an add of about 108 KB and 50 KB for an add of
// a few bytes; the stand-in switches between the two at 64 KB.
unsigned fileBufferKB(std::uint64_t bytes) {
    return bytes < 64 * 1024 ? 50 : 216;
}

// The engine cannot add to an archive: an add that names an existing one asks at the
// console whether to overwrite it, and "y" replaces it with a new archive. -y+ answers yes
// without asking. Any other answer ends the run as an archive that cannot be created.
void confirmOverwrite(Output& out, const Options& o, const fs::path& archivePath) {
    std::error_code ec;
    if (o.yes || !fs::exists(archivePath, ec))
        return;
    out.console("\r" + kBlankLine + "\rArchive \"" + o.archive +
                "\" already exists. Overwrite (y/n) ?");
    const int key = readOneKey();
    out.console("\r" + kBlankLine + "\r");
    if (key != 'y' && key != 'Y')
        out.fail(kMsgCantCreate);
}

[[noreturn]] void commandAdd(Output& out, const Options& o) {
    const bool move = o.command == 'm';
    const fs::path archivePath = hostPath(o.archive);
    const fs::path folder = archivePath.has_parent_path() ? archivePath.parent_path() : ".";
    const fs::path tempPath = folder / kTempName;
    std::error_code ec;

    confirmOverwrite(out, o, archivePath);

    out.console("Searching files ...\r");
    std::vector<Source> sources;
    for (auto& s : collectSources(o))
        if (!samePath(s.path, archivePath) && !samePath(s.path, tempPath))
            sources.push_back(std::move(s));
    if (sources.empty()) {
        out.console(kBlankLine + "\r");
        out.fail("No files found");
    }
    std::uint64_t total = 0;
    for (const auto& s : sources)
        total += fs::file_size(s.path, ec);

    std::string analysing = "Analysing files ...";
    for (std::size_t i = 0; i <= sources.size(); ++i) {
        int pct = std::min<int>(99, static_cast<int>(i * 100 / sources.size()));
        char buf[16];
        std::snprintf(buf, sizeof buf, i == 0 ? "%3d%%" : "\b\b\b%2d%%", pct);
        analysing += buf;
    }
    out.console(analysing + "\r" + kBlankLine + "\r");

    ArchiveWriter writer;
    Archive header;
    header.version = kVersion;
    header.created = nowSeconds();
    header.method = o.method;
    if (!writer.open(tempPath, header, o.password))
        out.fail(kMsgCantCreate);

    out.line("Creating archive \"" + o.archive + "\".");
    out.line("Using " + methodField(o.method) + "-mode (" +
             std::to_string(shownDictionaryKB(o.dictionaryKB, total)) + " KB dictionary)" +
             (o.multimedia ? " with multimedia detection." : "."));
    char mem[96];
    std::snprintf(mem, sizeof mem, "Using %.1f MB for compression and %u KB for file buffers.",
                  memoryMB(o.method), fileBufferKB(total));
    out.line(mem);
    out.line("");
    out.line(addHeaderLine(sources.size(), total));
    out.line(kDashes);

    // Display mode 1 rewrites one progress line per file in place; mode 2 also ends each
    // with the file's result line; mode 0 shows neither.
    const int delay = perFileDelayMs();
    const auto start = std::chrono::steady_clock::now();
    std::uint64_t done = 0, packedSoFar = 0;
    const bool showProgress = o.display >= 1;
    const bool perFile = o.display >= 2;
    for (const auto& s : sources) {
        if (showProgress)
            out.progress(addProgressLine(s.shown, percentDone(done, total), done, packedSoFar));
        faultPoint(out, [&] {
            writer.finish();
            fs::remove(tempPath, ec);
        });
        sleepPerFile(delay);
        // A file whose name the code page cannot hold is looked for under its "?" form.
        const std::string seen = asEngineName(s.shown);
        if (seen != s.shown) {
            writer.finish();
            fs::remove(tempPath, ec);
            out.fail("Can't read file \"" + seen + "\"", showProgress);
        }
        std::ifstream in(s.path, std::ios::binary);
        Bytes data((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        if (!in.good() && !in.eof()) {
            writer.finish();
            fs::remove(tempPath, ec);
            out.fail("Can't open file \"" + s.shown + "\"", showProgress);
        }
        Entry e;
        e.name = s.stored;
        e.size = data.size();
        e.mtime = fileTimeSeconds(s.path);
        auto perms = fs::status(s.path, ec).permissions();
        e.attr = AttrArchive;
        if ((perms & fs::perms::owner_write) == fs::perms::none)
            e.attr |= AttrReadOnly;
        e.crc = crc32(data.data(), data.size());
        e.method = o.method;
        e.packed = pack(o.method, data);
        if (!writer.add(e)) {
            writer.finish();
            fs::remove(tempPath, ec);
            out.fail(kMsgCantCreate, showProgress);
        }
        done += e.size;
        packedSoFar += e.packed.size();
        if (perFile)
            out.fileLine(addFileLine(s.shown, e.size, e.packed.size()));
    }
    if (!writer.finish()) {
        fs::remove(tempPath, ec);
        out.fail(kMsgCantCreate, showProgress && !perFile);
    }
    fs::rename(tempPath, archivePath, ec);
    if (ec) {
        fs::remove(tempPath, ec);
        out.fail(kMsgCantCreate, showProgress && !perFile);
    }
    if (showProgress && !perFile)
        out.console("\r" + kBlankLine + "\r");
    else
        out.line(kDashes);
    out.line(addTotalLine(secondsSince(start), done, packedSoFar));
    if (move)
        for (const auto& s : sources)
            fs::remove(s.path, ec);
    out.finish(0);
}

void writeUsage(Output& out) {
    out.console("Usage: " + std::string("uharc-standin-") + kVersion +
                " command [-switch..] archive[.uha] [file..@listfile..!exclude..]\r\n"
                "Commands: a (add), m (move), e (extract), x (extract with paths), "
                "l (list), t (test)\r\n"
                "Switches: -r+ -r- -m0 -m1 -m2 -m3 -mx -mz -mm+ -md+ -md<KB> -pw<password>\r\n"
                "          -o+ -o- -t<folder> -y+ -d0 -d1 -d2 -lg<logfile>\r\n");
}

} // namespace

int main(int argc, char** argv) {
    readFault();
    Output out;
    Options o;
    const std::string envValue = environmentOptions(o);
    std::string commandText = argc > 1 ? argv[1] : "";
    // Names reach the engine through its ANSI code page, when it plays one.
    for (int i = 2; i < argc; ++i)
        parseArgument(asEngineName(argv[i]), o, false);
    const std::string cmd = lower(commandText);
    if (cmd.size() == 1 && std::string("amexlt").find(cmd[0]) != std::string::npos)
        o.command = cmd[0];
    if (o.hasLog && !o.logFile.empty())
        out.openLog(o.logFile);

    writeBanner(out);
    writeLogHeader(out, envValue, argc, argv);
    if (argc < 2) {
        writeUsage(out);
        out.finish(0);
    }
    if (!o.command)
        out.fail("Invalid command \"" + commandText + "\"");
    if (!o.error.empty())
        out.fail(o.error);
    if (o.archive.empty())
        out.fail("No archive name given");

    switch (o.command) {
    case 'l':
        commandList(out, o);
    case 't':
    case 'e':
    case 'x':
        commandTestOrExtract(out, o);
    default:
        commandAdd(out, o);
    }
}
