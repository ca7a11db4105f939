#include "tests/support/balance.h"
#include "tests/support/probe.h"

#include <tavrik/fields.h>

#include <cstddef>

namespace tavrik::test {
namespace {

struct Room {
    std::int32_t number = -1;
    std::int16_t small = -1;
    unsigned char flag = 0;
    double real = 0;
    StringRecord* text = nullptr;
    Object* object = nullptr;
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

TEST(Fields, A_field_given_its_own_object_keeps_it) {
    const Balance balance;
    Room room;
    room.object = make_probe(1).release();
    objSetter(&room, offsetof(Room, object), room.object);
    EXPECT_EQ(room.object->count, 1);
    objSetter(&room, offsetof(Room, object), nullptr);
}

TEST(Fields, A_reader_of_a_counted_value_gives_one_count) {
    const Balance balance;
    Room room;
    objSetter(&room, offsetof(Room, object), make_probe(1).object());
    stringSetter(&room, offsetof(Room, text), String("valley"));
    {
        const Ref<Object> object = objGetter(&room, offsetof(Room, object));
        const String text = stringGetter(&room, offsetof(Room, text));
        EXPECT_EQ(object->count, 2);
        EXPECT_EQ(text.record()->count, 2);
    }
    stringSetter(&room, offsetof(Room, text), String(room.text));
    EXPECT_EQ(room.text->count, 1);
    EXPECT_EQ(view(room.text), "valley");
    stringSetter(&room, offsetof(Room, text), nullptr);
    objSetter(&room, offsetof(Room, object), nullptr);
}

}  // namespace
}  // namespace tavrik::test
