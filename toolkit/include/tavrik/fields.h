#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

// Read or write the value at a byte offset of an object or a record. A reader of a counted value gives one count to
// the caller, and a writer of one takes the new value before it drops the old.
namespace tavrik {

TAVRIK_API std::int32_t intGetter(const void* object, std::int32_t offset);
TAVRIK_API void intSetter(void* object, std::int32_t offset, std::int32_t value);
TAVRIK_API std::int32_t shortGetter(const void* object, std::int32_t offset);
TAVRIK_API void shortSetter(void* object, std::int32_t offset, std::int32_t value);
TAVRIK_API bool boolGetter(const void* object, std::int32_t offset);
TAVRIK_API void boolSetter(void* object, std::int32_t offset, bool value);
TAVRIK_API double doubleGetter(const void* object, std::int32_t offset);
TAVRIK_API void doubleSetter(void* object, std::int32_t offset, double value);
TAVRIK_API Ref<Object> objGetter(const void* object, std::int32_t offset);
TAVRIK_API void objSetter(void* object, std::int32_t offset, Object* value);
TAVRIK_API String stringGetter(const void* object, std::int32_t offset);
TAVRIK_API void stringSetter(void* object, std::int32_t offset, const String& value);

}  // namespace tavrik
