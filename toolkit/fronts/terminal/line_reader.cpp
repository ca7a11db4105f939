#include "toolkit/fronts/terminal/line_reader.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace tavrik::front::terminal {

void LineReader::fill() {
    std::array<char, 4096> block;
    const ssize_t length = ::read(descriptor_, block.data(), block.size());
    if (length > 0) {
        buffer_.append(block.data(), static_cast<std::size_t>(length));
        if (line_end() == std::string::npos) shorten();
        return;
    }
    const bool come_again = length < 0 && (errno == EINTR || errno == EAGAIN || errno == EWOULDBLOCK);
    if (!come_again) closed_ = true;
}

std::optional<std::string> LineReader::next() {
    const std::size_t end = line_end();
    if (end == std::string::npos) {
        if (!closed_ || buffer_.empty()) return std::nullopt;
        return std::exchange(buffer_, {});
    }
    std::string line = buffer_.substr(0, end);
    buffer_.erase(0, end + 1);
    searched_ = 0;
    return line;
}

void LineReader::close() {
    closed_ = true;
    buffer_.clear();
    searched_ = 0;
}

void LineReader::shorten() {
    buffer_.resize(std::min(buffer_.size(), kLongestLine));
    searched_ = buffer_.size();
}

std::size_t LineReader::line_end() const {
    const std::size_t end = buffer_.find('\n', searched_);
    searched_ = std::min(end, buffer_.size());
    return end;
}

}  // namespace tavrik::front::terminal
