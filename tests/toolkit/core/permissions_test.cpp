#include "data/permissions.h"

#include "tests/support/balance.h"

namespace tavrik::test {
namespace {

const struct {
    std::int32_t mask;
    bool (Permissions::*get)();
    void (Permissions::*set)(bool);
} kBits[] = {
    {512, &Permissions::StickyBit, &Permissions::set_StickyBit},
    {1024, &Permissions::GidBit, &Permissions::set_GidBit},
    {2048, &Permissions::UidBit, &Permissions::set_UidBit},
    {64, &Permissions::OwnerExecute, &Permissions::set_OwnerExecute},
    {128, &Permissions::OwnerWrite, &Permissions::set_OwnerWrite},
    {256, &Permissions::OwnerRead, &Permissions::set_OwnerRead},
    {8, &Permissions::GroupExecute, &Permissions::set_GroupExecute},
    {16, &Permissions::GroupWrite, &Permissions::set_GroupWrite},
    {32, &Permissions::GroupRead, &Permissions::set_GroupRead},
    {1, &Permissions::OthersExecute, &Permissions::set_OthersExecute},
    {2, &Permissions::OthersWrite, &Permissions::set_OthersWrite},
    {4, &Permissions::OthersRead, &Permissions::set_OthersRead},
};

Ref<Permissions> permissions(std::int32_t mode) {
    Ref<Permissions> made = make<Permissions>();
    made->Constructor(mode);
    return made;
}

TEST(Permissions, Have_one_property_for_each_bit_and_leave_the_others) {
    const Balance balance;
    for (const auto& bit : kBits) {
        const Ref<Permissions> all = permissions(07777);
        (all.get()->*bit.set)(false);
        EXPECT_EQ(all->mode_bits, 07777 & ~bit.mask);
        const Ref<Permissions> none = permissions(0100000);
        EXPECT_FALSE((none.get()->*bit.get)());
        (none.get()->*bit.set)(true);
        EXPECT_EQ(none->mode_bits, bit.mask);
        EXPECT_TRUE((none.get()->*bit.get)());
    }
}

}  // namespace
}  // namespace tavrik::test
