#pragma once

#include <tavrik/object.h>

#include <cstdint>

// Who may do what with a file, as the bits of POSIX modes.
namespace tavrik {

// What the toolkit keeps in an object of permissions: the class gives this room.
struct PermissionsObject : Object {
    std::int32_t mode_bits;
};

enum PermissionBit : std::int32_t {
    kPermitOthersExecute = 01,
    kPermitOthersWrite = 02,
    kPermitOthersRead = 04,
    kPermitGroupExecute = 010,
    kPermitGroupWrite = 020,
    kPermitGroupRead = 040,
    kPermitOwnerExecute = 0100,
    kPermitOwnerWrite = 0200,
    kPermitOwnerRead = 0400,
    kPermitStickyBit = 01000,
    kPermitGidBit = 02000,
    kPermitUidBit = 04000,
    kPermitAll = 07777,
};

// New permissions allow nothing.
TAVRIK_API void PermissionsInitializer(Object* permissions);
// Takes the permission bits of a mode; others, such as those of the kind of a file, are dropped.
TAVRIK_API void PermissionsCtor(Object* permissions, std::int32_t mode);

// Whether any bit of the mask is set.
TAVRIK_API bool PermissionsGetter(Object* permissions, std::int32_t mask);
// Sets or clears the bits of the mask, and leaves the rest.
TAVRIK_API void PermissionsSetter(Object* permissions, std::int32_t mask, bool value);

}  // namespace tavrik
