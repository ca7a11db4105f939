#pragma once

#include <sys/types.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>

// The system's calls on a descriptor, repeated where a signal or the lack of room interrupts them. Errors are the
// system's numbers.
namespace tavrik::core {

inline constexpr std::uint64_t kFarthestByte = std::numeric_limits<off_t>::max();

template <class Call>
auto retried(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

std::size_t read_at(int descriptor, std::uint64_t position, std::span<char> bytes, int& error);
std::size_t read_next(int descriptor, std::span<char> bytes, int& error);
// These two write all, and no signal that a failure sends ends the process.
int write_at(int descriptor, std::uint64_t position, std::string_view bytes);
int write_next(int descriptor, std::string_view bytes);
std::uint64_t length_of(int descriptor, int& error);
int set_length_of(int descriptor, std::uint64_t length);
int close_descriptor(int descriptor);

}  // namespace tavrik::core
