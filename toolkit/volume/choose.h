#pragma once

#include "toolkit/volume/volume.h"

namespace tavrik::volume {

// What opens volumes, or nullptr where the module isn't there.
OpenVolume find_open_volume();

}  // namespace tavrik::volume
