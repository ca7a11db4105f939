#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace tavrik::core {

// The return addresses of a moment. Names are looked up only when somebody reads them.
class StackTrace {
public:
    static StackTrace here() noexcept;

    bool empty() const noexcept { return depth_ == 0; }
    // One line for each frame, the innermost first: the function's name where the platform knows it.
    std::vector<std::string> lines() const;

private:
    static constexpr std::size_t kDeepest = 48;

    std::array<void*, kDeepest> addresses_{};
    std::size_t depth_ = 0;
};

}  // namespace tavrik::core
