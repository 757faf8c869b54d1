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
#include "command_line.h"
#include "console_key.h"
#include "empty_folders.h"
#include "layout.h"
#include "names.h"
#include "output.h"
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

Archive openArchive(Output& out, const Options& o, bool headersOnly = false) {
    Archive a;
    ReadResult r = readArchive(hostPath(o.archive), kVersion, o.password, a, headersOnly);
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
    Archive a = openArchive(out, o, true);
    auto sel = selectEntries(a, o);
    takeFolders(sel); // never listed nor counted
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
        packed += e->packedLength;
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

// A drive at the start of a path part: "C:" or "Z:..".
bool startsWithDrive(const std::string& part) {
    return part.size() >= 2 && part[1] == ':' &&
           ((part[0] >= 'A' && part[0] <= 'Z') || (part[0] >= 'a' && part[0] <= 'z'));
}

// Under the launcher (the stand-in launcher sets WINEPREFIX), a path such as "Q:\a\..\b" is
// followed as Windows follows it: ".." never climbs above the drive's root, and the drive is
// the folder its link in the prefix's "dosdevices" names (Z: is the root of the file system).
bool windowsDrivePath(const std::string& path) {
    return !std::getenv("WINEPREFIX") ? false
                                      : path.size() >= 2 && startsWithDrive(path.substr(0, 2)) &&
                                            (path.size() == 2 || path[2] == '\\');
}

fs::path driveFolder(char letter) {
    letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    if (letter == 'z')
        return "/";
    const fs::path link =
        fs::path(std::getenv("WINEPREFIX")) / "dosdevices" / (std::string(1, letter) + ":");
    std::error_code ec;
    const fs::path target = fs::read_symlink(link, ec);
    if (ec)
        return "/nonexistent-drive";
    return target.is_absolute() ? target : link.parent_path() / target;
}

fs::path followWindowsPath(const std::string& drivePath, const std::vector<std::string>& more) {
    std::vector<std::string> parts;
    auto add = [&parts](const std::string& p) {
        if (p.empty() || p == ".")
            return;
        if (p == "..") {
            if (!parts.empty())
                parts.pop_back(); // never above the drive's root
            return;
        }
        parts.push_back(p);
    };
    const auto given = splitPath(drivePath.substr(2));
    for (const auto& p : given)
        add(p);
    for (const auto& p : more)
        add(p);
    fs::path out = driveFolder(drivePath[0]);
    for (const auto& p : parts)
        out /= p;
    return out;
}

// Where the engine writes an entry: where its stored name points, ".." included, as the real
// engine does (an archive is untrusted; the program must keep such names from the engine).
// With a target, a stored drive is dropped with the ".." parts after it, and a name that
// starts with a separator cannot be written; without one, both name places of their own.
struct Place {
    fs::path path;
    std::string shown;
    bool cannotWrite = false;
    bool nothing = false;
};

// Code page 932 has letters whose second byte is 0x5C, the byte of "\\" ("表", "ソ"), and the
// engine takes that byte for a separator wherever it stands in its target. These are the
// target's parts up to each such letter (UTF-8), in order.
std::vector<std::string> targetCutsAtBackslashBytes(const std::string& target) {
    std::vector<std::string> cuts;
    if (!codePages().active || codePages().ansi != 932)
        return cuts;
    std::size_t i = 0;
    while (i < target.size()) {
        const unsigned char lead = static_cast<unsigned char>(target[i]);
        const std::size_t n = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        const std::string letter = target.substr(i, n);
        const std::string bytes = toAnsi(letter);
        if (bytes.size() == 2 && bytes[1] == '\\')
            cuts.push_back(target.substr(0, i));
        i += n;
    }
    return cuts;
}

// True when the target seems to end in a separator to the engine: its last letter's second
// byte is 0x5C. The engine then joins an entry's name to it without one: under "展開表",
// "docs\\a.txt" goes to "展開表docs\\a.txt", beside the target (measured).
bool targetEndsInABackslashByte(const std::string& target) {
    const auto cuts = targetCutsAtBackslashBytes(target);
    if (cuts.empty())
        return false;
    const std::string last = target.substr(cuts.back().size());
    return toAnsi(last).size() == 2;
}

// The engine makes the target's folders one separator at a time, so each 0x5C inside a letter
// makes a folder of the part before that letter (wine drops the lone lead byte): "予定表" makes
// "予定" beside it.
void makeFoldersCutAtBackslashBytes(const std::string& target) {
    for (const auto& cut : targetCutsAtBackslashBytes(target)) {
        if (cut.empty() || cut.back() == '\\' || cut.back() == '/')
            continue;
        std::error_code ec;
        fs::create_directories(windowsDrivePath(cut) ? followWindowsPath(cut, {}) : hostPath(cut),
                               ec);
    }
}

Place placeOf(const std::string& stored, const Options& o, bool withPaths) {
    Place place;
    auto parts = splitPath(stored);
    const bool rooted = parts.size() > 1 && parts.front().empty();
    std::string drive;
    if (!parts.empty() && startsWithDrive(parts.front())) {
        drive = parts.front().substr(0, 2);
        parts.front() = parts.front().substr(2);
    }
    std::vector<std::string> kept;
    for (const auto& p : parts) {
        if (p.empty() || p == "." || (p == ".." && !drive.empty() && !o.target.empty()))
            continue;
        kept.push_back(p);
    }
    if (!withPaths && !kept.empty())
        kept = {kept.back()};
    if (kept.empty()) {
        place.nothing = true;
        return place;
    }
    place.shown = (o.target.empty() ? "" : displayTarget(o.target) + "\\") + join(kept, "\\");
    if (!o.target.empty() && rooted && drive.empty() && withPaths) {
        place.cannotWrite = true;
        return place;
    }
    std::string base = o.target;
    if (!base.empty() && targetEndsInABackslashByte(base)) {
        base += join(kept, "\\");
        kept.clear();
    }
    if (base.empty() && !drive.empty())
        base = drive + "\\";
    else if (base.empty() && rooted && withPaths)
        base = std::getenv("WINEPREFIX") ? "Z:\\" : "/";
    if (windowsDrivePath(base)) {
        place.path = followWindowsPath(base, kept);
        return place;
    }
    place.path = base.empty() ? fs::path(".") : hostPath(base);
    for (const auto& p : kept)
        place.path /= p;
    return place;
}

[[noreturn]] void commandTestOrExtract(Output& out, const Options& o) {
    const bool extract = o.command != 't';
    const bool withPaths = o.command == 'x';
    const std::string verb = extract ? "Extracting" : "Testing";
    Archive a = openArchive(out, o);
    auto sel = selectEntries(a, o);
    const auto folders = takeFolders(sel); // made by "x" after the files, never named
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
    out.line(verb + " " + std::to_string(sel.size()) + (sel.size() == 1 ? " file (" : " files (") +
             std::to_string(total) + " bytes)");
    out.line(kDashes);

    const bool overwrite = o.overwrite < 0 ? o.yes : o.overwrite == 1;
    if (extract && !o.target.empty())
        makeFoldersCutAtBackslashBytes(o.target);
    // As the real engine does, an entry excluded by "!" still gets its folders made under the
    // target before it is skipped ("x" only).
    if (withPaths) {
        for (const auto& e : a.entries) {
            if ((o.names.empty() || anyMatches(o.names, e.name)) &&
                anyMatches(o.excludes, e.name)) {
                const Place place = placeOf(e.name, o, true);
                std::error_code ec;
                if (!place.nothing && !place.cannotWrite)
                    fs::create_directories(place.path.parent_path(), ec);
            }
        }
    }
    const int delay = perFileDelayMs();
    const auto start = std::chrono::steady_clock::now();
    std::uint64_t done = 0;
    const Entry* failed = nullptr; // a CRC failure is reported while the next file starts
    for (const Entry* e : sel) {
        const Place place = placeOf(e->name, o, withPaths);
        std::string shown = extract ? place.shown : e->name;
        if (o.display >= 2)
            out.progress(jobProgressLine(verb, shown, percentDone(done, total)));
        faultPoint(out);
        if (failed)
            out.fail("CRC-failure (file \"" + failed->name + "\")", o.display >= 2);
        sleepPerFile(delay);
        done += e->size;
        const fs::path dest = place.path;
        std::error_code ec;
        if (extract && place.cannotWrite)
            out.fail("Can't write file", o.display >= 2);
        if (extract && (place.nothing || (!overwrite && fs::exists(dest, ec)))) {
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
            if (e->attr & AttrReadOnly)
                setReadOnly(dest); // mode 0444 from 0644, as the engine leaves it under wine
        }
        if (o.display >= 2)
            out.fileLine(jobFileLine(verb, shown));
    }
    for (const Entry* f : withPaths ? folders : std::vector<const Entry*>{})
        if (const Place p = placeOf(f->name, o, true); !p.nothing && !p.cannotWrite)
            makeFolder(p.path);
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
// Stored names: the source path as given, with its drive, its root and any "." and ".." parts
// removed, parts joined by "\". Under the launcher only "\" separates parts, as in the real
// engine: "/" is stored as it stands, so "Src\*.*" stores "Src\sub\data.bin" but "Src/*.*"
// stores "Src/sub\data.bin", and "Z:/data/a.txt" stores "/data/a.txt" (measured). Run
// natively, the stand-in is given host paths and takes "/" as a separator too.

// A file to add: where it is, its stored name, and its name as the progress lines show it
// (the path as given, drive included, with "\" as separator: the engine shows
// "Z:\tmp\src\two.txt" shortened for a file it stores as "tmp\src\two.txt").
struct Source {
    fs::path path;
    std::string stored;
    std::string shown;
    bool folder = false; // an empty folder (-ed+)
};

std::string shownPrefix(const std::string& folder) {
    std::string s = replaced(folder, '/', '\\');
    return s.empty() || s.back() == '\\' ? s : s + "\\";
}

// The stored part of a source's folder, given as it stands with its last separator
// ("Src\", "../Src/"). With -pr the ".." parts stay and with -pf the drive too, as the
// engine keeps them: an archive made so names places outside any folder.
std::string storedPrefix(const std::string& given, char paths) {
    std::string folder = given;
    if (paths != 'f' && folder.size() >= 2 && folder[1] == ':' &&
        std::isalpha(static_cast<unsigned char>(folder[0])))
        folder.erase(0, 2);
    const bool slashSeparates = !std::getenv("WINEPREFIX");
    std::vector<std::string> parts;
    std::string part;
    for (std::size_t i = 0; i <= folder.size(); ++i) {
        if (i < folder.size() && folder[i] != '\\' && !(slashSeparates && folder[i] == '/')) {
            part.push_back(folder[i]);
            continue;
        }
        const bool dots = part == "." || part == "..";
        if (!part.empty() && part != "." && !(dots && paths == 0))
            parts.push_back(part);
        part.clear();
    }
    std::string prefix = join(parts, "\\");
    // A folder given with "/" at its end keeps it; one given with "\" gets "\" back.
    if (!prefix.empty() && prefix.back() != '/')
        prefix += "\\";
    return prefix;
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
        const std::string name = d.path().filename().string(), sub = name + "\\";
        if (storesEmptyFolder(o, d.path(), pattern, prefix + name))
            out.push_back({d.path(), prefix + name, shown + name, true});
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
        std::string dir, pattern, givenFolder;
        if (!hasWildcard(s) && fs::is_directory(s, ec)) {
            dir = s;
            pattern = "*";
            givenFolder = raw + "\\";
        } else {
            auto pos = s.rfind('/');
            dir = pos == std::string::npos ? "" : (pos == 0 ? "/" : s.substr(0, pos));
            pattern = pos == std::string::npos ? s : s.substr(pos + 1);
            givenFolder = pos == std::string::npos ? "" : raw.substr(0, pos + 1);
        }
        const std::string prefix = storedPrefix(givenFolder, o.paths);
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
    const std::vector<Entry> folders = takeEmptyFolders(sources); // stored after the files
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
    const bool foldersAdded = addFolders(writer, folders);
    if (!writer.finish() || !foldersAdded) {
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
                "Switches: -r+ -r- -ed+ -m0 -m1 -m2 -m3 -mx -mz -mm+ -md+ -md<KB> -pw<password>\r\n"
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
