#include "bench/streams/plain_block.h"

#include <cstring>

namespace tavrik::bench {

std::unique_ptr<PlainBlock> make_plain_block(std::size_t size) { return std::make_unique<PlainBlock>(size); }

std::int32_t copy_out(const PlainBlock& block, std::int32_t offset) {
    std::int32_t value = 0;
    std::memcpy(&value, block.data() + offset, sizeof value);
    return value;
}

void copy_in(PlainBlock& block, std::int32_t offset, std::int32_t value) {
    std::memcpy(block.data() + offset, &value, sizeof value);
}

}  // namespace tavrik::bench
