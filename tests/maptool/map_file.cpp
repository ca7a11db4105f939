#include "tests/maptool/map_file.h"

#include <stdlib.h>

#include <array>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string_view>

namespace tavrik {
namespace {

using namespace std::string_view_literals;

std::filesystem::path make_folder() {
    std::string name = (std::filesystem::temp_directory_path() / "maptool-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder " + name);
    return name;
}

std::string random_bytes(std::size_t size) {
    std::mt19937 random(size);
    std::string bytes(size, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    return bytes;
}

void put(std::string& bytes, std::size_t offset, std::string_view field) {
    if (bytes.size() < offset + field.size()) bytes.resize(offset + field.size());
    bytes.replace(offset, field.size(), field);
}

std::string little_endian(std::int32_t value) {
    const auto bits = static_cast<std::uint32_t>(value);
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(static_cast<unsigned char>(bits >> shift));
    return bytes;
}

std::string with_fields(std::string bytes, const std::array<std::string_view, 3>& fields) {
    put(bytes, 2320, fields[0]);
    put(bytes, 2952, fields[1]);
    put(bytes, 2976, fields[2]);
    return bytes;
}

}  // namespace

MapFile::MapFile(std::int32_t state, std::size_t size)
    : folder_(make_folder()), path_((folder_ / "valley.map").string()), original_(random_bytes(size)) {
    if (size >= kFieldsEnd) put(original_, 2952, little_endian(state));
    std::ofstream(path_, std::ios::binary) << original_;
}

MapFile::~MapFile() {
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
}

std::string MapFile::bytes() const {
    std::ifstream file(path_, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string nulled(std::string bytes) {
    return with_fields(std::move(bytes), {"\0\0\0\0"sv, "\0\0\0\0"sv, "\xFF\xFF\xFF\xFF"sv});
}

std::string restored(std::string bytes) {
    return with_fields(std::move(bytes), {"\x7F\x15\0\0"sv, "\x3A\x12\0\0"sv, "\xA5\x33\0\0"sv});
}

}  // namespace tavrik
