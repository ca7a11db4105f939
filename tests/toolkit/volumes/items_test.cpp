#include "data/binary_stream.h"
#include "data/date.h"
#include "data/folder_item.h"
#include "data/text_input_stream.h"
#include "data/text_output_stream.h"
#include "data/virtual_volume.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/folder_item.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace tavrik::test {
namespace {

namespace fs = std::filesystem;

std::string text(const String& string) { return std::string(string.view()); }
std::string name_of(const Ref<FolderItem>& item) { return item ? text(item->Name()) : "nil"; }

// Everything below an item, one line for each.
std::string tree_of(const Ref<FolderItem>& folder, const std::string& before = "") {
    std::string lines;
    for (std::int32_t i = 1; i <= folder->Count(); ++i) {
        const Ref<FolderItem> item = folder->TrueItem(i);
        const std::string path = before + name_of(item);
        const bool is_folder = item->Directory();
        lines += path + (item->Alias() ? "@" : is_folder ? "/" : ":");
        if (lines.ends_with(':')) lines += std::to_string(item->Length());
        lines += ' ';
        if (is_folder) lines += tree_of(item, path + '/');
    }
    return lines;
}

std::string bytes_in(const Ref<FolderItem>& file) {
    const Ref<BinaryStream> stream = file->OpenAsBinaryFile(false);
    return stream ? text(stream->Read(static_cast<std::int32_t>(stream->Length()), nullptr)) : "nil";
}

class ItemsInVolumes : public testing::Test {
protected:
    void SetUp() override {
        const Ref<VirtualVolume> volume = outside("valley.volume")->CreateVirtualVolume();
        ASSERT_TRUE(volume);
        root_ = volume->Root();
        ASSERT_TRUE(root_);
    }

    Ref<FolderItem> outside(const std::string& name) {
        return static_ref<FolderItem>(core::make_folder_item(folder_.file(name)));
    }
    Ref<FolderItem> child(const Ref<FolderItem>& item, std::string_view name) { return item->Child(String(name)); }
    Ref<FolderItem> new_folder(const Ref<FolderItem>& parent, std::string_view name) {
        const Ref<FolderItem> made = child(parent, name);
        made->CreateAsFolder();
        EXPECT_EQ(made->LastErrorCode(), 0) << name;
        return made;
    }
    // maps/a with a link to it beside, and an empty folder.
    void new_tree_outside() {
        fs::create_directories(folder_.file("maps/deep/empty"));
        folder_.new_file("maps/deep/a", "some bytes");
        fs::create_symlink("deep/a", folder_.file("maps/link"));
        ::chmod(folder_.file("maps/deep/a").c_str(), 0640);
    }
    void copy_tree_in() {
        new_tree_outside();
        outside("maps")->CopyFileTo(root_);
    }
    // What another opening of the file finds.
    void reopen() {
        root_ = {};
        root_ = outside("valley.volume")->OpenAsVirtualVolume()->Root();
    }

    const Balance balance_;
    const TemporaryFolder folder_;
    Ref<FolderItem> root_;
};

constexpr const char* kTree = "deep/ deep/a:10 deep/empty/ link@ ";

TEST_F(ItemsInVolumes, Have_names_and_paths_behind_that_of_their_volume) {
    const Ref<FolderItem> item = child(new_folder(root_, "maps"), "valley.map");
    EXPECT_EQ(text(item->AbsolutePath()), folder_.file("valley.volume/maps/valley.map"));
    EXPECT_EQ(text(item->URLPath()) + text(item->ShellPath()) + text(item->MacType()) + text(item->MacCreator()), "");
    EXPECT_EQ(name_of(item), "valley.map");
    EXPECT_EQ(name_of(item->Parent()), "maps");
    EXPECT_EQ(text(root_->AbsolutePath()), folder_.file("valley.volume/"));
    EXPECT_EQ(name_of(root_), "valley.volume");
    EXPECT_FALSE(root_->Parent());
    EXPECT_EQ(text(item->TemporaryFolder()->AbsolutePath()), text(outside("x")->TemporaryFolder()->AbsolutePath()));
    EXPECT_EQ(text(item->VirtualVolume()->Root()->AbsolutePath()), text(root_->AbsolutePath()));
    EXPECT_FALSE(outside("x")->VirtualVolume());
    const Ref<FolderItem> copy = make<FolderItem>();
    copy->Constructor(item);
    EXPECT_EQ(copy->AbsolutePath().view(), item->AbsolutePath().view());
}

TEST_F(ItemsInVolumes, Are_made_renamed_and_deleted_for_good) {
    const Ref<FolderItem> maps = new_folder(root_, "maps");
    maps->CreateAsFolder();
    EXPECT_EQ(maps->LastErrorCode(), EEXIST);
    new_folder(maps, "b");
    const Ref<FolderItem> a = new_folder(maps, "a");
    a->set_Name("b"_s);
    EXPECT_EQ(a->LastErrorCode(), EEXIST);
    a->set_Name("c/d"_s);
    EXPECT_EQ(a->LastErrorCode(), EINVAL);
    a->set_Name("c"_s);
    EXPECT_EQ(name_of(a) + (a->Exists() ? "" : " isn't there"), "c");
    a->set_Visible(false);
    EXPECT_FALSE(a->Visible());
    maps->Delete();
    EXPECT_EQ(maps->LastErrorCode(), ENOTEMPTY);
    child(maps, "b")->Delete();
    root_->set_Name("x"_s);
    EXPECT_EQ(root_->LastErrorCode(), EBUSY);
    reopen();
    EXPECT_EQ(tree_of(root_), "maps/ maps/.c/ ");
    EXPECT_EQ(child(root_, "none")->Count(), 0);
    EXPECT_FALSE(child(root_, "none")->Exists());
    EXPECT_FALSE(root_->Item(2));
    EXPECT_EQ(root_->LastErrorCode(), ENOENT);
}

TEST_F(ItemsInVolumes, Keep_permissions_and_dates) {
    copy_tree_in();
    const Ref<FolderItem> a = child(child(child(root_, "maps"), "deep"), "a");
    EXPECT_EQ(a->Permissions(), 0640);
    a->set_Permissions(0444);
    EXPECT_TRUE(a->Locked() && a->IsReadable() && !a->IsWriteable());
    a->set_Locked(false);
    EXPECT_EQ(a->Permissions(), 0644);
    EXPECT_TRUE(a->IsWriteable());
    const Ref<Date> date = make<Date>();
    date->set_TotalSeconds(3'000'000'000.0);
    a->set_ModificationDate(date);
    reopen();
    const Ref<FolderItem> again = child(child(child(root_, "maps"), "deep"), "a");
    EXPECT_EQ(again->Permissions(), 0644);
    EXPECT_EQ(again->ModificationDate()->TotalSeconds(), 3'000'000'000.0);
    EXPECT_EQ(again->CreationDate()->TotalSeconds(), 3'000'000'000.0);
}

TEST_F(ItemsInVolumes, Go_in_and_out_as_whole_trees) {
    copy_tree_in();
    EXPECT_EQ(tree_of(child(root_, "maps")), kTree);
    reopen();
    const Ref<FolderItem> maps = child(root_, "maps");
    maps->CopyFileTo(outside("back"));
    EXPECT_EQ(maps->LastErrorCode(), 0);
    EXPECT_EQ(tree_of(outside("back")), kTree);
    EXPECT_EQ(bytes_of(folder_.file("back/link")), "some bytes");
    EXPECT_EQ(outside("back/deep/a")->Permissions(), 0640);
    maps->CopyFileTo(child(root_, "copy"));
    EXPECT_EQ(tree_of(child(root_, "copy")), kTree);
    maps->MoveFileTo(outside("moved"));
    EXPECT_EQ(text(maps->AbsolutePath()), folder_.file("moved"));
    EXPECT_EQ(tree_of(maps), kTree);
    EXPECT_FALSE(child(root_, "maps")->Exists());
    outside("back")->MoveFileTo(child(root_, "copy"));
    EXPECT_EQ(tree_of(child(root_, "copy")),
              "back/ back/deep/ back/deep/a:10 back/deep/empty/ back/link@ " + std::string(kTree));
    EXPECT_FALSE(outside("back")->Exists());
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), {}), 3) << "valley.volume, maps and moved";
}

TEST_F(ItemsInVolumes, Go_from_one_volume_to_another) {
    copy_tree_in();
    const Ref<FolderItem> other = outside("other.volume")->CreateVirtualVolume()->Root();
    const Ref<FolderItem> maps = child(root_, "maps");
    maps->MoveFileTo(other);
    EXPECT_EQ(text(maps->AbsolutePath()), folder_.file("other.volume/maps"));
    EXPECT_EQ(tree_of(other), "maps/ maps/deep/ maps/deep/a:10 maps/deep/empty/ maps/link@ ");
    EXPECT_EQ(tree_of(root_), "");
}

TEST_F(ItemsInVolumes, Replace_nothing_and_leave_nothing_half_made) {
    copy_tree_in();
    const Ref<FolderItem> maps = child(root_, "maps");
    const std::string before = tree_of(root_);
    const struct {
        Ref<FolderItem> from;
        Ref<FolderItem> to;
        int error;
    } cases[] = {
        {outside("maps"), root_, EEXIST},
        {maps, outside(""), EEXIST},
        {maps, child(maps, "deep"), EINVAL},
        {outside("none"), root_, ENOENT},
        {outside("maps"), child(child(root_, "none"), "x"), ENOENT},
        {outside("valley.volume"), root_, EINVAL},
        {outside(""), child(root_, "all"), EINVAL},
    };
    for (const auto& each : cases) {
        each.from->CopyFileTo(each.to);
        EXPECT_EQ(each.from->LastErrorCode(), each.error) << name_of(each.from);
        each.from->MoveFileTo(each.to);
        EXPECT_NE(each.from->LastErrorCode(), 0) << name_of(each.from);
    }
    ASSERT_EQ(::mkfifo(folder_.file("maps/z").c_str(), 0600), 0);
    outside("maps")->CopyFileTo(child(root_, "pipe"));
    EXPECT_EQ(core::EventScope::last_failure(), "maps could not be copied: z: Operation not supported");
    EXPECT_EQ(tree_of(root_), before);
    reopen();
    EXPECT_EQ(tree_of(root_), before);
}

TEST_F(ItemsInVolumes, A_move_out_that_cannot_be_finished_leaves_everything_as_it_was) {
    copy_tree_in();
    const Ref<FolderItem> maps = child(root_, "maps");
    const Ref<FolderItem> deep = child(maps, "deep");
    const Ref<FolderItem> locked = new_folder(deep, "locked");
    child(locked, "b")->CreateTextFile()->Write("b"_s);
    locked->set_Permissions(0500);
    const std::string before = tree_of(maps);
    // "a" goes before "locked" can't.
    const Ref<BinaryStream> stream = child(deep, "a")->OpenAsBinaryFile(true);
    maps->MoveFileTo(outside("moved"));
    EXPECT_EQ(maps->LastErrorCode(), EACCES);
    EXPECT_EQ(tree_of(maps), before);
    EXPECT_FALSE(outside("moved")->Exists());
    stream->Write("SOME"_s);
    stream->Close();
    EXPECT_EQ(bytes_in(child(deep, "a")), "SOME bytes");
}

TEST_F(ItemsInVolumes, Links_lead_to_what_is_in_the_same_volume) {
    fs::create_directories(folder_.file("maps/deep"));
    folder_.new_file("maps/deep/a", "some bytes");
    const struct {
        const char* name;
        const char* target;
        const char* leads_to;
    } cases[] = {
        {"relative", "deep/a", "maps/deep/a"},        {"folder", "deep", "maps/deep"},
        {"again", "folder/a", "maps/deep/a"},         {"up", "folder/../deep", "maps/deep"},
        {"above", "../../../maps/deep", "maps/deep"}, {"root", "/maps/deep", "maps/deep"},
        {"nowhere", "none/x", "maps/none/x"},
    };
    for (const auto& each : cases) fs::create_symlink(each.target, folder_.file("maps/") + each.name);
    fs::create_symlink("loop", folder_.file("maps/loop"));
    outside("maps")->CopyFileTo(root_);
    const Ref<FolderItem> maps = child(root_, "maps");
    for (const auto& each : cases) {
        EXPECT_EQ(text(child(maps, each.name)->AbsolutePath()), text(root_->AbsolutePath()) + each.leads_to);
        EXPECT_TRUE(maps->TrueChild(String(std::string_view(each.name)))->Alias());
    }
    EXPECT_FALSE(child(maps, "loop"));
    EXPECT_EQ(maps->LastErrorCode(), ELOOP);
    EXPECT_EQ(child(maps->TrueChild("folder"_s), "a")->Length(), 10U);
}

TEST_F(ItemsInVolumes, Have_streams_that_store_at_each_flush_and_at_the_end) {
    const Ref<FolderItem> a = child(root_, "a");
    // Only what is in the file of the volume comes along.
    const auto stored = [&] {
        fs::copy_file(folder_.file("valley.volume"), folder_.file("snapshot"), fs::copy_options::overwrite_existing);
        return bytes_in(child(outside("snapshot")->OpenAsVirtualVolume()->Root(), "a"));
    };
    Ref<BinaryStream> stream = a->CreateBinaryFile("text/plain"_s);
    ASSERT_TRUE(stream);
    stream->Write("some"_s);
    EXPECT_EQ(stored(), "");
    stream->Flush();
    EXPECT_EQ(stored(), "some");
    core::deliver([&] { stream->Write(" more"_s); });
    EXPECT_EQ(stored(), "some more");
    stream->Write(" and"_s);
    stream->Close();
    EXPECT_EQ(stored(), "some more and");
    stream = a->OpenAsBinaryFile(true);
    stream->set_Position(5);
    stream->Write("less"_s);
    stream = {};
    EXPECT_EQ(stored(), "some less and");
    a->AppendToTextFile()->WriteLine(" a line"_s);
    EXPECT_EQ(stored(), "some less and a line\n");
    EXPECT_EQ(text(a->OpenAsTextFile()->ReadLine(nullptr)), "some less and a line");
    a->CreateTextFile()->Write("new"_s);
    EXPECT_EQ(stored(), "new");
    child(root_, "b")->AppendToTextFile()->Write("b"_s);
    EXPECT_EQ(bytes_in(child(root_, "b")), "b");
}

TEST_F(ItemsInVolumes, Have_streams_over_more_than_fits_into_a_buffer) {
    const Ref<FolderItem> a = child(root_, "a");
    std::string bytes;
    for (int i = 0; i < 100'000; ++i) bytes += std::to_string(i);
    a->CreateBinaryFile(""_s)->Write(String(std::string_view(bytes)));
    EXPECT_EQ(a->Length(), bytes.size());
    a->CopyFileTo(outside("a"));
    EXPECT_TRUE(bytes_of(folder_.file("a")) == bytes);
    outside("a")->CopyFileTo(child(root_, "b"));
    EXPECT_TRUE(bytes_in(child(root_, "b")) == bytes);
}

TEST_F(ItemsInVolumes, Say_why_they_cannot_be_opened_and_read_on_after_they_are_deleted) {
    copy_tree_in();
    const Ref<FolderItem> maps = child(root_, "maps");
    EXPECT_FALSE(maps->OpenAsBinaryFile(false));
    EXPECT_EQ(core::EventScope::last_failure(), "maps could not be opened: it is a folder");
    const Ref<FolderItem> a = child(maps, "link");
    a->set_Permissions(0444);
    EXPECT_FALSE(a->OpenAsBinaryFile(true));
    EXPECT_EQ(a->LastErrorCode(), EACCES);
    EXPECT_FALSE(child(maps, "none")->OpenAsTextFile());
    EXPECT_FALSE(child(child(maps, "none"), "x")->CreateTextFile());
    const Ref<BinaryStream> stream = a->OpenAsBinaryFile(false);
    a->Delete();
    EXPECT_FALSE(a->Exists());
    EXPECT_EQ(text(stream->Read(100, nullptr)), "some bytes");
}

TEST_F(ItemsInVolumes, Are_found_again_by_their_save_info) {
    copy_tree_in();
    const Ref<FolderItem> maps = child(root_, "maps");
    const Ref<FolderItem> a = child(child(maps, "deep"), "a");
    const String relative = a->GetSaveInfo(maps, kSaveInfoRelativeFirst);
    const String absolute = a->GetSaveInfo(nullptr, kSaveInfoAbsoluteFirst);
    EXPECT_EQ(text(root_->GetRelative(absolute)->AbsolutePath()), text(a->AbsolutePath()));
    EXPECT_FALSE(outside("x")->GetRelative(absolute));
    maps->set_Name("renamed"_s);
    EXPECT_EQ(text(maps->GetRelative(relative)->AbsolutePath()), folder_.file("valley.volume/renamed/deep/a"));
    EXPECT_FALSE(root_->GetRelative(relative));
}

TEST_F(ItemsInVolumes, Refuse_what_only_the_disk_can_do) {
    copy_tree_in();
    const Ref<FolderItem> a = child(child(child(root_, "maps"), "deep"), "a");
    const auto refused = [&](const char* what) {
        EXPECT_EQ(a->LastErrorCode(), ENOTSUP) << what;
        a->set_LastErrorCode(0);
    };
    a->Launch(true);
    refused("Launch");
    a->Launch("-x"_s, true);
    refused("Launch with parameters");
    EXPECT_FALSE(a->OpenAsVirtualVolume());
    refused("OpenAsVirtualVolume");
    EXPECT_FALSE(child(root_, "new")->CreateVirtualVolume());
    a->set_MacType("TEXT"_s);
    refused("MacType");
    a->set_MacCreator("ttxt"_s);
    refused("MacCreator");
    a->set_Owner("0"_s);
    refused("Owner");
    EXPECT_EQ(core::EventScope::last_failure(), "a could not be given to another owner: Operation not supported");
}

TEST_F(ItemsInVolumes, A_file_is_a_volume_only_if_it_is_one) {
    folder_.new_file("text", "this is text");
    EXPECT_EQ(class_raised_by([&] { outside("text")->OpenAsVirtualVolume(); }), "UnsupportedFormatException");
    const Ref<FolderItem> none = outside("none");
    EXPECT_FALSE(none->OpenAsVirtualVolume());
    EXPECT_EQ(none->LastErrorCode(), ENOENT);
    const Ref<FolderItem> text = outside("text");
    EXPECT_FALSE(text->CreateVirtualVolume());
    EXPECT_EQ(text->LastErrorCode(), EEXIST);
}

}  // namespace
}  // namespace tavrik::test
