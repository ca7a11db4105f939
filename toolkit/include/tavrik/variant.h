#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

namespace tavrik {

// A value that is no object, boxed in one. What the class layer declares for its value classes is this room.
struct ValueObject : Object {
    union {
        bool boolean;
        std::int32_t int32;
        std::int64_t int64;
        std::uint64_t uint64;
        double float64;
        void* pointer;
        StringRecord* string;
    };
};

TAVRIK_API Ref<Variant> BooleanToVariant(bool value);
TAVRIK_API Ref<Variant> StringToVariant(const String& value);

// nil unboxes to false and to the empty string. Raise TypeMismatchException, naming both kinds, where there is no
// conversion.
TAVRIK_API bool VariantToBoolean(Object* variant);
TAVRIK_API String VariantToString(Object* variant);

// Forwarded to by _VariantString.
TAVRIK_API void StringObjectDestructor(Object* object);

}  // namespace tavrik
