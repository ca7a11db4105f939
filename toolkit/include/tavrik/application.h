#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

namespace tavrik {

TAVRIK_API void ApplicationInitializer(Object* app);
TAVRIK_API void ApplicationFinalizer(Object* app);
TAVRIK_API Ref<Object> AppMenuBarGetter(Object* app, std::int32_t);
TAVRIK_API void AppMenuBarSetter(Object* app, std::int32_t, Object* bar);
TAVRIK_API void ApplicationAddMenuHandler(Object* app, const String& item, Function handler);
// Whether closing the last window quits. True at first, except on macOS.
TAVRIK_API bool AppAutoCloseGetter(Object* app, std::int32_t);
TAVRIK_API void AppAutoCloseSetter(Object* app, std::int32_t, bool automatic);

}  // namespace tavrik
