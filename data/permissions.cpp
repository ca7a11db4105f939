#include "data/permissions.h"

namespace tavrik {
namespace {

constexpr OperationRow kOperations[] = {
    operation<&Permissions::Constructor, PermissionsCtor>("Constructor"),
};

constexpr PropertyRow kProperties[] = {
    property<&Permissions::StickyBit, &Permissions::set_StickyBit>("StickyBit"),
    property<&Permissions::GidBit, &Permissions::set_GidBit>("GidBit"),
    property<&Permissions::UidBit, &Permissions::set_UidBit>("UidBit"),
    property<&Permissions::OwnerExecute, &Permissions::set_OwnerExecute>("OwnerExecute"),
    property<&Permissions::OwnerWrite, &Permissions::set_OwnerWrite>("OwnerWrite"),
    property<&Permissions::OwnerRead, &Permissions::set_OwnerRead>("OwnerRead"),
    property<&Permissions::GroupExecute, &Permissions::set_GroupExecute>("GroupExecute"),
    property<&Permissions::GroupWrite, &Permissions::set_GroupWrite>("GroupWrite"),
    property<&Permissions::GroupRead, &Permissions::set_GroupRead>("GroupRead"),
    property<&Permissions::OthersExecute, &Permissions::set_OthersExecute>("OthersExecute"),
    property<&Permissions::OthersWrite, &Permissions::set_OthersWrite>("OthersWrite"),
    property<&Permissions::OthersRead, &Permissions::set_OthersRead>("OthersRead"),
};

}  // namespace

const ClassDefinition& Permissions::definition() {
    static constexpr ClassDefinition kDefinition = define<Permissions>({
        .init = init_forwards_to<Permissions, PermissionsInitializer>,
        .operations = kOperations,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
