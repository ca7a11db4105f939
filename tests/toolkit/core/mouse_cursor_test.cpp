#include "ui/mouse_cursor.h"

#include "data/folder_item.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/core/cursor_file.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/mouse_cursor.h"

#include <fstream>

namespace tavrik::test {
namespace {

std::string number(std::uint32_t value, int width) {
    std::string bytes;
    for (; width-- > 0; value >>= 8) bytes += static_cast<char>(value & 0xFF);
    return bytes;
}

struct Image {
    int side;
    int bits;
    std::string palette;
    std::string pixels;
    std::string mask;

    std::string bytes() const {
        return number(40, 4) + number(static_cast<std::uint32_t>(side), 4) +
               number(static_cast<std::uint32_t>(side) * 2, 4) + number(1, 2) +
               number(static_cast<std::uint32_t>(bits), 2) + number(0, 16) +
               number(static_cast<std::uint32_t>(palette.size() / 4), 4) + number(0, 4) + palette + pixels + mask;
    }
};

// All with the hot spot at 1, 9.
std::string cursor_file(const std::vector<std::string>& images) {
    std::string file = number(0, 2) + number(2, 2) + number(static_cast<std::uint32_t>(images.size()), 2);
    std::string all;
    for (const std::string& image : images) {
        const std::size_t at = 6 + 16 * images.size() + all.size();
        file += number(0, 4) + number(1, 2) + number(9, 2) + number(static_cast<std::uint32_t>(image.size()), 4) +
                number(static_cast<std::uint32_t>(at), 4);
        all += image;
    }
    return file + all;
}

constexpr std::uint32_t kRed = 0xFFFF0000, kBlack = 0xFF000000, kWhite = 0xFFFFFFFF;

// Two by two: red over the lower row's left, transparent, inverting and black.
TEST(CursorFiles, Are_read_with_pixels_of_each_depth) {
    const std::string palette = number(0, 4) + number(0xFFFFFF, 4) + number(0xFF0000, 4);
    // From the bottom: inverting and black, then red and transparent.
    const std::string mask = number(0x80, 4) + number(0x40, 4);
    const auto bytes = [](std::initializer_list<int> values) { return std::string(values.begin(), values.end()); };
    const Image images[] = {
        {2, 4, palette, bytes({0x10, 0, 0, 0, 0x20, 0, 0, 0}), mask},
        {2, 8, palette, bytes({1, 0, 0, 0, 2, 0, 0, 0}), mask},
        {2, 24, "", bytes({-1, -1, -1, 0, 0, 0, 0, 0, 0, 0, -1, 0, 0, 0, 0, 0}), mask},
        {2, 32, "", number(0xFFFFFF, 4) + number(0, 4) + number(0xFF0000, 4) + number(0, 4), mask},
    };
    for (const Image& image : images) {
        std::string reason;
        const auto read = core::read_cursor_file(cursor_file({image.bytes()}), reason);
        ASSERT_TRUE(read) << image.bits << ": " << reason;
        EXPECT_EQ(read->pixels, (std::vector<std::uint32_t>{kRed, 0, kBlack, kBlack})) << image.bits;
        EXPECT_EQ(read->hot_spot, (front::Point{1, 1})) << "inside of the image";
    }
    std::string reason;
    const Image one_bit{2, 1, number(0, 4) + number(0xFFFFFF, 4), number(0x40, 4) + number(0x80, 4), number(0, 8)};
    EXPECT_EQ(core::read_cursor_file(cursor_file({one_bit.bytes()}), reason)->pixels,
              (std::vector<std::uint32_t>{kWhite, kBlack, kBlack, kWhite}));
    const Image translucent{1, 32, "", number(0x80FF0000, 4), ""};
    EXPECT_EQ(core::read_cursor_file(cursor_file({translucent.bytes()}), reason)->pixels.at(0), 0x80FF0000U);
}

TEST(CursorFiles, Give_the_usual_size_with_the_most_colours) {
    const auto blank = [](int side, int bits) {
        const auto bytes = static_cast<std::size_t>(side * side) * 4;
        return Image{side, bits, "", std::string(bytes, '\1'), std::string(bytes, '\0')}.bytes();
    };
    std::string reason;
    const auto read =
        core::read_cursor_file(cursor_file({blank(16, 32), blank(32, 24), "\x89PNG", blank(48, 32)}), reason);
    EXPECT_EQ(read->width, 32) << reason;
}

TEST(CursorFiles, That_are_none_are_refused_with_the_reason) {
    const std::string whole = cursor_file({Image{1, 32, "", "abcd", ""}.bytes()});
    const std::pair<std::string, const char*> files[] = {
        {"", "it ends too early"},
        {whole.substr(0, whole.size() - 1), "it ends too early"},
        {"\x89PNG", "it is no cursor"},
        {cursor_file({}), "it has no image"},
        {cursor_file({"\x89PNG\r\n"}), "its images are PNG"},
        {cursor_file({Image{1, 16, "", "abcd", ""}.bytes()}), "its pixels have 16 bits"},
        {cursor_file({Image{70000, 32, "", "abcd", ""}.bytes()}), "its bitmap has an impossible size"},
        {cursor_file({Image{200, 32, "", "abcd", ""}.bytes()}), "it ends too early"},
    };
    for (const auto& [bytes, expected] : files) {
        std::string reason;
        EXPECT_FALSE(core::read_cursor_file(bytes, reason)) << expected;
        EXPECT_EQ(reason, expected);
    }
}

TEST(MouseCursors, Wrap_what_the_toolkit_keeps) {
    const Balance balance;
    const Ref<Object> standard = RuntimeStandardCursor(13);
    EXPECT_EQ(core::cursor_of(standard.object()), front::Cursor{front::CursorShape::kBlank});
    const Ref<_MouseCursorImp> imp = check_cast<MouseCursor>(standard)->_mImp;
    EXPECT_NE(MouseCursor::_CursorWithImp(imp), MouseCursor::_CursorWithImp(imp));
    EXPECT_EQ(core::cursor_of(MouseCursor::_CursorWithImp(imp).object()), core::cursor_of(standard.object()));
    EXPECT_FALSE(MouseCursor::_CursorWithImp(nullptr)->_mImp);
    EXPECT_FALSE(core::cursor_of(MouseCursor::_CursorWithImp(nullptr).object()) || core::cursor_of(nullptr));
    for (const std::int32_t none : {-1, 14}) {
        EXPECT_EQ(class_raised_by([&] { RuntimeStandardCursor(none); }), "OutOfBoundsException");
    }
}

TEST(MouseCursors, Are_opened_from_files) {
    const Balance balance;
    const TemporaryFolder folder;
    const auto item = [&](const char* name) {
        return static_ref<FolderItem>(core::make_folder_item(folder.file(name)));
    };
    std::ofstream(folder.file("dot.cur"), std::ios::binary)
        << cursor_file({Image{1, 32, "", number(kRed, 4), ""}.bytes()});
    std::ofstream(folder.file("text.cur")) << "no cursor";
    const auto cursor = core::cursor_of(item("dot.cur")->_OpenAsCursor().object());
    ASSERT_TRUE(cursor && cursor->image);
    EXPECT_EQ(cursor->image->pixels.at(0), kRed);
    EXPECT_FALSE(item("none.cur")->_OpenAsCursor());
    const Ref<Object> refusal = raised_by([&] { item("text.cur")->_OpenAsCursor(); });
    EXPECT_EQ(class_of(refusal), "UnsupportedFormatException");
    EXPECT_NE(message_of(refusal).find("text.cur could not be read: it is no cursor"), std::string::npos);
}

}  // namespace
}  // namespace tavrik::test
