#include <tavrik/permissions.h>

namespace tavrik {
namespace {

std::int32_t& mode_of(Object* permissions) {
    if (permissions == nullptr) RaiseNilObjectException();
    return static_cast<PermissionsObject*>(permissions)->mode_bits;
}

}  // namespace

void PermissionsInitializer(Object* permissions) { mode_of(permissions) = 0; }
void PermissionsCtor(Object* permissions, std::int32_t mode) { mode_of(permissions) = mode & kPermitAll; }

bool PermissionsGetter(Object* permissions, std::int32_t mask) { return (mode_of(permissions) & mask) != 0; }

void PermissionsSetter(Object* permissions, std::int32_t mask, bool value) {
    std::int32_t& mode = mode_of(permissions);
    mode = value ? mode | (mask & kPermitAll) : mode & ~mask;
}

}  // namespace tavrik
