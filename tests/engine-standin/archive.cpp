#include "archive.h"

#include "codepage.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>

namespace standin {

namespace {

// Reads an archive piece by piece from its file, so that a listing can pass over the packed
// data (the engine's listing reads the headers only) and nothing holds the whole file.
class Reader {
public:
    Reader(std::istream& in, std::size_t size) : in_(in), size_(size) {}
    // The next `n` bytes; `p` stays valid until the next call.
    bool bytes(std::size_t n, const std::uint8_t*& p) {
        if (size_ - pos_ < n)
            return false;
        buffer_.resize(n);
        if (n > 0 &&
            !in_.read(reinterpret_cast<char*>(buffer_.data()), static_cast<std::streamsize>(n)))
            return false;
        p = buffer_.data();
        pos_ += n;
        return true;
    }
    bool skip(std::size_t n) {
        if (size_ - pos_ < n)
            return false;
        in_.seekg(static_cast<std::streamoff>(n), std::ios::cur);
        pos_ += n;
        return static_cast<bool>(in_);
    }
    template <typename T> bool num(T& v) {
        const std::uint8_t* p = nullptr;
        if (!bytes(sizeof(T), p))
            return false;
        std::uint64_t x = 0;
        for (std::size_t i = 0; i < sizeof(T); ++i)
            x |= static_cast<std::uint64_t>(p[i]) << (8 * i);
        v = static_cast<T>(x);
        return true;
    }
    std::size_t left() const { return size_ - pos_; }

private:
    std::istream& in_;
    std::size_t size_;
    std::size_t pos_ = 0;
    Bytes buffer_;
};

template <typename T> void put(std::string& s, T v) {
    auto x = static_cast<std::uint64_t>(v);
    for (std::size_t i = 0; i < sizeof(T); ++i)
        s.push_back(static_cast<char>((x >> (8 * i)) & 0xFF));
}

} // namespace

ReadResult readArchive(const std::filesystem::path& path, const std::string& ownVersion,
                       const std::string& password, Archive& out, bool headersOnly) {
    ReadResult res;
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec)) {
        res.status = ReadStatus::CantOpen;
        return res;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        res.status = ReadStatus::CantOpen;
        return res;
    }
    in.seekg(0, std::ios::end);
    const std::streamoff length = in.tellg();
    in.seekg(0, std::ios::beg);
    const std::size_t size = length > 0 ? static_cast<std::size_t>(length) : 0;
    Reader r(in, size);
    const std::uint8_t* p = nullptr;
    // A file that is a beginning of the magic (an empty one too) is a truncated archive.
    const std::size_t common = std::min(size, kMagicSize);
    if (!r.bytes(common, p)) {
        res.status = ReadStatus::CantOpen;
        return res;
    }
    if (common > 0 && std::memcmp(p, kMagic, common) != 0) {
        res.status = ReadStatus::NotArchive;
        return res;
    }
    if (size < kMagicSize + 3) {
        res.status = ReadStatus::Corrupt;
        return res;
    }
    r.bytes(3, p);
    out.version.assign(reinterpret_cast<const char*>(p), 3);
    if (out.version != ownVersion) {
        // An older engine cannot know newer formats; only the newer one points to the older.
        res.status = ownVersion > out.version ? ReadStatus::OtherVersion : ReadStatus::NotArchive;
        return res;
    }
    std::uint8_t flags = 0;
    std::uint8_t method = 0;
    std::uint32_t count = 0;
    if (!r.num(flags) || !r.num(out.check) || !r.num(out.created) || !r.num(method) ||
        !r.num(count)) {
        res.status = ReadStatus::Corrupt;
        return res;
    }
    res.headerRead = true;
    out.isProtected = flags & 1;
    out.method = static_cast<char>(method);
    if (out.isProtected && password.empty()) {
        res.status = ReadStatus::PasswordRequired;
        return res;
    }
    if (out.isProtected && passwordCheck(password) != out.check) {
        res.status = ReadStatus::Corrupt;
        return res;
    }
    for (std::uint32_t i = 0; i < count; ++i) {
        Entry e;
        std::uint16_t nameLen = 0;
        std::uint8_t m = 0;
        std::uint64_t packedLen = 0;
        if (!r.num(nameLen) || !r.bytes(nameLen, p)) {
            res.status = ReadStatus::Corrupt;
            return res;
        }
        // Names are kept in the OEM code page when the stand-in plays one.
        e.name = fromOem(std::string(reinterpret_cast<const char*>(p), nameLen));
        if (!r.num(e.size) || !r.num(e.mtime) || !r.num(e.attr) || !r.num(e.crc) || !r.num(m) ||
            !r.num(packedLen) || packedLen > r.left() ||
            (headersOnly ? !r.skip(packedLen) : !r.bytes(packedLen, p))) {
            res.status = ReadStatus::Corrupt;
            return res;
        }
        e.method = static_cast<char>(m);
        e.packedLength = packedLen;
        out.entries.push_back(std::move(e));
        // A listing reads the headers only, as the engine's does: the data is not unpacked.
        if (headersOnly)
            continue;
        Entry& kept = out.entries.back();
        kept.packed.assign(p, p + packedLen);
        if (out.isProtected)
            scramble(kept.packed, password, i);
    }
    return res;
}

bool ArchiveWriter::open(const std::filesystem::path& path, const Archive& header,
                         const std::string& password) {
    file_ = std::fopen(path.c_str(), "wb");
    if (!file_)
        return false;
    password_ = password;
    protected_ = !password.empty();
    std::string h(kMagic, kMagicSize);
    h += header.version;
    put<std::uint8_t>(h, protected_ ? 1 : 0);
    put<std::uint32_t>(h, protected_ ? passwordCheck(password) : 0);
    put<std::int64_t>(h, header.created);
    put<std::uint8_t>(h, static_cast<std::uint8_t>(header.method));
    countPos_ = static_cast<long>(h.size());
    put<std::uint32_t>(h, 0);
    return std::fwrite(h.data(), 1, h.size(), file_) == h.size() && std::fflush(file_) == 0;
}

bool ArchiveWriter::add(const Entry& e) {
    std::string h;
    const std::string name = toOem(e.name);
    put<std::uint16_t>(h, static_cast<std::uint16_t>(name.size()));
    h += name;
    put<std::uint64_t>(h, e.size);
    put<std::int64_t>(h, e.mtime);
    put<std::uint8_t>(h, e.attr);
    put<std::uint32_t>(h, e.crc);
    put<std::uint8_t>(h, static_cast<std::uint8_t>(e.method));
    put<std::uint64_t>(h, e.packed.size());
    Bytes data = e.packed;
    if (protected_)
        scramble(data, password_, count_);
    bool ok = std::fwrite(h.data(), 1, h.size(), file_) == h.size() &&
              (data.empty() || std::fwrite(data.data(), 1, data.size(), file_) == data.size()) &&
              std::fflush(file_) == 0;
    ++count_;
    return ok;
}

bool ArchiveWriter::finish() {
    std::string c;
    put<std::uint32_t>(c, count_);
    bool ok = std::fseek(file_, countPos_, SEEK_SET) == 0 &&
              std::fwrite(c.data(), 1, c.size(), file_) == c.size();
    ok = std::fclose(file_) == 0 && ok;
    file_ = nullptr;
    return ok;
}

} // namespace standin
