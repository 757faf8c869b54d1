// The stand-in engine's own container format (never the UHA format).
//
// All numbers little-endian:
//   magic     10 bytes  "QVSTANDIN" + 0x1A   (so the file never starts with "UHA")
//   version    3 bytes  "0.6" or "0.4": the engine version that wrote the archive
//   flags      1 byte   bit 0: protected by a password
//   check      4 bytes  password check value (0 when not protected)
//   created    8 bytes  creation time, seconds since 1970
//   method     1 byte   method letter of the last add ('0' '1' '2' '3' 'x' 'z')
//   count      4 bytes  number of entries
// then per entry:
//   name length 2 bytes, name (stored name, "\" as separator, bytes as given)
//   size 8, time 8 (seconds since 1970), attributes 1 (DOS bits), CRC-32 4,
//   method 1, packed length 8, packed data (scrambled when protected).
// An empty folder stored by an add with -ed+ is an entry with the directory attribute (0x10):
// its name as stored names are ("src\emptyd\inner", no separator at its end), size 0, CRC-32 0,
// no packed data.
#pragma once

#include "codec.h"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

namespace standin {

inline constexpr char kMagic[] = "QVSTANDIN\x1a";
inline constexpr std::size_t kMagicSize = 10;

enum Attr : std::uint8_t {
    AttrReadOnly = 0x01,
    AttrHidden = 0x02,
    AttrSystem = 0x04,
    AttrDirectory = 0x10,
    AttrArchive = 0x20
};

struct Entry {
    std::string name;
    std::uint64_t size = 0;
    std::int64_t mtime = 0;
    std::uint8_t attr = AttrArchive;
    std::uint32_t crc = 0;
    char method = '2';
    Bytes packed;                   // plain packed bytes (not scrambled)
    std::uint64_t packedLength = 0; // as stored, also when the data was not read
};

struct Archive {
    std::string version;
    bool isProtected = false;
    std::uint32_t check = 0;
    std::int64_t created = 0;
    char method = '2';
    std::vector<Entry> entries;
};

enum class ReadStatus {
    Ok,
    CantOpen,         // no such file or no access
    NotArchive,       // no magic: "No UHARC x.y archive"
    OtherVersion,     // made by another engine version (Archive::version says which)
    PasswordRequired, // protected, no password given
    Corrupt,          // truncated, garbage after the magic, or wrong password
};

struct ReadResult {
    ReadStatus status = ReadStatus::Ok;
    bool headerRead = false; // magic, version and creation time were read
};

// Reads a whole archive; `password` descrambles protected data. With `headersOnly` the entries'
// packed data is left out (a listing needs only names and details).
ReadResult readArchive(const std::filesystem::path& path, const std::string& ownVersion,
                       const std::string& password, Archive& out, bool headersOnly = false);

// Writes archives entry by entry, so that an interrupted add leaves a partial file.
class ArchiveWriter {
public:
    bool open(const std::filesystem::path& path, const Archive& header,
              const std::string& password);
    bool add(const Entry& entry);
    bool finish(); // patches the entry count and closes
    std::uint32_t count() const { return count_; }

private:
    std::FILE* file_ = nullptr;
    std::string password_;
    bool protected_ = false;
    std::uint32_t count_ = 0;
    long countPos_ = 0;
};

} // namespace standin
