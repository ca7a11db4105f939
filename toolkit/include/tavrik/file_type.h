#pragma once

#include <tavrik/string.h>

namespace tavrik {

// From now on the file dialogs accept `name` in a filter string. `extensions` are joined by ";", with or without dots.
// A name that is registered already gets the new values.
TAVRIK_API void RuntimeRegisterFileType(const String& name, const String& mac_creator, const String& mac_type,
                                        const String& extensions);
TAVRIK_API void RuntimeDeregisterFileType(const String& name);

}  // namespace tavrik
