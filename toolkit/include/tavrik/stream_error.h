#pragma once

#include <cstdint>

namespace tavrik {

// What LastErrorCode of a stream tells. A failure stays until the stream ends or is made anew; the end of the data only
// until the position is set.
enum class StreamError : std::int32_t {
    kNone = 0,
    kEndOfData = 1,
    kReadFailed = 3,
    kWriteFailed = 5,
    kNoRoom = 7,
    kNotOpen = 9,
    kReadOnly = 11,
    kNoPosition = 13,  // a pipe and its like have none to set
};

// The one kind of handle that a stream has: a file descriptor.
inline constexpr std::int32_t kHandleOfDescriptor = 0;

}  // namespace tavrik
