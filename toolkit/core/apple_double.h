#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik::core {

// The parts of a file in the AppleDouble form, in their order.
class AppleDouble {
public:
    static constexpr std::uint32_t kResourceFork = 2;
    static constexpr std::uint32_t kFinderInfo = 9;

    // Nothing for bytes that aren't of this form.
    static std::optional<AppleDouble> parse(std::string_view bytes);

    // Empty for a part that there isn't.
    std::string_view part(std::uint32_t id) const;
    void set_part(std::uint32_t id, std::string bytes);
    std::string bytes() const;

private:
    struct Part {
        std::uint32_t id;
        std::string bytes;
    };
    std::vector<Part> parts_;
};

}  // namespace tavrik::core
