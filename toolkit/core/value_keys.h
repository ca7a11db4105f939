#pragma once

#include "toolkit/core/hash.h"
#include "toolkit/core/variant.h"

// Variants as keys: which are equal, and hashes that are the same for equal ones.
//
// Numbers of all kinds are one family and compare exactly; so are texts, by their UTF-8 bytes. Booleans, colours, Ptrs,
// OSTypes, window handles and structures are each a family of their own. All other objects compare by identity, and nil
// equals nil alone.
namespace tavrik::core {

// What the highest byte of an image tells. The values below are the lengths of short texts.
enum class KeyFamily : std::uint8_t {
    kNil = 16,
    kInteger,
    kLargeUnsigned,
    kFraction,
    kCurrency,
    kBoolean,
    kColor,
    kPtr,
    kOSType,
    kWindowPtr,
    kObject,
    kLongText,  // from here on the image refers to bytes that lie elsewhere
    kStructure,
};

inline constexpr std::size_t kLongestShortText = 15;

// A key's value in two words. Equal values have equal images, except that long texts and structures have a reference
// to a string in `low`, and a hash of its bytes in `high`.
struct KeyImage {
    std::uint64_t low;
    std::uint64_t high;

    static constexpr int kFamilyShift = 56;

    bool is_long() const noexcept {
        return high >= std::uint64_t{static_cast<std::uint8_t>(KeyFamily::kLongText)} << kFamilyShift;
    }
    StringRecord* text() const noexcept { return std::bit_cast<StringRecord*>(low); }
    bool operator==(const KeyImage& other) const noexcept {
        if (high != other.high) return false;
        return low == other.low || (is_long() && has_text_of(other));
    }

private:
    bool has_text_of(const KeyImage& other) const noexcept;
};

inline std::uint64_t hash_image(const KeyImage& image, const HashSeed& seed) noexcept {
    return hash_words(image.is_long() ? 0 : image.low, image.high, seed);
}

// A variant's image, and for its life the text that the image may refer to.
class KeyValue {
public:
    explicit KeyValue(const Object* variant) {
        if (kind_of(variant) == ValueKind::kString) [[likely]] {
            image_ = text_image(static_cast<const ValueObject*>(variant)->string);
        } else {
            image_ = image_of(variant);
        }
    }

    const KeyImage& image() const noexcept { return image_; }

private:
    static KeyImage text_image(StringRecord* text) {
        const std::string_view bytes = view(text);
        if (bytes.size() > kLongestShortText) return reference(text, KeyFamily::kLongText);
        // The byte that gives way to the length stands in the lower word too, or is no byte of the text.
        const Words words = short_words(bytes);
        return {words.low, words.high >> 8 | std::uint64_t{bytes.size()} << KeyImage::kFamilyShift};
    }
    static KeyImage reference(StringRecord* text, KeyFamily family);
    KeyImage image_of(const Object* variant);

    KeyImage image_;
    String made_;
};

bool equal_values(const Object* a, const Object* b);
std::uint64_t hash_value(const Object* variant);

}  // namespace tavrik::core
