#include "data/folder_item.h"

#include "data/binary_stream.h"
#include "tests/support/balance.h"
#include "tests/support/recording_front.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/folder_item.h"

#include <cerrno>

namespace tavrik::test {
namespace {

Ref<FolderItem> item_for(const std::string& path) { return static_ref<FolderItem>(core::make_folder_item(path)); }

// The message that using the stream of a file leads to, when the file can't be opened.
std::string complaint_about(const std::string& path) {
    const RecordingFront front;
    core::deliver([&] { item_for(path)->OpenAsBinaryFile(true)->ReadByte(); });
    return front.messages.empty() ? "" : front.messages.back();
}

TEST(FolderItem, That_cannot_be_opened_gives_nil_and_the_number_of_the_reason) {
    const Balance balance;
    const TemporaryFolder folder;
    const Ref<FolderItem> item = item_for(folder.file("valley.map"));
    EXPECT_FALSE(item->OpenAsBinaryFile(true));
    EXPECT_EQ(item->LastErrorCode(), ENOENT);
    folder.new_file("valley.map", "");
    EXPECT_TRUE(item->OpenAsBinaryFile(true));
    EXPECT_EQ(item->LastErrorCode(), 0);
}

TEST(FolderItem, That_cannot_be_opened_is_told_with_name_and_reason) {
    const Balance balance;
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.file("maps"));
    EXPECT_EQ(complaint_about(folder.file("maps")), "maps could not be opened for writing: it is a folder");
    EXPECT_EQ(complaint_about(folder.file("\xFFmap\n")),
              "\\xffmap\\x0a could not be opened for writing: No such file or directory");
}

}  // namespace
}  // namespace tavrik::test
