#include "layout.h"

#include "utf8.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace standin {

namespace {

std::tm localTime(std::int64_t t) {
    std::time_t tt = static_cast<std::time_t>(t);
    std::tm tm{};
    localtime_r(&tt, &tm);
    return tm;
}

constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string format(const char* fmt, auto... args) {
    char buf[256];
    int n = std::snprintf(buf, sizeof buf, fmt, args...);
    return std::string(buf, n < 0 ? 0 : std::min<std::size_t>(n, sizeof buf - 1));
}

// The console lines name a file in a field that starts after the verb and its blank.
std::string verbAndName(const std::string& verb, const std::string& name, std::size_t nameWidth) {
    return verb + " " + shortened(name, nameWidth);
}

} // namespace

std::string padRight(const std::string& s, std::size_t width) {
    const std::size_t chars = charCount(s);
    return chars >= width ? s : s + std::string(width - chars, ' ');
}

std::string rightAligned(std::uint64_t value, std::size_t width) {
    std::string s = std::to_string(value);
    return s.size() >= width ? s : std::string(width - s.size(), ' ') + s;
}

std::string shortened(const std::string& s, std::size_t width) {
    const std::u32string chars = decodeUtf8(s);
    if (chars.size() <= width || width < 4)
        return s;
    return "..." + encodeUtf8(chars.substr(chars.size() - (width - 3)));
}

std::string ratioText(std::uint64_t packed, std::uint64_t size) {
    double r = size == 0 ? 0.0 : static_cast<double>(packed) * 100.0 / static_cast<double>(size);
    return format("%.1f", r);
}

int percentDone(std::uint64_t done, std::uint64_t total) {
    return total == 0 ? 0 : static_cast<int>(done * 100 / total);
}

std::string dateText(std::int64_t t) {
    std::tm tm = localTime(t);
    return format("%02d-%s-%04d", tm.tm_mday, kMonths[tm.tm_mon], tm.tm_year + 1900);
}

std::string timeText(std::int64_t t) {
    std::tm tm = localTime(t);
    return format("%02d:%02d:%02d", tm.tm_hour, tm.tm_min, tm.tm_sec);
}

std::string createdText(std::int64_t t) {
    std::tm tm = localTime(t);
    return dateText(t) + format(", %02d:%02d", tm.tm_hour, tm.tm_min);
}

std::string methodField(char method) {
    switch (method) {
    case 'x':
        return "PPM";
    case 'z':
        return "LZP";
    default:
        // Store shows as mode 0 of the ALZ family, keeping the five-character field.
        return std::string("ALZ:") + method;
    }
}

std::string attrText(std::uint8_t attr) {
    std::string s = "----";
    if (attr & 0x01)
        s[0] = 'R';
    if (attr & 0x02)
        s[1] = 'H';
    if (attr & 0x04)
        s[2] = 'S';
    if (attr & 0x20)
        s[3] = 'A';
    return s;
}

// "Adding 8 files (110354 bytes)", "Adding 1 file (4 bytes)", then the column titles ending
// at columns 60, 71 and 79.
std::string addHeaderLine(std::size_t files, std::uint64_t bytes) {
    std::string left = format("Adding %zu %s (%llu bytes)", files, files == 1 ? "file" : "files",
                              static_cast<unsigned long long>(bytes));
    return padRight(left, 49) + format("%11s%11s%8s", "size", "packed", "ratio");
}

// Name in columns 8-39 (at most 22 characters shown), "Total:" at 40, per cent at 46-49,
// done to column 60, packed to column 71, ratio to column 79.
std::string addProgressLine(const std::string& name, int percent, std::uint64_t done,
                            std::uint64_t packed) {
    return padRight(verbAndName("Adding", name, 22), 39) + "Total:" + format("%3d%%", percent) +
           rightAligned(done, 11) + rightAligned(packed, 11) +
           format("%7s%%", ratioText(packed, done).c_str());
}

std::string addFileLine(const std::string& name, std::uint64_t size, std::uint64_t packed) {
    return padRight(verbAndName("Adding", name, 41), 49) + rightAligned(size, 11) +
           rightAligned(packed, 11) + format("%7s%%", ratioText(packed, size).c_str());
}

std::string addTotalLine(double seconds, std::uint64_t size, std::uint64_t packed) {
    return padRight(format("Completed successfully (%.1f sec)", seconds), 43) +
           "Total:" + rightAligned(size, 11) + rightAligned(packed, 11) +
           format("%7s%%", ratioText(packed, size).c_str());
}

// Name up to column 68, "Total:" at 70, per cent at 76-79.
std::string jobProgressLine(const std::string& verb, const std::string& name, int percent,
                            int filePercent) {
    // The engine keeps 50 columns for the name and, while a big file is written, shows how
    // far into it it is after the name.
    std::string shown = verbAndName(verb, name, 50);
    if (filePercent >= 0)
        shown += format(" (%d%%)", filePercent);
    return padRight(shown, 69) + "Total:" + format("%3d%%", percent);
}

std::string jobFileLine(const std::string& verb, const std::string& name) {
    // The line a file ends with has room for 64 columns of its name.
    return padRight(verbAndName(verb, name, 64), kWidth);
}

std::string jobTotalLine(double seconds) {
    return padRight(format("Completed successfully (%.1f sec)", seconds), 67) + "All files OK";
}

std::string listDetailLine(std::uint64_t size, std::int64_t mtime, std::uint8_t attr,
                           std::uint32_t crc) {
    return rightAligned(size, 40) + "  " + dateText(mtime) + "  " + timeText(mtime) + "  " +
           attrText(attr) + "  " + format("%08X", crc);
}

// "8 files" or "1 file" from column 1, the size ending at column 40.
std::string listTotalsLine1(std::size_t files, std::uint64_t size) {
    return padRight(format("%zu %s", files, files == 1 ? "file" : "files"), 20) +
           rightAligned(size, 20);
}

std::string listTotalsLine2(std::uint64_t packed, char method, std::uint64_t size) {
    return rightAligned(packed, 40) + " packed (" + methodField(method) +
           "-mode), ratio: " + ratioText(packed, size) + "%";
}

// Same width and date column as the engine's "=== UHARC 0.6 LOG ===...=== date  time ===".
std::string logTitleLine(const std::string& version, std::int64_t now) {
    std::string left = "=== QUOVARA STAND-IN ENGINE " + version + " LOG ";
    std::string right = " " + dateText(now) + "  " + timeText(now) + " ===";
    return left + std::string(kWidth - left.size() - right.size(), '=') + right;
}

} // namespace standin
