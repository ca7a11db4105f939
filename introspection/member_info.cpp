#include "introspection/member_info.h"

#include "introspection/attribute_info.h"
#include "runtime/frame.h"

namespace tavrik::Introspection {

void MemberInfo::read(ClassRecord* owner, const MemberRecord* member) {
    mOwnerClassRef = owner;
    if (member == nullptr) return;
    mNameValue = String(member->name);
    mAttributes = member->flags;
    read_attributes(mAttributeData, member->attributes, member->attribute_count);
}

void raise_illegal_owner() { RuntimeRaise("IllegalCastException", {}); }

namespace {

void construct(MemberInfo* self, void* owner, void* record) {
    const Frame frame(self);
    self->read(static_cast<ClassRecord*>(owner), static_cast<const MemberRecord*>(record));
}

Ref<ArrayOf<AttributeInfo>> get_attributes(MemberInfo* self) { return self->mAttributeData; }

bool can_access(MemberInfo* self) {
    const Frame frame(self);
    return !has_hidden(self->GetAttributes());
}

constexpr OperationRow kOperations[] = {
    operation<&MemberInfo::Constructor, construct>("Constructor").not_public(),
    operation<&MemberInfo::GetAttributes, get_attributes>("GetAttributes"),
    operation<&MemberInfo::CanAccess, can_access>("CanAccess").not_public(),
};

constexpr FieldRow kFields[] = {
    field<&MemberInfo::mNameValue>("mNameValue"),
    field<&MemberInfo::mOwnerClassRef>("mOwnerClassRef"),
    field<&MemberInfo::mAttributes>("mAttributes"),
    field<&MemberInfo::mAttributeData>("mAttributeData"),
};

constexpr PropertyRow kProperties[] = {
    property<&MemberInfo::Name>("Name"),
};

}  // namespace

const ClassDefinition& MemberInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<MemberInfo>({
        .operations = kOperations,
        .fields = kFields,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik::Introspection
