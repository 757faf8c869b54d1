// Names as characters: the stand-in takes file names as UTF-8 (command line, list files,
// file system) and lines up its columns by characters (code points), not by bytes.
#pragma once

#include <cstddef>
#include <string>

namespace standin {

// Decodes UTF-8. A byte that does not belong to a well-formed sequence becomes one
// character of its own (U+DC80 + the byte), so that encodeUtf8 gives the same bytes back.
std::u32string decodeUtf8(const std::string& s);
std::string encodeUtf8(const std::u32string& s);

// The number of characters of a UTF-8 text.
std::size_t charCount(const std::string& s);

// The lower-case form of every character, for comparing names without regard to case
// (A-Z and the letters of other scripts, such as Ł, Α, П).
std::u32string folded(const std::string& s);

} // namespace standin
