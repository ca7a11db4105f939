#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace tavrik {

// A map of random bytes in a folder of its own, for the length of a test.
class MapFile {
public:
    static constexpr std::size_t kFieldsEnd = 2980;
    static constexpr std::int32_t kIntact = 4666;

    explicit MapFile(std::int32_t state, std::size_t size = kFieldsEnd + 1000);
    ~MapFile();
    MapFile(const MapFile&) = delete;
    MapFile& operator=(const MapFile&) = delete;

    const std::string& path() const { return path_; }
    // As it was made.
    const std::string& original() const { return original_; }
    // As it is on the disk.
    std::string bytes() const;

private:
    std::filesystem::path folder_;
    std::string path_;
    std::string original_;
};

// The bytes with the tool's three fields set to what the two buttons write.
std::string nulled(std::string bytes);
std::string restored(std::string bytes);

}  // namespace tavrik
