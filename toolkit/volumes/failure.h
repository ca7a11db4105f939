#pragma once

#include <string>

namespace tavrik::volume {

// Thrown inside of the module only; the members of Archive turn it into the number.
struct Failure {
    int error;
    bool is_foreign = false;
    std::string reason = {};  // where the number doesn't say enough
};

}  // namespace tavrik::volume
