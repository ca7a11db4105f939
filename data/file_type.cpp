#include "data/file_type.h"

#include "runtime/frame.h"

#include <tavrik/file_type.h>

namespace tavrik {

void FileType::Register() {
    const Frame frame(this);
    if (mRegistered) return;
    RuntimeRegisterFileType(mName, mMacCreator, mMacType, mExtension);
    mRegistered = true;
}

void FileType::Deregister() {
    const Frame frame(this);
    if (!mRegistered) return;
    RuntimeDeregisterFileType(mName);
    mRegistered = false;
}

namespace {

const String& separator() { return ";"_s; }

Ref<Picture> icon(FileType* self) {
    const Frame frame(self);
    return nullptr;
}

String convert(FileType* self) {
    const Frame frame(self);
    self->Register();
    return self->Name();
}

String joined(const String& left, const String& right) {
    return RuntimeAddString(RuntimeAddString(left, separator()), right);
}

String add(FileType* self, Arg<FileType> other) {
    const Frame frame(self, other);
    self->Register();
    other->Register();
    return joined(self->mName, other->mName);
}

String add_right(FileType* self, Arg<FileType> other) {
    const Frame frame(self, other);
    self->Register();
    other->Register();
    return joined(other->mName, self->mName);
}

String add_string(FileType* self, const String& filter) {
    const Frame frame(self, filter);
    self->Register();
    return joined(self->mName, filter);
}

String add_right_string(FileType* self, const String& filter) {
    const Frame frame(self, filter);
    self->Register();
    return joined(filter, self->mName);
}

// The four texts are read and written alike. What is written ends the registration, which was made with the old one.
template <StringField FileType::*Text>
String text(FileType* self) {
    const Frame frame(self);
    return self->*Text;
}

template <StringField FileType::*Text>
void set_text(FileType* self, const String& value) {
    const Frame frame(self, value);
    self->Deregister();
    self->*Text = value;
}

void register_type(FileType* self) { self->Register(); }
void deregister(FileType* self) { self->Deregister(); }
void destroy(Object* self) { static_cast<FileType*>(self)->Destructor(); }

constexpr OperationRow kOperations[] = {
    operation<&FileType::Icon, icon>("Icon"),
    operation<&FileType::Operator_Convert, convert>("Operator_Convert"),
    operation<pick<String(Arg<FileType>)>(&FileType::Operator_Add), add>("Operator_Add"),
    operation<pick<String(Arg<FileType>)>(&FileType::Operator_AddRight), add_right>("Operator_AddRight"),
    operation<pick<String(const String&)>(&FileType::Operator_Add), add_string>("Operator_Add"),
    operation<pick<String(const String&)>(&FileType::Operator_AddRight), add_right_string>("Operator_AddRight"),
    operation<&FileType::Extensions, text<&FileType::mExtension>>("Extensions"),
    operation<&FileType::set_Extensions, set_text<&FileType::mExtension>>("=Extensions"),
    operation<&FileType::MacCreator, text<&FileType::mMacCreator>>("MacCreator"),
    operation<&FileType::set_MacCreator, set_text<&FileType::mMacCreator>>("=MacCreator"),
    operation<&FileType::MacType, text<&FileType::mMacType>>("MacType"),
    operation<&FileType::set_MacType, set_text<&FileType::mMacType>>("=MacType"),
    operation<&FileType::Name, text<&FileType::mName>>("Name"),
    operation<&FileType::set_Name, set_text<&FileType::mName>>("=Name"),
    operation<&FileType::Destructor, deregister>("Destructor"),
    method<&FileType::Register, register_type>("Register").not_public(),
    method<&FileType::Deregister, deregister>("Deregister").not_public(),
};

constexpr FieldRow kFields[] = {
    field<&FileType::mName>("mName"),
    field<&FileType::mMacCreator>("mMacCreator"),
    field<&FileType::mMacType>("mMacType"),
    field<&FileType::mExtension>("mExtension"),
    field<&FileType::mRegistered>("mRegistered"),
};

}  // namespace

const ClassDefinition& FileType::definition() {
    static constexpr ClassDefinition kDefinition = define<FileType>({
        .destructor = destroy,
        .operations = kOperations,
        .fields = kFields,
    });
    return kDefinition;
}

}  // namespace tavrik
