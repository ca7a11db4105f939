#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

namespace tavrik {

// What the program tells of itself. The texts live as long as the process.
struct ProgramVersion {
    std::int32_t major = 0;
    std::int32_t minor = 0;
    std::int32_t bug = 0;
    std::int32_t stage = 0;        // 0 development, 1 alpha, 2 beta, 3 final
    std::int32_t non_release = 0;  // counts the builds before a release
    std::int32_t region = 0;
    const char* short_text = "";
    const char* long_text = "";
    const char* package = "";
};

// Given by the program at its start. Without it all numbers are 0 and all texts empty.
TAVRIK_API void RuntimeSetVersion(const ProgramVersion& version);

TAVRIK_API void ApplicationInitializer(Object* app);
TAVRIK_API void ApplicationFinalizer(Object* app);

// Raise the events of these names.
TAVRIK_API void ApplicationNewDocument(Object* app);
TAVRIK_API void ApplicationOpenDocument(Object* app, Object* item);

// Dispatches what has happened by now. If that is nothing, waits up to so many milliseconds for the first thing. Below
// 0 it dispatches nothing and gives other threads a turn. Once the program has quit nothing happens any more.
TAVRIK_API void RuntimeDoEvents(Object* app, std::int32_t milliseconds);
// One turn of the event loop, which waits for something to do if told to.
TAVRIK_API void ApplicationDoSingleEvent(Object* app, bool wait);

// While there are polled objects the event loop calls the method "_Poll" of each that has one, without arguments and
// result, about every 10 ms. An object is held until it is removed.
TAVRIK_API void ApplicationAddPollableObject(Object* app, Object* object);
TAVRIK_API void ApplicationRemovePollableObject(Object* app, Object* object);

// Raise ServiceNotAvailableException.
TAVRIK_API void AddTrayItem(Object* app, Object* item);
TAVRIK_API void RemoveTrayItem(Object* app, Object* item);

TAVRIK_API Ref<Object> AppMenuBarGetter(Object* app, std::int32_t);
TAVRIK_API void AppMenuBarSetter(Object* app, std::int32_t, Object* bar);
TAVRIK_API void ApplicationAddMenuHandler(Object* app, const String& item, Function handler);
// Whether closing the last window quits. True at first, except on macOS.
TAVRIK_API bool AppAutoCloseGetter(Object* app, std::int32_t);
TAVRIK_API void AppAutoCloseSetter(Object* app, std::int32_t, bool automatic);

// The cursor over all of the program's windows, in place of their own; nil leaves it to them.
TAVRIK_API void appMouseCursorSetter(Object* app, std::int32_t field, Object* cursor);
// Whether what is pointed at shows its help. True at first.
TAVRIK_API bool AppBalloonHelpVisibleGetter(Object* app, std::int32_t field);
TAVRIK_API void AppBalloonHelpVisibleSetter(Object* app, std::int32_t field, bool visible);
// 0 to 5: major, minor, bug, stage, non-release, region. Others are 0.
TAVRIK_API std::int32_t AppIntegerVersionStuffGetter(Object* app, std::int32_t which);
// 0 to 2: short, long, package. Others are empty.
TAVRIK_API String AppStringVersionStuffGetter(Object* app, std::int32_t which);
// The program's file.
TAVRIK_API Ref<Object> AppFolderItemGetter(Object* app, std::int32_t);
// nil where the program has no such class.
TAVRIK_API Ref<Object> appResourceForkGetter(Object* app, std::int32_t);
TAVRIK_API Ref<Object> AppDockItemGetter(Object* app, std::int32_t);
// When the event that is being handled began, in 60ths of a second since the system started.
TAVRIK_API std::int32_t AppGetCurrentEventTime(Object* app, std::int32_t);

}  // namespace tavrik
