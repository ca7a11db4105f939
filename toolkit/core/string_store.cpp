#include "toolkit/core/memory_stores.h"

#include <algorithm>
#include <cerrno>
#include <limits>

namespace tavrik::core {
namespace {

// No text is longer.
constexpr std::uint64_t kLongest = std::numeric_limits<std::int32_t>::max() - kStringOverhead;

}  // namespace

std::string& StringStore::copy() {
    if (!copy_) {
        copy_.emplace(text_.view());
        text_ = nullptr;
    }
    return *copy_;
}

std::size_t StringStore::read(std::uint64_t position, std::span<char> into, int& error) {
    error = 0;
    const std::string_view all = bytes();
    const std::string_view there = all.substr(std::min<std::uint64_t>(position, all.size()), into.size());
    std::ranges::copy(there, into.begin());
    return there.size();
}

int StringStore::write(std::uint64_t position, std::string_view from) {
    if (from.size() > kLongest || position > kLongest - from.size()) return EFBIG;
    std::string& text = copy();
    if (text.size() < position + from.size()) text.resize(position + from.size());
    std::ranges::copy(from, text.begin() + static_cast<std::ptrdiff_t>(position));
    return 0;
}

std::uint64_t StringStore::length(int& error) {
    error = 0;
    return bytes().size();
}

int StringStore::set_length(std::uint64_t length) {
    if (length > kLongest) return EFBIG;
    copy().resize(length);
    return 0;
}

}  // namespace tavrik::core
