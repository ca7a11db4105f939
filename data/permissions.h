#pragma once

#include "runtime/class.h"

#include <tavrik/permissions.h>

namespace tavrik {

// Who may do what with a file: its owner, its group, and all others. FolderItem reads and sets them as one number.
struct Permissions : Class<Permissions, PermissionsObject> {
    static const ClassDefinition& definition();

    void Constructor(std::int32_t mode) { dispatch<&Permissions::Constructor>(this, mode); }

    bool StickyBit() { return PermissionsGetter(this, kPermitStickyBit); }
    void set_StickyBit(bool value) { PermissionsSetter(this, kPermitStickyBit, value); }
    bool GidBit() { return PermissionsGetter(this, kPermitGidBit); }
    void set_GidBit(bool value) { PermissionsSetter(this, kPermitGidBit, value); }
    bool UidBit() { return PermissionsGetter(this, kPermitUidBit); }
    void set_UidBit(bool value) { PermissionsSetter(this, kPermitUidBit, value); }
    bool OwnerExecute() { return PermissionsGetter(this, kPermitOwnerExecute); }
    void set_OwnerExecute(bool value) { PermissionsSetter(this, kPermitOwnerExecute, value); }
    bool OwnerWrite() { return PermissionsGetter(this, kPermitOwnerWrite); }
    void set_OwnerWrite(bool value) { PermissionsSetter(this, kPermitOwnerWrite, value); }
    bool OwnerRead() { return PermissionsGetter(this, kPermitOwnerRead); }
    void set_OwnerRead(bool value) { PermissionsSetter(this, kPermitOwnerRead, value); }
    bool GroupExecute() { return PermissionsGetter(this, kPermitGroupExecute); }
    void set_GroupExecute(bool value) { PermissionsSetter(this, kPermitGroupExecute, value); }
    bool GroupWrite() { return PermissionsGetter(this, kPermitGroupWrite); }
    void set_GroupWrite(bool value) { PermissionsSetter(this, kPermitGroupWrite, value); }
    bool GroupRead() { return PermissionsGetter(this, kPermitGroupRead); }
    void set_GroupRead(bool value) { PermissionsSetter(this, kPermitGroupRead, value); }
    bool OthersExecute() { return PermissionsGetter(this, kPermitOthersExecute); }
    void set_OthersExecute(bool value) { PermissionsSetter(this, kPermitOthersExecute, value); }
    bool OthersWrite() { return PermissionsGetter(this, kPermitOthersWrite); }
    void set_OthersWrite(bool value) { PermissionsSetter(this, kPermitOthersWrite, value); }
    bool OthersRead() { return PermissionsGetter(this, kPermitOthersRead); }
    void set_OthersRead(bool value) { PermissionsSetter(this, kPermitOthersRead, value); }
};

}  // namespace tavrik
