#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace tavrik::front::terminal {

// Cuts what comes from a descriptor into lines. A line ends before LF; what stands behind the last one is a line too.
class LineReader {
public:
    // Longer than any path; a line loses what stands behind, so that input without an end takes no memory without end.
    static constexpr std::size_t kLongestLine = 1 << 20;

    explicit LineReader(int descriptor) : descriptor_(descriptor) {}

    int descriptor() const { return descriptor_; }
    // Reads once what is there, and blocks if nothing is.
    void fill();
    // The next line, if the whole of it is there.
    std::optional<std::string> next();
    // Whether next() has a line, or never will have one again.
    bool ready() const { return closed_ || line_end() != std::string::npos; }
    bool ended() const { return closed_ && buffer_.empty(); }
    // Drops what has not been taken, as if the input had ended before it.
    void close();

private:
    std::size_t line_end() const;
    void shorten();

    int descriptor_;
    bool closed_ = false;
    std::string buffer_;
    mutable std::size_t searched_ = 0;  // so much of the buffer is known to hold no line end
};

}  // namespace tavrik::front::terminal
