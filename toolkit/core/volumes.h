#pragma once

#include "toolkit/volume/volume.h"

#include <tavrik/object.h>

#include <memory>
#include <string>

namespace tavrik::core {

// A new VirtualVolume for the volume in a file; a file that is open already is shared. nil with the system's number if
// the file can't be opened, and the reason is noted. Raises ServiceNotAvailableException where there is no module of
// volumes, and UnsupportedFormatException for a file that is no whole volume.
Ref<Object> open_virtual_volume(const std::string& path, int& error);
// The same for a new volume, where there is no file yet, or an empty one.
Ref<Object> create_virtual_volume(const std::string& path, int& error);
Ref<Object> make_virtual_volume(std::shared_ptr<volume::Volume> volume);

}  // namespace tavrik::core
