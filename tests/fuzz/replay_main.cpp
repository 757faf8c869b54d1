// Replay driver for the fuzz targets in the normal build: feeds every file of the seed folders
// given on the command line to the target, then a number of pseudo-random mutations of them
// (fixed seed, so every run is the same). A crash or an abort fails the test.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
// Optional in a target, as with libFuzzer.
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace {

using Bytes = std::vector<uint8_t>;

// Pieces that the engine's output and listing logs are made of.
const char* const Tokens[] = {
    "\r",
    "\n",
    "\r\n",
    "ERROR:",
    " --> ",
    "--",
    "--> use UHARC version 0.4",
    "Total:",
    "Adding",
    "(",
    "%",
    " ",
    "file size packed ratio",
    "-------------------------------------------------------------------------------",
    "9999999999",
    "-1",
    "1e308",
    "\b",
    "\xc4\xff"};

void run(const Bytes& b) {
    LLVMFuzzerTestOneInput(b.data(), b.size());
}

Bytes mutate(const std::vector<Bytes>& seeds, std::mt19937& rng) {
    auto pick = [&](size_t n) { return n == 0 ? size_t(0) : size_t(rng() % n); };
    Bytes b = seeds[pick(seeds.size())];
    const int steps = 1 + int(rng() % 8);
    for (int s = 0; s < steps; ++s) {
        switch (rng() % 7) {
        case 0: // change one byte
            if (!b.empty())
                b[pick(b.size())] = uint8_t(rng());
            break;
        case 1: { // insert a token
            const char* t = Tokens[pick(std::size(Tokens))];
            b.insert(b.begin() + long(pick(b.size() + 1)), t, t + std::strlen(t));
            break;
        }
        case 2: { // delete a range
            if (b.empty())
                break;
            const size_t at = pick(b.size());
            const size_t n = std::min(b.size() - at, size_t(1 + rng() % 64));
            b.erase(b.begin() + long(at), b.begin() + long(at + n));
            break;
        }
        case 3: { // duplicate a range
            if (b.empty())
                break;
            const size_t at = pick(b.size());
            const size_t n = std::min(b.size() - at, size_t(1 + rng() % 256));
            Bytes part(b.begin() + long(at), b.begin() + long(at + n));
            b.insert(b.begin() + long(pick(b.size() + 1)), part.begin(), part.end());
            break;
        }
        case 4: // truncate
            b.resize(pick(b.size() + 1));
            break;
        case 5: { // splice with another seed
            const Bytes& o = seeds[pick(seeds.size())];
            const size_t cut = pick(b.size() + 1);
            const size_t from = pick(o.size() + 1);
            b.resize(cut);
            b.insert(b.end(), o.begin() + long(from), o.end());
            break;
        }
        default: // a run of random bytes
            for (int i = int(rng() % 16); i > 0; --i)
                b.insert(b.begin() + long(pick(b.size() + 1)), uint8_t(rng()));
            break;
        }
        if (b.size() > 65536)
            b.resize(65536);
    }
    return b;
}

} // namespace

int main(int argc, char** argv) {
    if (LLVMFuzzerInitialize)
        LLVMFuzzerInitialize(&argc, &argv);
    long mutations = 2000;
    std::vector<Bytes> seeds;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--mutations") == 0 && i + 1 < argc) {
            mutations = std::strtol(argv[++i], nullptr, 10);
            continue;
        }
        std::error_code ec;
        std::filesystem::path p(argv[i]);
        std::vector<std::filesystem::path> files;
        if (std::filesystem::is_directory(p, ec)) {
            for (const auto& e : std::filesystem::recursive_directory_iterator(p, ec))
                if (e.is_regular_file())
                    files.push_back(e.path());
        } else if (std::filesystem::is_regular_file(p, ec)) {
            files.push_back(p);
        }
        std::sort(files.begin(), files.end());
        for (const auto& f : files) {
            std::ifstream in(f, std::ios::binary);
            seeds.emplace_back(std::istreambuf_iterator<char>(in),
                               std::istreambuf_iterator<char>());
        }
    }
    seeds.push_back(Bytes());
    for (const Bytes& s : seeds)
        run(s);
    std::mt19937 rng(20240601u);
    for (long i = 0; i < mutations; ++i)
        run(mutate(seeds, rng));
    std::printf("replayed %zu seeds and %ld mutations\n", seeds.size(), mutations);
    return 0;
}
