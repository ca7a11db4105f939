#pragma once

#include <string>

namespace tavrik::classbrowser {

// All classes of the class list, the oldest first, as one line of JSON.
std::string records_as_json();

}  // namespace tavrik::classbrowser
