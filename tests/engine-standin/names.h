// Text and path helpers of the stand-in engine: case, blanks, separators, the safe parts of a
// stored path, wildcard matching as the engine does it, and file times.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace standin {

std::string lower(std::string s);
// Without leading and trailing blanks and tabs.
std::string trim(const std::string& s);
// `s` with every `from` made `to`.
std::string replaced(std::string s, char from, char to);
// The parts of a path between "\" and "/" separators.
std::vector<std::string> splitPath(const std::string& s);
// "C:" and the like.
bool isDrive(const std::string& c);
std::string join(const std::vector<std::string>& parts, const std::string& sep);
// The name after the last separator.
std::string filePart(const std::string& stored);
bool hasWildcard(const std::string& s);
// Case-insensitive whole-string match with "*" (any run, separators included) and "?" (one
// character, however many bytes it takes in UTF-8).
bool wildMatch(const std::string& pattern, const std::string& text);
// A pattern with a folder part is matched against the whole stored name, one without
// against the file name only. As on DOS, a trailing ".*" also matches names without a dot.
bool nameMatches(const std::string& pattern, const std::string& stored);
bool anyMatches(const std::vector<std::string>& patterns, const std::string& stored);

// Seconds since the epoch, now and of a file's modification time; setting that time.
std::int64_t nowSeconds();
std::int64_t fileTimeSeconds(const std::filesystem::path& p);
void setFileTime(const std::filesystem::path& p, std::int64_t t);
// Takes every write permission away, as wine does for a file with the DOS read-only attribute.
void setReadOnly(const std::filesystem::path& p);

} // namespace standin
