#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

// The same bytes, written on the standard library. What it does is out of the compiler's sight, and checks nothing.
namespace tavrik::bench {

using PlainBlock = std::vector<std::byte>;

std::unique_ptr<PlainBlock> make_plain_block(std::size_t size);
std::int32_t copy_out(const PlainBlock& block, std::int32_t offset);
void copy_in(PlainBlock& block, std::int32_t offset, std::int32_t value);

}  // namespace tavrik::bench
