#include "codec.h"

#include <array>

namespace standin {

namespace {

std::array<std::uint32_t, 256> makeCrcTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t c = i;
        for (int k = 0; k < 8; ++k)
            c = (c & 1) ? (0xEDB88320u ^ (c >> 1)) : (c >> 1);
        table[i] = c;
    }
    return table;
}

// Token stream shared by both coders: a flag byte announces the kind of the next eight
// items (bit set = match, lowest bit first), then the items follow.
class TokenWriter {
public:
    explicit TokenWriter(Bytes& out) : out_(out) {}
    void literal(std::uint8_t b) {
        flag(false);
        out_.push_back(b);
    }
    void match(std::initializer_list<std::uint8_t> bytes) {
        flag(true);
        out_.insert(out_.end(), bytes);
    }

private:
    void flag(bool isMatch) {
        if (bit_ == 8) {
            flagPos_ = out_.size();
            out_.push_back(0);
            bit_ = 0;
        }
        if (isMatch)
            out_[flagPos_] |= static_cast<std::uint8_t>(1u << bit_);
        ++bit_;
    }
    Bytes& out_;
    std::size_t flagPos_ = 0;
    int bit_ = 8;
};

class TokenReader {
public:
    explicit TokenReader(const Bytes& in) : in_(in) {}
    // Returns 0 for a literal, 1 for a match, -1 at a malformed end.
    int next() {
        if (bit_ == 8) {
            if (pos_ >= in_.size())
                return -1;
            flags_ = in_[pos_++];
            bit_ = 0;
        }
        return (flags_ >> bit_++) & 1;
    }
    bool byte(std::uint8_t& b) {
        if (pos_ >= in_.size())
            return false;
        b = in_[pos_++];
        return true;
    }
    void skip(std::size_t n) { pos_ = n; }

private:
    const Bytes& in_;
    std::size_t pos_ = 0;
    std::uint8_t flags_ = 0;
    int bit_ = 8;
};

struct LzParams {
    std::size_t window; // largest distance back
    int chain;          // candidates looked at per position
    bool lazy;          // try one position later before taking a match
};

LzParams lzParams(char method) {
    switch (method) {
    case '1':
        return {4096, 1, false};
    case '2':
        return {16384, 8, false};
    case '3':
        return {65535, 48, false};
    default: // 'x'
        return {65535, 256, true};
    }
}

constexpr std::size_t kMinMatch = 3;
constexpr std::size_t kMaxMatch = 258;

std::uint32_t hash3(const std::uint8_t* p) {
    return ((p[0] << 10) ^ (p[1] << 5) ^ p[2]) & 0xFFFF;
}

// Hash-chain LZ77: match = 16-bit distance, 8-bit length - 3.
Bytes lzEncode(const Bytes& in, const LzParams& prm) {
    Bytes out;
    TokenWriter w(out);
    const std::size_t n = in.size();
    std::vector<std::int64_t> head(65536, -1);
    std::vector<std::int64_t> prev(n, -1);
    auto insert = [&](std::size_t i) {
        if (i + kMinMatch <= n) {
            auto h = hash3(&in[i]);
            prev[i] = head[h];
            head[h] = static_cast<std::int64_t>(i);
        }
    };
    auto find = [&](std::size_t i, std::size_t& dist) {
        std::size_t best = 0;
        if (i + kMinMatch > n)
            return best;
        std::int64_t cand = head[hash3(&in[i])];
        for (int c = 0; c < prm.chain && cand >= 0; ++c, cand = prev[cand]) {
            std::size_t d = i - static_cast<std::size_t>(cand);
            if (d > prm.window)
                break;
            std::size_t len = 0;
            while (len < kMaxMatch && i + len < n && in[cand + len] == in[i + len])
                ++len;
            if (len > best) {
                best = len;
                dist = d;
            }
        }
        return best;
    };
    std::size_t i = 0;
    while (i < n) {
        std::size_t dist = 0;
        std::size_t len = find(i, dist);
        if (len >= kMinMatch && prm.lazy && i + 1 < n) {
            // Lazy matching: a longer match one byte later wins over this one.
            std::size_t dist2 = 0;
            if (find(i + 1, dist2) > len) {
                w.literal(in[i]);
                insert(i);
                ++i;
                continue;
            }
        }
        if (len >= kMinMatch) {
            w.match({static_cast<std::uint8_t>(dist & 0xFF), static_cast<std::uint8_t>(dist >> 8),
                     static_cast<std::uint8_t>(len - kMinMatch)});
            for (std::size_t k = 0; k < len; ++k)
                insert(i + k);
            i += len;
        } else {
            w.literal(in[i]);
            insert(i);
            ++i;
        }
    }
    return out;
}

bool lzDecode(const Bytes& in, std::size_t size, Bytes& out) {
    TokenReader r(in);
    r.skip(1);
    while (out.size() < size) {
        int kind = r.next();
        if (kind < 0)
            return false;
        std::uint8_t a = 0, b = 0, c = 0;
        if (kind == 0) {
            if (!r.byte(a))
                return false;
            out.push_back(a);
            continue;
        }
        if (!r.byte(a) || !r.byte(b) || !r.byte(c))
            return false;
        std::size_t dist = a | (static_cast<std::size_t>(b) << 8);
        std::size_t len = c + kMinMatch;
        if (dist == 0 || dist > out.size() || out.size() + len > size)
            return false;
        std::size_t from = out.size() - dist;
        for (std::size_t k = 0; k < len; ++k)
            out.push_back(out[from + k]);
    }
    return true;
}

// LZP: the last three bytes predict where the same context was last seen; a match is just
// its length (2..255), a literal a plain byte.
constexpr std::size_t kLzpOrder = 3;

Bytes lzpEncode(const Bytes& in) {
    Bytes out;
    TokenWriter w(out);
    std::vector<std::int64_t> table(65536, -1);
    const std::size_t n = in.size();
    std::size_t i = 0;
    while (i < n) {
        if (i >= kLzpOrder) {
            auto h = hash3(&in[i - kLzpOrder]);
            std::int64_t p = table[h];
            table[h] = static_cast<std::int64_t>(i);
            if (p >= 0) {
                std::size_t len = 0;
                while (len < 255 && i + len < n && in[p + len] == in[i + len])
                    ++len;
                if (len >= 2) {
                    w.match({static_cast<std::uint8_t>(len)});
                    i += len;
                    continue;
                }
            }
        }
        w.literal(in[i]);
        ++i;
    }
    return out;
}

bool lzpDecode(const Bytes& in, std::size_t size, Bytes& out) {
    TokenReader r(in);
    r.skip(1);
    std::vector<std::int64_t> table(65536, -1);
    while (out.size() < size) {
        std::int64_t p = -1;
        if (out.size() >= kLzpOrder) {
            auto h = hash3(&out[out.size() - kLzpOrder]);
            p = table[h];
            table[h] = static_cast<std::int64_t>(out.size());
        }
        int kind = r.next();
        if (kind < 0)
            return false;
        std::uint8_t b = 0;
        if (!r.byte(b))
            return false;
        if (kind == 0) {
            out.push_back(b);
            continue;
        }
        std::size_t len = b;
        if (p < 0 || len < 2 || out.size() + len > size)
            return false;
        for (std::size_t k = 0; k < len; ++k)
            out.push_back(out[static_cast<std::size_t>(p) + k]);
    }
    return true;
}

std::uint64_t fnv1a64(const std::string& s) {
    std::uint64_t h = 0xcbf29ce484222325ull;
    for (unsigned char c : s) {
        h ^= c;
        h *= 0x100000001b3ull;
    }
    return h;
}

} // namespace

std::uint32_t crc32(const std::uint8_t* data, std::size_t size, std::uint32_t crc) {
    static const auto table = makeCrcTable();
    crc = ~crc;
    for (std::size_t i = 0; i < size; ++i)
        crc = table[(crc ^ data[i]) & 0xFF] ^ (crc >> 8);
    return ~crc;
}

Bytes pack(char method, const Bytes& data) {
    if (method == '0' || data.empty())
        return data;
    Bytes coded{1};
    Bytes body = method == 'z' ? lzpEncode(data) : lzEncode(data, lzParams(method));
    if (body.size() >= data.size()) {
        Bytes raw{0};
        raw.insert(raw.end(), data.begin(), data.end());
        return raw;
    }
    coded.insert(coded.end(), body.begin(), body.end());
    return coded;
}

bool unpack(char method, const Bytes& packed, std::size_t size, Bytes& out) {
    out.clear();
    if (method == '0' || size == 0) {
        out = packed;
        return packed.size() == size;
    }
    if (packed.empty())
        return false;
    if (packed[0] == 0) {
        out.assign(packed.begin() + 1, packed.end());
        return out.size() == size;
    }
    if (packed[0] != 1)
        return false;
    out.reserve(size);
    bool ok = method == 'z' ? lzpDecode(packed, size, out) : lzDecode(packed, size, out);
    return ok && out.size() == size;
}

std::uint32_t passwordCheck(const std::string& password) {
    std::uint64_t h = fnv1a64("quovara stand-in password check:" + password);
    auto v = static_cast<std::uint32_t>(h ^ (h >> 32));
    return v == 0 ? 1 : v;
}

void scramble(Bytes& data, const std::string& password, std::uint32_t entryIndex) {
    std::uint64_t state = fnv1a64(password) ^ (0x9E3779B97F4A7C15ull * (entryIndex + 1ull));
    if (state == 0)
        state = 0x2545F4914F6CDD1Dull;
    for (std::size_t i = 0; i < data.size(); ++i) {
        if (i % 8 == 0) {
            state ^= state << 13;
            state ^= state >> 7;
            state ^= state << 17;
        }
        data[i] ^= static_cast<std::uint8_t>(state >> (8 * (i % 8)));
    }
}

} // namespace standin
