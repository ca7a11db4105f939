#include "toolkit/core/cursor_file.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <utility>
#include <vector>

namespace tavrik::core {
namespace {

constexpr int kCursorType = 2;
constexpr std::size_t kDirectoryBytes = 6;
constexpr std::size_t kEntryBytes = 16;
constexpr std::size_t kHeaderBytes = 40;
constexpr int kLongestSide = 256;
constexpr std::uint32_t kOpaque = 0xFF000000;

// Leaves the reader only as a reason.
struct Unreadable : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Bytes that are looked at within their bounds only.
class Bytes {
public:
    explicit Bytes(std::string_view bytes) : bytes_(bytes) {}

    Bytes part(std::size_t offset, std::size_t size) const {
        if (offset > bytes_.size() || size > bytes_.size() - offset) throw Unreadable("it ends too early");
        return Bytes(bytes_.substr(offset, size));
    }
    // A number of 1, 2 or 4 bytes, the lowest first.
    std::uint32_t number(std::size_t offset, std::size_t width) const {
        const Bytes taken = part(offset, width);
        std::uint32_t value = 0;
        for (std::size_t i = width; i-- > 0;) value = value << 8 | static_cast<unsigned char>(taken.bytes_[i]);
        return value;
    }
    std::uint32_t u8(std::size_t offset) const { return number(offset, 1); }
    std::uint32_t u16(std::size_t offset) const { return number(offset, 2); }
    std::uint32_t u32(std::size_t offset) const { return number(offset, 4); }
    std::size_t size() const { return bytes_.size(); }
    bool begins_with(std::string_view text) const { return bytes_.starts_with(text); }

private:
    std::string_view bytes_;
};

// Rows of a bitmap are filled up to whole words.
std::size_t row_bytes(int width, int bits) {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bits) + 31) / 32 * 4;
}

// An image as it lies in the file: colours, and below them a mask of what is transparent, both from the bottom up.
class Bitmap {
public:
    explicit Bitmap(const Bytes& bytes) : bytes_(bytes) {
        if (bytes.u32(0) != kHeaderBytes) throw Unreadable("its bitmap has an unknown header");
        width_ = side(bytes.u32(4));
        height_ = side(bytes.u32(8) / 2);  // colours and mask count together
        bits_ = static_cast<int>(bytes.u16(14));
        constexpr int kKnownBits[] = {1, 4, 8, 24, 32};
        if (std::ranges::find(kKnownBits, bits_) == std::end(kKnownBits))
            throw Unreadable("its pixels have " + std::to_string(bits_) + " bits");
        if (bytes.u32(16) != 0) throw Unreadable("its bitmap is compressed");

        if (bits_ <= 8) {
            const std::size_t all = std::size_t{1} << bits_;
            const std::size_t stated = bytes.u32(32);
            colors_ = stated == 0 ? all : std::min(stated, all);
        }
        const auto rows = static_cast<std::size_t>(height_);
        const std::size_t pixels_at = kHeaderBytes + colors_ * 4;
        pixels_ = bytes.part(pixels_at, row_bytes(width_, bits_) * rows);
        const std::size_t mask_at = pixels_at + pixels_.size();
        // With transparency of its own an image may do without a mask.
        has_mask_ = bits_ != 32 || bytes.size() > mask_at;
        if (has_mask_) mask_ = bytes.part(mask_at, row_bytes(width_, 1) * rows);
    }

    int width() const { return width_; }
    int height() const { return height_; }
    int bits() const { return bits_; }

    std::vector<std::uint32_t> pixels() const {
        std::vector<std::uint32_t> all;
        all.reserve(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
        const bool has_alpha = bits_ == 32 && any_alpha();
        for (int row = 0; row < height_; ++row) {
            for (int column = 0; column < width_; ++column) all.push_back(pixel(row, column, has_alpha));
        }
        return all;
    }

private:
    static int side(std::uint32_t length) {
        if (length == 0 || length > kLongestSide) throw Unreadable("its bitmap has an impossible size");
        return static_cast<int>(length);
    }

    // From the top.
    std::size_t row_start(int row, int bits) const {
        return row_bytes(width_, bits) * static_cast<std::size_t>(height_ - 1 - row);
    }
    std::uint32_t packed(const Bytes& bytes, int row, int column, int bits) const {
        const std::size_t at = static_cast<std::size_t>(column) * static_cast<std::size_t>(bits);
        const std::uint32_t byte = bytes.u8(row_start(row, bits) + at / 8);
        return byte >> (8 - static_cast<std::size_t>(bits) - at % 8) & ((1U << bits) - 1);
    }
    std::uint32_t color(int row, int column) const {
        if (bits_ <= 8) {
            const std::uint32_t index = packed(pixels_, row, column, bits_);
            return index < colors_ ? bytes_.u32(kHeaderBytes + index * 4) & ~kOpaque : 0;
        }
        const std::size_t width = static_cast<std::size_t>(bits_) / 8;
        return pixels_.number(row_start(row, bits_) + static_cast<std::size_t>(column) * width, width);
    }
    bool any_alpha() const {
        for (std::size_t at = 3; at < pixels_.size(); at += 4) {
            if (pixels_.u8(at) != 0) return true;
        }
        return false;
    }
    std::uint32_t pixel(int row, int column, bool has_alpha) const {
        const std::uint32_t own = color(row, column);
        if (has_alpha) return own;
        if (!has_mask_ || packed(mask_, row, column, 1) == 0) return own | kOpaque;
        // White on the transparent inverts the screen, which is black where nothing can invert.
        return (own & ~kOpaque) == 0 ? 0 : kOpaque;
    }

    Bytes bytes_;
    Bytes pixels_{{}};
    Bytes mask_{{}};
    int width_ = 0;
    int height_ = 0;
    int bits_ = 0;
    std::size_t colors_ = 0;
    bool has_mask_ = true;
};

struct Candidate {
    Bitmap bitmap;
    front::Point hot_spot;

    // The less, the better.
    std::pair<int, int> distance() const {
        constexpr int kUsualSide = 32;
        return {std::abs(bitmap.width() - kUsualSide) + std::abs(bitmap.height() - kUsualSide), -bitmap.bits()};
    }
};

front::CursorImage read(const Bytes& file) {
    if (file.u16(0) != 0 || file.u16(2) != kCursorType) throw Unreadable("it is no cursor");
    std::optional<Candidate> best;
    const std::size_t count = file.u16(4);
    for (std::size_t i = 0; i < count; ++i) {
        const Bytes entry = file.part(kDirectoryBytes + i * kEntryBytes, kEntryBytes);
        const Bytes image = file.part(entry.u32(12), entry.u32(8));
        if (image.begins_with("\x89PNG")) continue;
        Candidate candidate{Bitmap(image), {static_cast<int>(entry.u16(4)), static_cast<int>(entry.u16(6))}};
        if (!best || candidate.distance() < best->distance()) best = std::move(candidate);
    }
    if (!best) throw Unreadable(count == 0 ? "it has no image" : "its images are PNG");

    front::CursorImage image{.width = best->bitmap.width(), .height = best->bitmap.height()};
    image.hot_spot = {std::min(best->hot_spot.left, image.width - 1), std::min(best->hot_spot.top, image.height - 1)};
    image.pixels = best->bitmap.pixels();
    return image;
}

}  // namespace

std::optional<front::CursorImage> read_cursor_file(std::string_view file, std::string& reason) {
    try {
        return read(Bytes(file));
    } catch (const Unreadable& why) {
        reason = why.what();
        return std::nullopt;
    }
}

}  // namespace tavrik::core
