#pragma once

#include "tests/support/temporary_folder.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace tavrik {

using namespace std::string_view_literals;

constexpr std::string_view kIntactState = "\x3A\x12\0\0"sv;
constexpr std::string_view kNulledState = "\0\0\0\0"sv;

inline std::string with_field(std::string bytes, std::size_t offset, std::string_view field) {
    bytes.resize(std::max(bytes.size(), offset + field.size()));
    return bytes.replace(offset, field.size(), field);
}

// The bytes with the tool's three fields set to what the two buttons write.
inline std::string nulled(std::string bytes) {
    return with_field(with_field(with_field(std::move(bytes), 2320, kNulledState), 2952, kNulledState), 2976,
                      "\xFF\xFF\xFF\xFF"sv);
}
inline std::string restored(std::string bytes) {
    return with_field(with_field(with_field(std::move(bytes), 2320, "\x7F\x15\0\0"sv), 2952, kIntactState), 2976,
                      "\xA5\x33\0\0"sv);
}

// A map in a folder of its own, for the length of a test.
struct MapFile {
    explicit MapFile(std::string bytes) : original(std::move(bytes)) {}
    explicit MapFile(std::string_view state) : MapFile(with_field(std::string(4000, 'x'), 2952, state)) {}

    std::string bytes() const { return test::bytes_of(path); }

    const test::TemporaryFolder folder;
    const std::string original;
    const std::string path = folder.new_file("valley.map", original);
};

}  // namespace tavrik
