#include "data/memory_block.h"

#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/sanitizers.h"
#include "toolkit/core/encoding.h"

#include <sys/resource.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace tavrik::test {
namespace {

using namespace std::string_literals;

Ref<MemoryBlock> new_block(std::int32_t size) {
    Ref<MemoryBlock> block = make<MemoryBlock>();
    block->Constructor(size);
    return block;
}

Ref<MemoryBlock> block_of(std::string_view bytes) {
    Ref<MemoryBlock> block = make<MemoryBlock>();
    block->Operator_Convert(String(bytes));
    block->set_LittleEndian(false);
    return block;
}

std::string bytes_of(const Ref<MemoryBlock>& block) { return std::string(block->Operator_Convert<String>().view()); }

// A kind of value: how many bytes it has, and its bits.
struct Kind {
    const char* name;
    std::size_t width;
    std::uint64_t (*get)(MemoryBlock&, std::int32_t offset);
    void (*set)(MemoryBlock&, std::int32_t offset, std::uint64_t bits);
};

template <class T>
std::uint64_t bits_of(T value) {
    if constexpr (std::is_integral_v<T>)
        return static_cast<std::uint64_t>(value);
    else
        return std::bit_cast<std::uint64_t>(value);
}
template <class T>
T from_bits(std::uint64_t bits) {
    if constexpr (std::is_integral_v<T>)
        return static_cast<T>(bits);
    else
        return std::bit_cast<T>(bits);
}

template <auto Get, auto Set, class T>
constexpr Kind kind(const char* name, std::size_t width) {
    return {
        name, width, [](MemoryBlock& block, std::int32_t offset) { return bits_of<T>((block.*Get)(offset)); },
        [](MemoryBlock& block, std::int32_t offset, std::uint64_t bits) { (block.*Set)(offset, from_bits<T>(bits)); }};
}

using M = MemoryBlock;
constexpr Kind kKinds[] = {
    kind<&M::Byte, &M::set_Byte, std::int32_t>("Byte", 1),
    kind<&M::Short, &M::set_Short, std::int32_t>("Short", 2),
    kind<&M::UShort, &M::set_UShort, std::int32_t>("UShort", 2),
    kind<&M::Long, &M::set_Long, std::int32_t>("Long", 4),
    kind<&M::Int32Value, &M::set_Int32Value, std::int32_t>("Int32Value", 4),
    kind<&M::Int8Value, &M::set_Int8Value, std::int8_t>("Int8Value", 1),
    kind<&M::Int16Value, &M::set_Int16Value, std::int16_t>("Int16Value", 2),
    kind<&M::Int64Value, &M::set_Int64Value, std::int64_t>("Int64Value", 8),
    kind<&M::UInt8Value, &M::set_UInt8Value, std::uint8_t>("UInt8Value", 1),
    kind<&M::UInt16Value, &M::set_UInt16Value, std::uint16_t>("UInt16Value", 2),
    kind<&M::UInt32Value, &M::set_UInt32Value, std::uint32_t>("UInt32Value", 4),
    kind<&M::UInt64Value, &M::set_UInt64Value, std::uint64_t>("UInt64Value", 8),
    kind<&M::DoubleValue, &M::set_DoubleValue, double>("DoubleValue", 8),
    kind<&M::CurrencyValue, &M::set_CurrencyValue, Currency>("CurrencyValue", 8),
};

// The low bytes of a number, in a byte order.
std::string bytes_of_bits(std::uint64_t bits, std::size_t width, bool little) {
    std::string bytes;
    for (std::size_t i = 0; i < width; ++i) bytes += static_cast<char>(bits >> 8 * i & 0xFF);
    if (!little) std::ranges::reverse(bytes);
    return bytes;
}

TEST(MemoryBlock, Agrees_with_a_plain_run_of_bytes_over_random_operations) {
    const Balance balance;
    std::mt19937_64 random{5};
    const Ref<MemoryBlock> block = new_block(0);
    std::string model;
    bool little = std::endian::native == std::endian::little;
    EXPECT_EQ(block->LittleEndian(), little);
    for (int round = 0; round < 30'000; ++round) {
        const auto size = static_cast<std::int32_t>(model.size());
        const std::int32_t far[] = {INT32_MIN, INT32_MAX, INT32_MAX - 3, -static_cast<std::int32_t>(random() % 9)};
        const auto near = static_cast<std::int32_t>(random() % 45) - 2;
        const std::int32_t offset = random() % 20 == 0 ? far[random() % 4] : near;
        const Kind& kind = kKinds[random() % std::size(kKinds)];
        const bool fits = offset >= 0 && std::int64_t{offset} + static_cast<std::int64_t>(kind.width) <= size;
        const auto at = static_cast<std::size_t>(offset);
        const std::uint64_t bits = random() & 0x7FEF'FFFF'FFFF'FFFF;  // no Double is a NaN
        switch (random() % 8) {
            case 0:
                block->set_Size(std::max(near, 0));
                model.resize(static_cast<std::size_t>(std::max(near, 0)));
                break;
            case 1:
                block->set_LittleEndian(little = random() % 2 == 0);
                break;
            case 2:
            case 3:
            case 4:
                ASSERT_EQ(class_raised_by([&] { kind.set(*block.get(), offset, bits); }),
                          fits ? "nothing" : "OutOfBoundsException")
                    << kind.name << " at " << offset;
                if (fits) model.replace(at, kind.width, bytes_of_bits(bits, kind.width, little));
                break;
            default: {
                std::uint64_t read = 0;
                ASSERT_EQ(class_raised_by([&] { read = kind.get(*block.get(), offset); }),
                          fits ? "nothing" : "OutOfBoundsException")
                    << kind.name << " at " << offset;
                if (!fits) break;
                ASSERT_EQ(bytes_of_bits(read, kind.width, little), model.substr(at, kind.width)) << kind.name;
            }
        }
        ASSERT_EQ(bytes_of(block), model);
        ASSERT_EQ(block->Size(), static_cast<std::int32_t>(model.size()));
    }
}

TEST(MemoryBlock, Reads_values_with_the_range_of_their_type) {
    const Ref<MemoryBlock> block = block_of("\xFF\xFE\xFD\xFC");
    EXPECT_EQ(block->Byte(0), 255);
    EXPECT_EQ(block->Int8Value(0), -1);
    EXPECT_EQ(block->Short(0), -2);
    EXPECT_EQ(block->UShort(0), 0xFFFE);
    EXPECT_EQ(block->Long(0), -0x10204);
    EXPECT_EQ(block->UInt32Value(0), 0xFFFEFDFCU);
    EXPECT_TRUE(block->BooleanValue(0));
    EXPECT_FALSE(block->BooleanValue(1));
    block->set_BooleanValue(1, true);
    EXPECT_EQ(block->Byte(1), 1);
    block->set_SingleValue(0, 0.1);
    EXPECT_EQ(block->SingleValue(0), double{0.1F});
    EXPECT_EQ(bytes_of(block), "\x3D\xCC\xCC\xCD");
    block->set_SingleValue(0, 1e300);
    EXPECT_EQ(block->SingleValue(0), std::numeric_limits<double>::infinity());
}

TEST(MemoryBlock, Reads_and_writes_pixels_of_three_depths) {
    const Ref<MemoryBlock> block = block_of("....");
    const struct {
        std::int32_t bits;
        bool little;
        std::string bytes;
        Color read;
    } cases[] = {
        {32, false, "\0\x12\x84\xFF"s, rgb(0x12, 0x84, 0xFF)}, {32, true, "\xFF\x84\x12\0"s, rgb(0x12, 0x84, 0xFF)},
        {24, true, "\x12\x84\xFF.", rgb(0x12, 0x84, 0xFF)},    {16, false, "\x0A\x1F..", rgb(0x10, 0x84, 0xFF)},
        {16, true, "\x1F\x0A..", rgb(0x10, 0x84, 0xFF)},
    };
    for (const auto& [bits, little, bytes, read] : cases) {
        block->Operator_Convert("...."_s);
        block->set_LittleEndian(little);
        block->set_ColorValue(0, bits, rgb(0x12, 0x84, 0xFF));
        EXPECT_EQ(bytes_of(block), bytes) << bits;
        EXPECT_EQ(block->ColorValue(0, bits), read) << bits;
        const std::int32_t behind = 5 - bits / 8;
        EXPECT_EQ(class_raised_by([&, depth = bits] { block->ColorValue(behind, depth); }), "OutOfBoundsException");
        EXPECT_EQ(class_raised_by([&, depth = bits] { block->set_ColorValue(behind, depth, {}); }),
                  "OutOfBoundsException");
    }
    EXPECT_EQ(class_raised_by([&] { block->ColorValue(0, 8); }), "UnsupportedFormatException");
    EXPECT_EQ(class_raised_by([&] { block->set_ColorValue(0, 0, {}); }), "UnsupportedFormatException");
}

TEST(MemoryBlock, Writes_texts_whole_or_not_at_all) {
    const Ref<MemoryBlock> block = block_of("........");
    const auto after = [&](auto write) {
        block->Operator_Convert("........"_s);
        const std::string raised = class_raised_by(write);
        return raised == "nothing" ? bytes_of(block) : raised + " " + bytes_of(block);
    };
    const std::string outside = "OutOfBoundsException ........";
    EXPECT_EQ(after([&] { block->set_CString(4, "abc"_s); }), "....abc\0"s);
    EXPECT_EQ(after([&] { block->set_CString(5, "abc"_s); }), outside);
    EXPECT_EQ(after([&] { block->set_PString(4, "abc"_s); }),
              "....\x03"
              "abc"s);
    EXPECT_EQ(after([&] { block->set_PString(5, "abc"_s); }), outside);
    EXPECT_EQ(after([&] { block->set_WString(2, "é€"_s); }), "..\0\xE9\x20\xAC\0\0"s);
    EXPECT_EQ(after([&] { block->set_WString(3, "é€"_s); }), outside);
    EXPECT_EQ(after([&] { block->set_WString(4, encoding_named("latin1")->Chr(0xE9)); }), "....\0\xE9\0\0"s);
    EXPECT_EQ(after([&] { block->set_StringValue(1, 3, "abcdef"_s); }), ".abc....");
    EXPECT_EQ(after([&] { block->set_StringValue(4, 4, "ab"_s); }), "....ab\0\0"s);
    EXPECT_EQ(after([&] { block->set_StringValue(8, 0, "ab"_s); }), "........");
    EXPECT_EQ(after([&] { block->set_StringValue(5, 4, "ab"_s); }), outside);
    EXPECT_EQ(after([&] { block->set_StringValue(INT32_MAX, INT32_MAX, ""_s); }), outside);
    EXPECT_EQ(after([&] { block->set_StringValue(2, -1, "ab"_s); }), outside);

    const Ref<MemoryBlock> large = new_block(300);
    large->set_PString(0, String(std::string(254, 'a') + "é"));
    EXPECT_EQ(large->PString(0), std::string(254, 'a')) << "no character is cut in two";
    large->set_PString(0, String(std::string(400, 'a')));
    EXPECT_EQ(large->PString(0), std::string(255, 'a'));
}

TEST(MemoryBlock, Reads_no_text_past_its_end) {
    const Balance balance;
    const Ref<MemoryBlock> block = block_of(
        "\x02"
        "abc\0\0\xE9\x20\xAC!"s);
    EXPECT_EQ(block->PString(0), "ab");
    EXPECT_EQ(block->PString(1), "bc\0\0\xE9\x20\xAC!"s) << "the length byte tells of more than there is";
    EXPECT_EQ(block->PString(9), "");
    EXPECT_EQ(block->CString(1), "abc");
    EXPECT_EQ(block->CString(8), "\xAC!");
    EXPECT_EQ(block->WString(5), "é€") << "a last odd byte is no character";
    EXPECT_EQ(block->WString(4), "") << "two zero bytes";
    EXPECT_EQ(block->WString(9), "");
    EXPECT_EQ(block->StringValue(1, 3, nullptr), "abc");
    EXPECT_EQ(block->StringValue(10, 0, nullptr), "");
    const String latin = block->StringValue(6, 1, encoding_named("ISO-8859-1"));
    EXPECT_EQ(core::utf8_of(latin), "é");
    EXPECT_EQ(latin, "\xE9") << "the bytes as they are";
    for (const std::int32_t offset : {-1, 10, INT32_MIN, INT32_MAX}) {
        EXPECT_EQ(class_raised_by([&] { block->PString(offset); }), "OutOfBoundsException") << offset;
        EXPECT_EQ(class_raised_by([&] { block->CString(offset); }), "OutOfBoundsException") << offset;
        EXPECT_EQ(class_raised_by([&] { block->WString(offset); }), "OutOfBoundsException") << offset;
        EXPECT_EQ(class_raised_by([&] { block->StringValue(offset, 1, nullptr); }), "OutOfBoundsException") << offset;
        EXPECT_EQ(class_raised_by([&] { block->StringValue(1, offset, nullptr); }), "OutOfBoundsException") << offset;
    }
}

TEST(MemoryBlock, A_size_that_cant_be_had_changes_nothing) {
    const Balance balance;
    const Ref<MemoryBlock> block = block_of("valley");
    const Ref<Object> raised = raised_by([&] { block->set_Size(-1); });
    EXPECT_EQ(class_of(raised), "OutOfBoundsException");
    EXPECT_EQ(message_of(raised), "a memory block can't have a size of -1");
    EXPECT_EQ(class_raised_by([&] { block->MemoryBlock_(INT32_MIN); }), "OutOfBoundsException");
    if (!kIsSanitized) {
        rlimit before{};
        ::getrlimit(RLIMIT_AS, &before);
        const rlimit small{1U << 30, before.rlim_max};
        ::setrlimit(RLIMIT_AS, &small);
        EXPECT_EQ(class_raised_by([&] { block->set_Size(INT32_MAX); }), "OutOfMemoryException");
        EXPECT_EQ(class_raised_by([&] { block->Constructor(INT32_MAX); }), "OutOfMemoryException");
        ::setrlimit(RLIMIT_AS, &before);
    }
    EXPECT_EQ(bytes_of(block), "valley");
    block->Constructor(3);
    EXPECT_EQ(bytes_of(block), "\0\0\0"s);
}

TEST(MemoryBlock, Over_a_pointer_leaves_the_bytes_to_their_owner) {
    const Balance balance;
    const Ref<MemoryBlock> owner = block_of("valley\0!"s);
    Ref<MemoryBlock> table = new_block(16);
    table->set_LittleEndian(false);
    table->set_Ptr(3, owner);
    Ref<MemoryBlock> there = table->Ptr(3);
    EXPECT_EQ(there->Size(), 0);
    EXPECT_EQ(there->CString(0), "valley");
    EXPECT_EQ(bytes_of(there->MidB(1, 3)), "all");
    EXPECT_EQ(there->Operator_Compare(owner), 0);
    there->set_Byte(0, 'V');
    EXPECT_EQ(owner->CString(0), "Valley");
    EXPECT_EQ(class_raised_by([&] { there->Byte(-1); }), "OutOfBoundsException");
    EXPECT_EQ(class_raised_by([&] { there->RightB(1); }), "OutOfBoundsException");
    EXPECT_EQ(class_raised_by([&] { there->MidB(1); }), "OutOfBoundsException");
    there->set_Size(6);
    EXPECT_EQ(bytes_of(there), "Valley");
    EXPECT_EQ(class_raised_by([&] { there->Byte(6); }), "OutOfBoundsException");
    there = nullptr;
    EXPECT_EQ(owner->Byte(1), 'a');

    table->set_Ptr(3, nullptr);
    EXPECT_FALSE(table->Ptr(3));
    EXPECT_EQ(class_raised_by([&] { table->Ptr(9); }), "OutOfBoundsException");
    EXPECT_EQ(class_raised_by([&] { table->set_Ptr(9, owner); }), "OutOfBoundsException");
    table->Operator_Convert(owner->Operator_Convert<void*>());
    EXPECT_EQ(table->Operator_Convert<void*>(), owner->Operator_Convert<void*>());
    table->Operator_Convert(static_cast<void*>(nullptr));
    EXPECT_EQ(class_raised_by([&] { table->Byte(0); }), "OutOfBoundsException");
}

TEST(MemoryBlock, Is_compared_joined_and_cut_by_its_bytes) {
    const Balance balance;
    const Ref<MemoryBlock> block = block_of("valley");
    const std::pair<std::string, std::int32_t> orders[] = {{"valley", 0}, {"valle", 1},  {"valley\0"s, -1},
                                                           {"w", -1},     {"v\xFF", -1}, {"", 1}};
    for (const auto& [other, order] : orders) EXPECT_EQ(block->Operator_Compare(block_of(other)), order) << other;
    EXPECT_EQ(block->Operator_Compare(nullptr), 1);

    const Ref<MemoryBlock> sum = block->Operator_Add(block_of("\0map"s));
    EXPECT_EQ(bytes_of(sum), "valley\0map"s);
    EXPECT_FALSE(sum->LittleEndian()) << "that of the first";
    EXPECT_EQ(bytes_of(block->Operator_Add(make<MemoryBlock>())), "valley");
    EXPECT_EQ(class_raised_by([&] { block->Operator_Add(nullptr); }), "NilObjectException");

    const std::pair<std::int32_t, const char*> counts[] = {
        {3, "val ley ley"}, {0, "  valley"}, {6, "valley valley "}, {INT32_MAX, "valley valley "}, {-1, "  valley"}};
    for (const auto& [count, cuts] : counts) {
        EXPECT_EQ(
            bytes_of(block->LeftB(count)) + " " + bytes_of(block->RightB(count)) + " " + bytes_of(block->MidB(count)),
            cuts);
    }
    EXPECT_EQ(bytes_of(block->MidB(2, 2)), "ll");
    EXPECT_EQ(bytes_of(block->MidB(4, INT32_MAX)), "ey");
    EXPECT_EQ(bytes_of(block->MidB(INT32_MAX, INT32_MAX)), "");
}

}  // namespace
}  // namespace tavrik::test
