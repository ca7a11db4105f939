#include <tavrik/fields.h>

#include <gtest/gtest.h>

#include <cstddef>

namespace tavrik::test {
namespace {

struct Room {
    std::int16_t small = -1;
    unsigned char flag = 0;
};

TEST(Fields, A_short_keeps_16_bits_and_its_sign) {
    Room room;
    shortSetter(&room, offsetof(Room, small), 0x1FFFE);
    EXPECT_EQ(shortGetter(&room, offsetof(Room, small)), -2);
    EXPECT_EQ(room.flag, 0);
}

TEST(Fields, A_boolean_is_bit_0) {
    Room room;
    for (const int byte : {0, 1, 2, 3, 0xFE, 0xFF}) {
        room.flag = static_cast<unsigned char>(byte);
        EXPECT_EQ(boolGetter(&room, offsetof(Room, flag)), byte % 2 == 1) << byte;
    }
}

}  // namespace
}  // namespace tavrik::test
