#include "toolkit/core/volumes.h"

#include "data/virtual_volume.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/core/event_scope.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cerrno>

namespace tavrik::test {
namespace {

struct Volumes : testing::Test {
    const Balance balance;
    const TemporaryFolder folder;
    const std::string path = folder.file("volume");
    int error = 0;
};

// Run where the module isn't built.
struct Missing_volumes : Volumes {};

TEST_F(Missing_volumes, Are_a_service_that_is_missing) {
    EXPECT_EQ(class_raised_by([&] { core::create_virtual_volume(path, error); }), "ServiceNotAvailableException");
    EXPECT_EQ(class_raised_by([&] { core::open_virtual_volume(path, error); }), "ServiceNotAvailableException");
}

TEST_F(Volumes, A_file_that_is_no_volume_raises_and_says_which) {
    const std::string foreign = folder.new_file("foreign", "this is text");
    const Ref<Object> raised = raised_by([&] { core::open_virtual_volume(foreign, error); });
    EXPECT_EQ(class_of(raised), "UnsupportedFormatException");
    EXPECT_EQ(message_of(raised), "foreign could not be opened as a volume: it is no volume");
}

TEST_F(Volumes, What_the_system_refuses_is_nil_with_its_number_and_reason) {
    EXPECT_FALSE(core::open_virtual_volume(path, error));
    EXPECT_EQ(error, ENOENT);
    EXPECT_EQ(core::EventScope::last_failure(), "volume could not be opened as a volume: No such file or directory");
}

TEST_F(Volumes, A_file_is_opened_once_however_it_is_named) {
    const Ref<Object> made = core::create_virtual_volume(path, error);
    ASSERT_TRUE(made);
    const std::string link = folder.file("link");
    ASSERT_EQ(::symlink(path.c_str(), link.c_str()), 0);
    EXPECT_TRUE(core::open_virtual_volume(link, error));
    EXPECT_EQ(error, 0);
    EXPECT_FALSE(core::create_virtual_volume(path, error));
    EXPECT_EQ(error, EEXIST);
}

TEST_F(Volumes, The_root_of_a_volume_that_nobody_opened_is_nil) {
    const Ref<VirtualVolume> volume = make<VirtualVolume>();
    EXPECT_EQ(VirtVolRootGetter(volume.object(), 0).object(), nullptr);
    EXPECT_EQ(class_raised_by([] { VirtVolRootGetter(nullptr, 0); }), "NilObjectException");
}

}  // namespace
}  // namespace tavrik::test
