// Line layouts of the engine's console output and listing log: 79 columns, right-aligned
// number columns, names shortened with "..." when their field is too narrow. Widths count
// characters (names are UTF-8), so a line with "Łódź.txt" lines up as one with "Lodz.txt".
#pragma once

#include <cstdint>
#include <string>

namespace standin {

inline constexpr std::size_t kWidth = 79;

std::string rightAligned(std::uint64_t value, std::size_t width);
// `s` (UTF-8) followed by blanks up to `width` characters.
std::string padRight(const std::string& s, std::size_t width);
// The last `width - 3` characters behind "..." when `s` is longer than `width` characters.
std::string shortened(const std::string& s, std::size_t width);
// Packed size in per cent of the size, one decimal ("34.8"); 0.0 for no data.
std::string ratioText(std::uint64_t packed, std::uint64_t size);
// Per cent done before a file, rounded down.
int percentDone(std::uint64_t done, std::uint64_t total);

std::string dateText(std::int64_t t);    // "22-Nov-2026"
std::string timeText(std::int64_t t);    // "14:28:18"
std::string createdText(std::int64_t t); // "22-Nov-2026, 14:35"
std::string methodField(char method);    // "ALZ:3", "PPM", "LZP"
std::string attrText(std::uint8_t attr); // "---A"

// Add job.
std::string addHeaderLine(std::size_t files, std::uint64_t bytes);
std::string addProgressLine(const std::string& name, int percent, std::uint64_t done,
                            std::uint64_t packed);
std::string addFileLine(const std::string& name, std::uint64_t size, std::uint64_t packed);
std::string addTotalLine(double seconds, std::uint64_t size, std::uint64_t packed);

// Extract and test jobs; `verb` is "Extracting", "Testing" or "Skipping".
std::string jobProgressLine(const std::string& verb, const std::string& name, int percent,
                            int filePercent = -1);
std::string jobFileLine(const std::string& verb, const std::string& name);
std::string jobTotalLine(double seconds);

// Listing.
std::string listDetailLine(std::uint64_t size, std::int64_t mtime, std::uint8_t attr,
                           std::uint32_t crc);
std::string listTotalsLine1(std::size_t files, std::uint64_t size);
std::string listTotalsLine2(std::uint64_t packed, char method, std::uint64_t size);
std::string logTitleLine(const std::string& version, std::int64_t now);

} // namespace standin
