#pragma once

#include "introspection/type_info.h"

namespace tavrik {

struct Dictionary;

namespace Introspection {

// A class or an interface, described from its record. A class may have several of these objects, so they are not to be
// compared for identity.
struct ClassInfo : Class<ClassInfo, TypeInfo> {
    static const ClassDefinition& definition();

    void Constructor(ClassRecord* ref);
    bool IsHidden(Arg<ArrayOf<AttributeInfo>> attributes);

    // nil for a class that is hidden, which is described anew each time. nil is described as "Object".
    static Ref<ClassInfo> Lookup(ClassRecord* ref);
    // By full name; a name that isn't known finds "Object". Classes are known that were there at the first question.
    static Ref<ClassInfo> Lookup(const String& name);

    // By class number.
    static inline constinit Field<Dictionary> sClassRefMap{};
    // The class numbers by full name.
    static inline constinit Field<Dictionary> sClassFQNToRefMap{};
    static void sClassRefMap__Exit();
    static void sClassFQNToRefMap__Exit();

    ClassRecord* mClassRef;
};

// Empties the member lists of every class description that is left: a list leads to the types of its members, and
// these may lead back.
void cut_cycles();

}  // namespace Introspection
}  // namespace tavrik
