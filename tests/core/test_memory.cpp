#include "core/processcontrol.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace quovara {
namespace {

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
// Bytes the C library holds in mappings of their own.
size_t MappedBytes() {
    return mallinfo2().hblkhd;
}

volatile unsigned char gSink;

// Allocates and touches `bytes`, so that the block is really there (read back through a
// volatile, so that the compiler cannot leave the allocation out).
void* Touched(size_t bytes) {
    auto* block = static_cast<unsigned char*>(std::malloc(bytes));
    if (block) {
        std::memset(block, 1, bytes);
        gSink = block[bytes - 1];
    }
    return block;
}

TEST(KeepBigBlocksReturnable, ABlockAsBigAsOneFreedBeforeIsStillMappedOnItsOwn) {
    KeepBigBlocksReturnable();
    // The C library's own rule would now put every block up to 8 MiB in the heap.
    std::free(Touched(8u << 20));
    const size_t before = MappedBytes();
    void* table = Touched(2u << 20);
    ASSERT_NE(table, nullptr);
    EXPECT_GE(MappedBytes(), before + (2u << 20));
    std::free(table);
    // Freed, it is gone from the process at once.
    EXPECT_EQ(MappedBytes(), before);
}

TEST(KeepBigBlocksReturnable, SmallBlocksStayInTheHeap) {
    KeepBigBlocksReturnable();
    const size_t before = MappedBytes();
    void* small = Touched(64u << 10);
    ASSERT_NE(small, nullptr);
    EXPECT_EQ(MappedBytes(), before);
    std::free(small);
}
#endif

} // namespace
} // namespace quovara
