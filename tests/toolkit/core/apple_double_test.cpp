#include "toolkit/core/apple_double.h"

#include "tests/support/temporary_folder.h"
#include "toolkit/core/mac_metadata.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace tavrik::test {
namespace {

using core::AppleDouble;
using std::string_literals::operator""s;

std::string companion() {
    AppleDouble parts;
    parts.set_part(AppleDouble::kResourceFork, "resources");
    parts.set_part(AppleDouble::kFinderInfo, "TypeCrea" + std::string(24, '\0'));
    return parts.bytes();
}

TEST(AppleDouble, Has_its_parts_where_the_form_has_them) {
    const std::string bytes = companion();
    EXPECT_EQ(bytes.substr(0, 8), "\0\5\x16\7\0\2\0\0"s);
    EXPECT_EQ(bytes.substr(24, 14), "\0\2\0\0\0\x09\0\0\0\x32\0\0\0\x20"s);
    auto parsed = AppleDouble::parse(bytes);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->part(AppleDouble::kResourceFork), "resources");
    EXPECT_EQ(parsed->part(1), "");
    parsed->set_part(AppleDouble::kResourceFork, "");
    EXPECT_EQ(AppleDouble::parse(parsed->bytes())->part(AppleDouble::kFinderInfo).substr(0, 8), "TypeCrea");
}

TEST(AppleDouble, Refuses_every_cut_of_itself) {
    const std::string bytes = companion();
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        EXPECT_FALSE(AppleDouble::parse(std::string_view(bytes).substr(0, size))) << size;
    }
}

TEST(Mac_metadata, Is_read_from_the_companion_and_makes_nothing) {
    const TemporaryFolder folder;
    const std::string path = folder.new_file("file", "");
    std::string code;
    ASSERT_EQ(core::read_mac_code(path, core::MacCode::kType, code), 0);
    EXPECT_EQ(code, "");
    EXPECT_FALSE(std::filesystem::exists(folder.file("._file")));
    folder.new_file("._file", companion());
    ASSERT_EQ(core::read_mac_code(path, core::MacCode::kCreator, code), 0);
    EXPECT_EQ(code, "Crea");
    std::uint64_t length = 0;
    ASSERT_EQ(core::resource_fork_length(path, length), 0);
    EXPECT_EQ(length, 9U);
    folder.new_file("._file", "other bytes");
    ASSERT_EQ(core::read_mac_code(path, core::MacCode::kCreator, code), 0);
    EXPECT_EQ(code, "");
    EXPECT_EQ(core::read_mac_code(folder.file("none"), core::MacCode::kType, code), ENOENT);
}

}  // namespace
}  // namespace tavrik::test
