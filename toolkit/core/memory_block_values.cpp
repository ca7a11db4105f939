// The values in a memory block.
#include "toolkit/core/encoding.h"
#include "toolkit/core/memory_block.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/text.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>
#include <tavrik/text_encoding.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace tavrik {
namespace {

using core::block_of;

// How many bytes there are from an offset on that lies in the block.
std::uint64_t room_at(Object* object, std::int32_t offset) {
    return block_of(object).limit - static_cast<std::uint32_t>(offset);
}

const char* text_at(Object* object, std::int32_t offset, std::uint64_t width) {
    return reinterpret_cast<const char*>(memory_at(object, offset, width));
}

void write(std::byte* to, std::string_view bytes) {
    if (!bytes.empty()) std::memcpy(to, bytes.data(), bytes.size());
}

const core::EncodingRow& utf16_of(const MemoryBlockObject& block) {
    static const core::EncodingRow* const big = core::find_encoding("UTF-16BE");
    static const core::EncodingRow* const little = core::find_encoding("UTF-16LE");
    return block.mLittleEndian ? *little : *big;
}

constexpr std::uint8_t five_bits(std::uint32_t bits) {
    const std::uint32_t five = bits & 0x1F;
    return static_cast<std::uint8_t>(five << 3 | five >> 2);
}

[[noreturn]] void raise_no_pixel(std::int32_t bits) {
    RuntimeRaise("UnsupportedFormatException", "a pixel of a memory block has no " + std::to_string(bits) + " bits");
}

}  // namespace

Color memoryGetColor(Object* object, std::int32_t offset, std::int32_t bits) {
    switch (bits) {
        case 16: {
            const std::uint32_t pixel = memoryGetUInt16(object, offset);
            return rgb(five_bits(pixel >> 10), five_bits(pixel >> 5), five_bits(pixel));
        }
        case 24: {
            const std::byte* const pixel = memory_at(object, offset, 3);
            return rgb(std::to_integer<std::uint8_t>(pixel[0]), std::to_integer<std::uint8_t>(pixel[1]),
                       std::to_integer<std::uint8_t>(pixel[2]));
        }
        case 32:
            return {memoryGetUInt32(object, offset) & 0xFFFFFFU};
        default:
            raise_no_pixel(bits);
    }
}

void memorySetColor(Object* object, std::int32_t offset, std::int32_t bits, Color color) {
    switch (bits) {
        case 16:
            return memorySetUInt16(object, offset,
                                   static_cast<std::uint16_t>((color.rgb >> 9 & 0x7C00U) | (color.rgb >> 6 & 0x03E0U) |
                                                              (color.rgb >> 3 & 0x001FU)));
        case 24: {
            std::byte* const pixel = memory_at(object, offset, 3);
            for (int i = 0; i < 3; ++i) pixel[i] = static_cast<std::byte>(color.rgb >> (16 - 8 * i) & 0xFFU);
            return;
        }
        case 32:
            return memorySetUInt32(object, offset, color.rgb & 0xFFFFFFU);
        default:
            raise_no_pixel(bits);
    }
}

Ref<Object> memoryGetPtr(Object* object, std::int32_t offset) {
    void* address = nullptr;
    std::memcpy(&address, memory_at(object, offset, sizeof address), sizeof address);
    if (address == nullptr) return nullptr;
    static ClassRecord* const record = core::need_class("MemoryBlock");
    Ref<Object> there = RuntimeNewObject(record);
    ConvertPtrToMemoryBlock(there.object(), address);
    return there;
}

void memorySetPtr(Object* object, std::int32_t offset, Object* target) {
    const void* const address = target == nullptr ? nullptr : memoryBlockGetPtr(target);
    std::memcpy(memory_at(object, offset, sizeof address), &address, sizeof address);
}

String memoryGetString(Object* object, std::int32_t offset, std::int32_t length, Object* encoding) {
    // A length below 0 is one behind every limit, as an offset is.
    const std::uint64_t width = static_cast<std::uint32_t>(length);
    const char* const text = text_at(object, offset, width);
    if (width == 0) return {};
    return String::adopt(RuntimeNewString(text, width, core::code_of(encoding)));
}

void memorySetString(Object* object, std::int32_t offset, std::int32_t length, const String& text) {
    const std::uint64_t width = static_cast<std::uint32_t>(length);
    std::byte* const to = memory_at(object, offset, width);
    if (width == 0) return;
    const std::string_view fitting = text.view().substr(0, width);
    write(to, fitting);
    std::memset(to + fitting.size(), 0, width - fitting.size());
}

String memoryGetPString(Object* object, std::int32_t offset) {
    const auto length = std::to_integer<std::uint64_t>(*memory_at(object, offset, 1));
    const std::uint64_t there = std::min(length, room_at(object, offset) - 1);
    return String(std::string_view(text_at(object, offset, 1 + there) + 1, there));
}

void memorySetPString(Object* object, std::int32_t offset, const String& text) {
    const std::string_view bytes = core::countable(text.view());
    std::byte* const to = memory_at(object, offset, 1 + bytes.size());
    to[0] = static_cast<std::byte>(bytes.size());
    write(to + 1, bytes);
}

String memoryGetCString(Object* object, std::int32_t offset) {
    const char* const text = text_at(object, offset, 1);
    return String(std::string_view(text, ::strnlen(text, room_at(object, offset))));
}

void memorySetCString(Object* object, std::int32_t offset, const String& text) {
    const std::string_view bytes = text.view();
    std::byte* const to = memory_at(object, offset, bytes.size() + 1);
    write(to, bytes);
    to[bytes.size()] = std::byte{0};
}

String memoryGetWString(Object* object, std::int32_t offset) {
    const char* const text = text_at(object, offset, 1);
    const std::uint64_t most = room_at(object, offset) & ~std::uint64_t{1};
    std::uint64_t size = 0;
    while (size < most && (text[size] != 0 || text[size + 1] != 0)) size += 2;
    return String(core::decode_all(utf16_of(block_of(object)), {text, size}));
}

void memorySetWString(Object* object, std::int32_t offset, const String& text) {
    std::string bytes = core::encode_all(utf16_of(block_of(object)), core::utf8_of(text));
    bytes.append(2, '\0');
    write(memory_at(object, offset, bytes.size()), bytes);
}

}  // namespace tavrik
