#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

namespace tavrik {

// Shows a modal message box and returns when it has been dismissed. Everything written to streams is in the files
// before it opens.
TAVRIK_API void RuntimeMsgBox(const String& text);
// The file chosen in a modal open dialog, or nil on cancel. `filter` names registered file types, joined by ";"; a name
// that isn't registered selects nothing.
TAVRIK_API Ref<Object> RuntimeGetOpenFolderItem(const String& filter);

}  // namespace tavrik
