#pragma once

#include <tavrik/array.h>
#include <tavrik/class_record.h>
#include <tavrik/exception.h>
#include <tavrik/object.h>
#include <tavrik/string.h>

namespace tavrik {

// First and last call of the process. RuntimeExit yields the exit status: 0, or 1 after an exception that ended the
// run loop. In a debug build it lists the objects that are still alive.
TAVRIK_API void RuntimeInit();
TAVRIK_API std::int32_t RuntimeExit();
// `function` runs in RuntimeExit, before the living objects are listed; what was given last runs first. Each call is
// for one exit.
TAVRIK_API void RuntimeAtExit(void (*function)());
// Dispatches events until the application quits. Returns at once if it has quit already.
TAVRIK_API void RuntimeRun();
// Takes `app` as the application object, and holds it until RuntimeExit.
TAVRIK_API void RuntimeRegisterAppObject(Object* app);
TAVRIK_API Ref<Object> getAppObject();
TAVRIK_API void RuntimeInitExternalClasses();
TAVRIK_API void* RuntimeAllocatePluginEntrypointsTable(std::int32_t entries);

// A new instance with zero fields and a count of 1, on which the init functions have run, the parent's first. Raises
// OutOfMemoryException. nil and interfaces raise NilObjectException and IllegalCastException.
TAVRIK_API Ref<Object> RuntimeNewObject(ClassRecord* record);

// Count up, count down; nil is accepted. The last unlock raises on what a Destructor or __Exit raised, once the object
// is gone.
TAVRIK_API void RuntimeLockObject(Object* object);
TAVRIK_API void RuntimeUnlockObject(Object* object);
// Locks `new_object`, then unlocks `old_object`. They may be the same.
TAVRIK_API void RuntimeLockUnlockObjects(Object* new_object, Object* old_object);

// How many threads want turns. While there are none, the end of a pass costs no more than this look.
extern TAVRIK_API constinit std::int32_t runtime_threads_under_way;
TAVRIK_API void RuntimeShareTime();

// The end of a loop's pass: lets other threads have their turns once this one's time is over. Raises
// ThreadEndException in a thread that was killed meanwhile.
inline void RuntimeBackgroundTask() {
    if (runtime_threads_under_way != 0) [[unlikely]]
        RuntimeShareTime();
}

// Applies a packed property string to an object, entry by entry. Raises UnsupportedFormatException, with a message
// that names the entry, at the first entry that is malformed; nothing behind it is applied.
TAVRIK_API void RuntimeMassPropertySetter(Object* object, const String& packed);
// From now on the event of that name on this one object calls `handler`; nil restores the class's own. A name that the
// class doesn't have raises UnsupportedFormatException.
TAVRIK_API void RuntimeInstallInstanceEventHandler(Object* object, const String& event, Function handler);

// Holds a function and the object to call it on.
struct Delegate : Object {
    Function invoker;
    Function function;
    Object* target;
};

TAVRIK_API Ref<Delegate> RuntimeCreateDelegate(Function invoker, Function function, Object* target,
                                               const String& parameters);

// Texts, counted in characters: one begins at every byte that doesn't continue a UTF-8 sequence. Positions count
// from 1. Numbers below the first position mean the first; lengths below 0 mean 0.
TAVRIK_API std::int32_t StringDBCSLen(const String& text);
TAVRIK_API String StringDBCSLeft(const String& text, std::int32_t count);
TAVRIK_API String StringDBCSMid2(const String& text, std::int32_t start);
TAVRIK_API String StringDBCSMid3(const String& text, std::int32_t start, std::int32_t length);
// The position of `sought` at or behind `start`, byte for byte; 0 if it is not there. The empty text is found at
// `start`.
TAVRIK_API std::int32_t StringInStr(std::int32_t start, const String& text, const String& sought);
// An empty separator makes one field of the whole text.
TAVRIK_API std::int32_t StringCountFields(const String& text, const String& separator);
TAVRIK_API String StringNthField(const String& text, const String& separator, std::int32_t field);
// The number at the start of the text, behind white space; 0 if there is none. Knows no locale.
TAVRIK_API double StringVal(const String& text);

TAVRIK_API double RuntimeCos(double angle);
TAVRIK_API double RuntimeSin(double angle);

}  // namespace tavrik
