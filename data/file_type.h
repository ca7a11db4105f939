#pragma once

#include "runtime/class.h"

namespace tavrik {

struct Picture;

// One kind of file: a name, a Macintosh creator and type, and extensions. Turned into a string, or added to others, it
// is registered with the toolkit's file dialogs until one of its values changes or it ends.
struct FileType : Class<FileType> {
    static const ClassDefinition& definition();

    // Always nil.
    Ref<Picture> Icon() { return dispatch<&FileType::Icon>(this); }
    // The filter string for this type.
    String Operator_Convert() { return dispatch<&FileType::Operator_Convert>(this); }
    // The filter strings of sums: the names in the order of the sum, joined by ";".
    String Operator_Add(Arg<FileType> other) {
        return dispatch<pick<String(Arg<FileType>)>(&FileType::Operator_Add)>(this, other);
    }
    String Operator_AddRight(Arg<FileType> other) {
        return dispatch<pick<String(Arg<FileType>)>(&FileType::Operator_AddRight)>(this, other);
    }
    String Operator_Add(const String& filter) {
        return dispatch<pick<String(const String&)>(&FileType::Operator_Add)>(this, filter);
    }
    String Operator_AddRight(const String& filter) {
        return dispatch<pick<String(const String&)>(&FileType::Operator_AddRight)>(this, filter);
    }
    String Extensions() { return dispatch<&FileType::Extensions>(this); }
    void set_Extensions(const String& extensions) { dispatch<&FileType::set_Extensions>(this, extensions); }
    String MacCreator() { return dispatch<&FileType::MacCreator>(this); }
    void set_MacCreator(const String& creator) { dispatch<&FileType::set_MacCreator>(this, creator); }
    String MacType() { return dispatch<&FileType::MacType>(this); }
    void set_MacType(const String& type) { dispatch<&FileType::set_MacType>(this, type); }
    String Name() { return dispatch<&FileType::Name>(this); }
    void set_Name(const String& name) { dispatch<&FileType::set_Name>(this, name); }
    void Destructor() { dispatch<&FileType::Destructor>(this); }

    void Register();
    void Deregister();

    StringField mName, mMacCreator, mMacType, mExtension;
    bool mRegistered;
};

}  // namespace tavrik
