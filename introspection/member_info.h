#pragma once

#include "runtime/class.h"

namespace tavrik::Introspection {

struct AttributeInfo;

// What describes a type, or a member of one: a name, and the attributes of its record. It doesn't change after its
// constructor.
struct MemberInfo : Class<MemberInfo> {
    static const ClassDefinition& definition();

    // The class that owns the member, and the member's record; a record of nil leaves all but the owner empty.
    void Constructor(void* owner, void* member) { dispatch<&MemberInfo::Constructor>(this, owner, member); }
    // The member's own array, not a copy.
    Ref<ArrayOf<AttributeInfo>> GetAttributes() { return dispatch<&MemberInfo::GetAttributes>(this); }
    // Whether no attribute hides the member.
    bool CanAccess() { return dispatch<&MemberInfo::CanAccess>(this); }

    String Name() { return mNameValue; }

    // What the constructor does, for those of subclasses.
    void read(ClassRecord* owner, const MemberRecord* member);

    StringField mNameValue;
    ClassRecord* mOwnerClassRef;
    std::int32_t mAttributes;
    Field<ArrayOf<AttributeInfo>> mAttributeData;
};

[[noreturn]] void raise_illegal_owner();

// Raises IllegalCastException for an object that isn't of the class. nil passes, and so does everything for no class.
inline void require_owner(const Object* target, const ClassRecord* owner) {
    if (target == nullptr || target->record == owner || owner == nullptr) return;
    if (!RuntimeObjectIsa(target, owner)) raise_illegal_owner();
}

}  // namespace tavrik::Introspection
