#include "data/folder_item.h"

#include "data/binary_stream.h"
#include "data/date.h"
#include "data/permissions.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/folder_item.h"

#include <tavrik/file_type.h>

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <thread>

namespace tavrik::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

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

std::string text(const String& string) { return std::string(string.view()); }
std::string path_of(const Ref<FolderItem>& item) { return item ? text(item->AbsolutePath()) : "nil"; }

// A variable of the environment, for as long as it lives.
struct Variable {
    Variable(const char* variable, const std::string& value) : name(variable) {
        const char* const old = std::getenv(variable);
        if (old != nullptr) before.emplace(old);
        setenv(variable, value.c_str(), 1);
    }
    ~Variable() { before ? setenv(name, before->c_str(), 1) : unsetenv(name); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    const char* name;
    std::optional<std::string> before;
};

TEST(FolderItem, Is_made_from_each_form_of_a_path_by_both_entrances) {
    const Balance balance;
    const Variable home("HOME", "/home/me");
    const struct {
        const char* given;
        std::int32_t form;
        const char* path;
    } cases[] = {
        {"/a//b/./c/", 0, "/a/b/c"},
        {"/no/../\xFF", 0, "/\xFF"},
        {"'/a b'/c", 1, "/a b/c"},
        {"~/x", 1, "/home/me/x"},
        {"file:///a%20b/%FF", 2, "/a b/\xFF"},
        {"/a b", 1, nullptr},
        {"/$a", 1, nullptr},
        {"", 0, nullptr},
        {"http://a/b", 2, nullptr},
        {"file:///%00", 2, nullptr},
        {"/a", 3, nullptr},
        {"/a", -1, nullptr},
    };
    for (const auto& each : cases) {
        const Ref<FolderItem> item = make<FolderItem>();
        const Ref<FolderItem> other = make<FolderItem>();
        const std::string raised =
            class_raised_by([&] { item->FolderItem_(String(std::string_view(each.given)), each.form); });
        EXPECT_EQ(raised, each.path == nullptr ? "UnsupportedFormatException" : "nothing") << each.given;
        if (each.path == nullptr) continue;
        other->Constructor(item);
        EXPECT_EQ(path_of(other), each.path);
        // All three texts name it again.
        item->Constructor(other->ShellPath(), 1);
        EXPECT_EQ(path_of(item), each.path);
        item->Constructor(other->URLPath(), 2);
        EXPECT_EQ(path_of(item), each.path);
    }
    const Ref<FolderItem> here = make<FolderItem>();
    here->Constructor();
    EXPECT_EQ(path_of(here), fs::current_path());
}

TEST(FolderItem, That_names_nothing_has_no_file_and_fails_quietly) {
    const Balance balance;
    const Ref<FolderItem> item = make<FolderItem>();
    EXPECT_FALSE(item->Exists());
    EXPECT_FALSE(item->Child("a"_s));
    EXPECT_FALSE(item->Parent());
    EXPECT_EQ(item->Count(), 0);
    item->Delete();
    EXPECT_EQ(item->LastErrorCode(), ENOENT);
    item->set_LastErrorCode(0);
    EXPECT_EQ(item->Length(), 0U);
    EXPECT_FALSE(item->ModificationDate());
    EXPECT_EQ(item->LastErrorCode(), ENOENT);
    EXPECT_EQ(class_raised_by([&] { item->CopyFileTo(nullptr); }), "NilObjectException");
}

TEST(FolderItem, Follows_links_unless_it_is_the_true_one) {
    const Balance balance;
    const TemporaryFolder folder;
    folder.new_file("file", "bytes");
    fs::create_directory(folder.file("deep"));
    fs::create_symlink("../file", folder.file("deep/to_file"));
    fs::create_symlink("deep/to_file", folder.file("link"));
    fs::create_symlink("loop", folder.file("loop"));
    const Ref<FolderItem> item = item_for(folder.path());
    const Ref<FolderItem> followed = item->Child("link"_s);
    const Ref<FolderItem> itself = item->TrueChild("link"_s);
    EXPECT_EQ(path_of(followed), folder.file("file"));
    EXPECT_EQ(path_of(itself), folder.file("link"));
    EXPECT_FALSE(followed->Alias());
    EXPECT_TRUE(itself->Alias());
    EXPECT_EQ(followed->Length(), 5U);
    EXPECT_EQ(itself->Length(), std::string("deep/to_file").size());
    EXPECT_EQ(path_of(item->Item(3)), folder.file("file"));
    EXPECT_EQ(path_of(item->TrueItem(3)), folder.file("link"));

    fs::create_symlink("winding/..", folder.file("winding"));
    EXPECT_FALSE(item->Child("winding"_s));
    EXPECT_FALSE(item->Child("loop"_s));
    EXPECT_EQ(item->LastErrorCode(), ELOOP);
    EXPECT_TRUE(item->TrueChild("loop"_s)->Exists());
    itself->Delete();
    item_for(folder.file("deep/to_file"))->Delete();
    EXPECT_EQ(bytes_of(folder.file("file")), "bytes");
    EXPECT_TRUE(fs::is_empty(folder.file("deep")));
    EXPECT_EQ(path_of(item->Child("new"_s)), folder.file("new"));
    for (const char* name : {"", ".", "..", "deep/to_file"}) {
        EXPECT_FALSE(item->Child(String(std::string_view(name)))) << name;
    }
}

TEST(FolderItem, Walks_a_folder_in_order_while_it_changes) {
    const Balance balance;
    const TemporaryFolder folder;
    for (const char* name : {"b", "\xFF", "a", "C", "\xC3\xA4"}) folder.new_file(name, "");
    const Ref<FolderItem> item = item_for(folder.path());
    const auto names = [&] {
        std::vector<std::string> found;
        for (std::int32_t i = 1; const Ref<FolderItem> entry = item->Item(i); ++i) found.push_back(text(entry->Name()));
        return found;
    };
    EXPECT_THAT(names(), ElementsAre("C", "a", "b", "\xC3\xA4", "\xFF"));
    folder.new_file("D", "");
    EXPECT_EQ(item->Count(), 6);
    EXPECT_THAT(names(), ElementsAre("C", "D", "a", "b", "\xC3\xA4", "\xFF"));
    EXPECT_FALSE(item->Item(0));
    EXPECT_FALSE(item->Item(7));
    EXPECT_EQ(item->LastErrorCode(), ENOENT);
    const std::int32_t count = item->Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        item->Item(i)->Delete();
        folder.new_file(std::to_string(i).insert(0, 1, '0'), "");
    }
    EXPECT_THAT(names(), ElementsAre("01", "02", "03", "04", "05", "06"));
    for (std::int32_t i = item->Count(); i >= 1; --i) item->Item(i)->Delete();
    EXPECT_EQ(item->Count(), 0);
}

TEST(FolderItem, Takes_names_and_paths_as_long_as_the_system_has_them) {
    const Balance balance;
    const TemporaryFolder folder;
    const String name(std::string(255, 'n'));
    Ref<FolderItem> item = item_for(folder.path());
    for (int depth = 0; depth < 20; ++depth) {
        item = item->Child(name);
        item->CreateAsFolder();
        ASSERT_EQ(item->LastErrorCode(), 0);
    }
    const Ref<FolderItem> file = item->Child("file"_s);
    EXPECT_GT(path_of(file).size(), 5000U);
    file->CreateBinaryFile(String())->Write("deep"_s);
    EXPECT_EQ(text(file->OpenAsBinaryFile(false)->Read(10, nullptr)), "deep");
    file->CopyFileTo(item->Child("copy"_s));
    EXPECT_EQ(item->Count(), 2);
    EXPECT_EQ(item->Item(1)->Length(), 4U);
    EXPECT_FALSE(item->Child(String(std::string(256, 'n'))));
    EXPECT_EQ(item->LastErrorCode(), ENAMETOOLONG);
}

TEST(FolderItem, Creates_copies_moves_renames_and_deletes) {
    const Balance balance;
    const TemporaryFolder folder;
    const Ref<FolderItem> file = item_for(folder.file("file"));
    const Ref<FolderItem> into = item_for(folder.file("into"));
    into->CreateAsFolder();
    into->CreateAsFolder();
    EXPECT_EQ(into->LastErrorCode(), EEXIST);
    file->CreateBinaryFile(String())->Write("one, longer"_s);
    file->CreateBinaryFile(String())->Write("bytes"_s);

    file->CopyFileTo(into);
    EXPECT_EQ(bytes_of(folder.file("into/file")), "bytes");
    file->CopyFileTo(into);
    EXPECT_EQ(file->LastErrorCode(), EEXIST);
    file->MoveFileTo(into->Child("moved"_s));
    EXPECT_EQ(path_of(file), folder.file("into/moved"));
    file->set_Name("file"_s);
    EXPECT_EQ(file->LastErrorCode(), EEXIST);
    file->set_Name("../out"_s);
    EXPECT_EQ(file->LastErrorCode(), EINVAL);
    file->set_Name("\xFF"_s);
    EXPECT_EQ(text(file->DisplayName()), "\\xff");
    file->set_Visible(false);
    EXPECT_EQ(path_of(file), folder.file("into/.\xFF"));
    EXPECT_FALSE(file->Visible());
    EXPECT_EQ(bytes_of(path_of(file)), "bytes");

    into->Delete();
    EXPECT_EQ(into->LastErrorCode(), ENOTEMPTY);
    file->Delete();
    into->Item(1)->Delete();
    into->Delete();
    EXPECT_EQ(into->LastErrorCode(), 0);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(FolderItem, Gives_and_takes_permissions_both_ways) {
    const Balance balance;
    const TemporaryFolder folder;
    const Ref<FolderItem> item = item_for(folder.new_file("file", ""));
    const Ref<Permissions> permissions = make<Permissions>();
    for (const std::int32_t mode : {0644, 07777, 0, 0421}) {
        permissions->Constructor(mode);
        item->set_Permissions(permissions);
        EXPECT_EQ(item->Permissions(), mode);
        item->set_Permissions(0600);
        item->set_Permissions(0100000 | mode);
        EXPECT_EQ(item->Permissions(), mode);
    }
    item->set_Permissions(0640);
    item->_MakeFileExecutable();
    EXPECT_EQ(item->Permissions(), 0750);
    item->set_Locked(true);
    EXPECT_EQ(item->Permissions(), 0550);
    EXPECT_TRUE(item->Locked());
    item->set_Locked(false);
    EXPECT_EQ(item->Permissions(), 0750);
    EXPECT_TRUE(item->IsReadable());
    EXPECT_TRUE(item->IsWriteable());

    const String owner = item->Owner();
    item->set_Owner(owner);
    item->set_Group(item->Group());
    EXPECT_EQ(item->LastErrorCode(), 0);
    item->set_Owner("nobody has this name"_s);
    EXPECT_EQ(item->LastErrorCode(), EINVAL);
    EXPECT_EQ(item->Owner(), owner);
}

TEST(FolderItem, Keeps_dates_with_their_fractions_on_the_clock_of_the_time) {
    const Balance balance;
    const Variable zone("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    const TemporaryFolder folder;
    const Ref<FolderItem> item = item_for(folder.new_file("file", ""));
    const Ref<Date> date = make<Date>();
    date->set_GMTOffset(-3.5);
    date->set_SQLDateTime("2024-07-01 09:30:05"_s);
    date->set_TotalSeconds(date->TotalSeconds() + 0.625);
    item->set_ModificationDate(date);
    const Ref<Date> read = item->ModificationDate();
    EXPECT_EQ(text(read->SQLDateTime()), "2024-07-01 15:00:05");
    EXPECT_EQ(read->GMTOffset(), 2);
    EXPECT_EQ(read->TotalSeconds() - 0.625, std::floor(read->TotalSeconds()));
    const double age = make<Date>()->TotalSeconds() - item->CreationDate()->TotalSeconds();
    EXPECT_LT(std::abs(age), 60);
    item->set_CreationDate(date);
    EXPECT_EQ(item->LastErrorCode(), ENOTSUP);
}

TEST(FolderItem, Is_found_again_after_it_was_moved_together_with_its_base) {
    const Balance balance;
    const TemporaryFolder folder;
    fs::create_directories(folder.file("old/base"));
    folder.new_file("old/f\n%.map", "");
    const Ref<FolderItem> file = item_for(folder.file("old/f\n%.map"));
    const String relative = file->GetSaveInfo(item_for(folder.file("old/base")), 0);
    const String absolute = file->GetSaveInfo(nullptr, 0);
    const Ref<FolderItem> base = item_for(folder.file("new/base"));
    EXPECT_EQ(path_of(base->GetRelative(relative)), path_of(file));
    fs::rename(folder.file("old"), folder.file("new"));
    EXPECT_EQ(path_of(base->GetRelative(relative)), folder.file("new/f\n%.map"));
    EXPECT_FALSE(base->GetRelative(absolute));
    EXPECT_EQ(base->LastErrorCode(), ENOENT);
    for (const char* bad : {"", "tavrik-item 1\n", "tavrik-item 2\nabsolute /a\n", "tavrik-item 1\nabsolute /%4\n"}) {
        EXPECT_FALSE(base->GetRelative(String(std::string_view(bad)))) << bad;
        EXPECT_EQ(base->LastErrorCode(), EINVAL);
    }
    EXPECT_EQ(class_raised_by([&] { file->GetSaveInfo(base, 2); }), "UnsupportedFormatException");
}

TEST(FolderItem, Tells_the_folders_that_the_desktop_sets_aside) {
    const Balance balance;
    const TemporaryFolder home;
    const Variable variables[] = {
        {"HOME", home.path()}, {"XDG_CONFIG_HOME", ""}, {"XDG_DATA_HOME", home.file("data")}, {"TMPDIR", "/var/tmp"}};
    const Ref<FolderItem> item = item_for("/dev/shm/x");
    EXPECT_EQ(path_of(item->DesktopFolder()), home.file("Desktop"));
    fs::create_directory(home.file(".config"));
    home.new_file(".config/user-dirs.dirs", "# x\nXDG_DESKTOP_DIR=\"$HOME/Schreib\\\"tisch\"\n");
    EXPECT_EQ(path_of(item->DesktopFolder()), home.file("Schreib\"tisch"));
    EXPECT_EQ(path_of(item->TrashFolder()), home.file("data/Trash/files"));
    EXPECT_EQ(path_of(item->TemporaryFolder()), "/var/tmp");
    EXPECT_THAT(path_of(item->SharedTrashFolder()),
                testing::EndsWith("/.Trash-" + std::to_string(getuid()) + "/files"));
    EXPECT_FALSE(folderFindFolder(item.get(), 0));
}

TEST(FolderItem, Has_a_type_by_its_extension_or_its_Macintosh_type) {
    const Balance balance;
    const TemporaryFolder folder;
    RuntimeRegisterFileType("test/relief"_s, "TaVr"_s, "ReLf"_s, ".relief;rlf"_s);
    const Ref<FolderItem> named = item_for(folder.file("a.RLF"));
    EXPECT_EQ(text(named->Type()), "test/relief");
    const Ref<FolderItem> plain = item_for(folder.file("plain"));
    EXPECT_EQ(text(plain->Type()), "");
    EXPECT_TRUE(plain->CreateBinaryFile("test/relief"_s));
    EXPECT_EQ(text(plain->MacType()), "ReLf");
    EXPECT_EQ(text(plain->MacCreator()), "TaVr");
    EXPECT_EQ(text(plain->Type()), "test/relief");
    plain->set_MacCreator("ab"_s);
    plain->set_MacType(String());
    EXPECT_EQ(text(plain->MacCreator()), "ab  ");
    EXPECT_EQ(text(plain->MacType()), "");
    plain->set_MacType("12345"_s);
    EXPECT_EQ(plain->LastErrorCode(), EINVAL);
    RuntimeDeregisterFileType("test/relief"_s);
}

TEST(FolderItem, Launches_through_the_desktop_or_as_a_program_with_its_words) {
    const Balance balance;
    const TemporaryFolder folder;
    const std::string said = folder.file("said");
    const std::string opener = folder.new_file(
        "xdg-open", "#!/bin/sh\nprintf '[%s]' \"$@\" >'" + said + ".new'; mv '" + said + ".new' '" + said + "'\n");
    fs::permissions(opener, fs::perms(0755));
    const auto heard = [&] {
        for (int i = 0; i < 1000 && !fs::exists(said); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(5));
        const std::string words = bytes_of(said);
        fs::remove(said);
        return words;
    };
    const Ref<FolderItem> file = item_for(folder.new_file("it's; a $file", ""));
    {
        const Variable path("PATH", folder.path() + ":/bin:/usr/bin");
        file->Launch(true);
        EXPECT_EQ(heard(), std::string("[").append(folder.file("it's; a $file")).append("]"));
        item_for(opener)->Launch("a 'b c'"_s, false);
        EXPECT_EQ(heard(), "[a][b c]");
        file->Launch("a"_s, false);
        EXPECT_EQ(file->LastErrorCode(), ENOEXEC);
        item_for(opener)->Launch("'a"_s, false);
    }
    const Variable path("PATH", folder.file("nothing"));
    file->Launch(true);
    EXPECT_EQ(file->LastErrorCode(), ENOENT);
}

TEST(FolderItem, Says_what_the_program_has_no_class_for) {
    const Balance balance;
    const TemporaryFolder folder;
    const Ref<FolderItem> item = item_for(folder.new_file("image.png", ""));
    const Ref<Object> raised = raised_by([&] { item->OpenAsPicture(); });
    EXPECT_EQ(class_of(raised), "ServiceNotAvailableException");
    EXPECT_EQ(message_of(raised), "this program has no Picture");
}

}  // namespace
}  // namespace tavrik::test
