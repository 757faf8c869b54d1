// Checksums, the small compressors and the password keystream of the stand-in engine.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace standin {

using Bytes = std::vector<std::uint8_t>;

// CRC-32 (polynomial 0xEDB88320), the checksum printed in listings; 0 for no data.
std::uint32_t crc32(const std::uint8_t* data, std::size_t size, std::uint32_t crc = 0);

// Packs data with the method letter of the "-m" switch ('0', '1', '2', '3', 'x', 'z').
// '0' stores the bytes as they are. The others use a small LZ77 coder (window and search
// depth grow from '1' to 'x') or an LZP coder ('z'); their output starts with one byte
// that says whether the rest is coded (1) or, because coding did not pay, raw (0).
// Empty input packs to nothing.
Bytes pack(char method, const Bytes& data);

// Reverses pack(). Returns false when the packed bytes are malformed or do not give
// exactly `size` bytes; `out` then holds whatever could be decoded.
bool unpack(char method, const Bytes& packed, std::size_t size, Bytes& out);

// The value stored in a protected archive to recognise its password.
std::uint32_t passwordCheck(const std::string& password);

// XORs data in place with a keystream derived from the password and the entry's index.
// Applying it twice gives the data back. A fixture for protected archives, not security.
void scramble(Bytes& data, const std::string& password, std::uint32_t entryIndex);

} // namespace standin
