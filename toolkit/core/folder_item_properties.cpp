#include "toolkit/core/file_dates.h"
#include "toolkit/core/file_times.h"
#include "toolkit/core/file_type.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/mac_metadata.h"
#include "toolkit/core/path.h"

#include <tavrik/folder_item.h>
#include <tavrik/permissions.h>

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <limits>
#include <optional>
#include <utility>

namespace tavrik {
namespace {

using core::item_state;
using core::ItemState;
using core::Links;
using core::MacCode;

constexpr mode_t kAnyWrite = 0222;
constexpr std::int32_t kMostInt32 = std::numeric_limits<std::int32_t>::max();
constexpr std::size_t kMostAccountBytes = std::size_t{1} << 20;

// What is there, or zeros, with the reason in LastErrorCode.
struct stat status_of(Object* item) {
    struct stat status {};
    item_state(item).look(status);
    return status;
}

void set_mode(ItemState& state, mode_t mode) {
    state.done("given permissions", state.files->set_mode(state.path, state.links, mode));
}

void rename(ItemState& state, const std::string& name) {
    const int error = core::is_entry_name(name) ? state.files->rename(state.path, name) : EINVAL;
    if (state.done("renamed", error)) state.name_anew(core::join(core::folder_of(state.path), name));
}

bool is_allowed(Object* item, int what) {
    const ItemState& state = item_state(item);
    return state.files->allows(state.path, what);
}

void set_owner(ItemState& state, uid_t owner, gid_t group, int error) {
    if (error == 0) error = state.files->set_owner(state.path, state.links, owner, group);
    state.done("given to another owner", error);
}

// The two kinds of accounts, as the system asks about them.
struct Users {
    using Entry = passwd;
    using Id = uid_t;
    static constexpr auto by_id = &::getpwuid_r;
    static constexpr auto by_name = &::getpwnam_r;
    static Id id(const Entry& entry) { return entry.pw_uid; }
    static const char* name(const Entry& entry) { return entry.pw_name; }
};
struct Groups {
    using Entry = group;
    using Id = gid_t;
    static constexpr auto by_id = &::getgrgid_r;
    static constexpr auto by_name = &::getgrnam_r;
    static Id id(const Entry& entry) { return entry.gr_gid; }
    static const char* name(const Entry& entry) { return entry.gr_name; }
};

// Asks with more room until the answer has enough.
template <class Entry, class Ask, class Key, class Use>
void ask_account(Ask ask, Key key, Use use) {
    std::string text(1024, '\0');
    Entry entry{};
    Entry* found = nullptr;
    while (ask(key, &entry, text.data(), text.size(), &found) == ERANGE && text.size() < kMostAccountBytes) {
        text.resize(text.size() * 2);
    }
    if (found != nullptr) use(*found);
}

template <class Accounts>
String name_of_account(typename Accounts::Id id) {
    std::string name = std::to_string(id);
    ask_account<typename Accounts::Entry>(Accounts::by_id, id,
                                          [&](const auto& entry) { name = Accounts::name(entry); });
    return String(name);
}

// A name, or a number where no account has it for a name.
template <class Accounts>
std::optional<typename Accounts::Id> account_of(const String& text) {
    const std::string name(text.view());
    std::optional<typename Accounts::Id> id;
    ask_account<typename Accounts::Entry>(Accounts::by_name, name.c_str(),
                                          [&](const auto& entry) { id = Accounts::id(entry); });
    if (id || name.empty()) return id;
    typename Accounts::Id number = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
    if (error == std::errc() && end == name.data() + name.size()) id = number;
    return id;
}

// A volume keeps no codes.
int read_mac_code(const ItemState& state, MacCode which, std::string& code) {
    struct stat status {};
    if (state.is_inside()) return state.files->look(state.path, state.links, status);
    return core::read_mac_code(state.path, which, code);
}

String mac_code(Object* item, MacCode which) {
    ItemState& state = item_state(item);
    std::string code;
    if (const int error = read_mac_code(state, which, code)) state.done("looked at", error);
    return String(code);
}

void set_mac_code(Object* item, MacCode which, const String& code) {
    ItemState& state = item_state(item);
    const std::string_view not_done = which == MacCode::kType ? "given a type" : "given a creator";
    if (state.is_refused_inside(not_done)) return;
    state.done(not_done, core::write_mac_code(state.path, which, std::string(code.view())));
}

}  // namespace

void fileNameSetter(Object* item, std::int32_t, const String& name) {
    rename(item_state(item), std::string(name.view()));
}

std::int32_t fileCountGetter(Object* item, std::int32_t) {
    ItemState& state = item_state(item);
    std::size_t count = 0;
    if (const int error = state.listing.count(*state.files, state.path, count)) state.done("listed", error);
    return static_cast<std::int32_t>(std::min<std::size_t>(count, kMostInt32));
}

std::uint64_t fileSizeGetter(Object* item, std::int32_t) {
    const struct stat status = status_of(item);
    return S_ISDIR(status.st_mode) ? 0 : static_cast<std::uint64_t>(status.st_size);
}

std::int32_t fileRFSizeGetter(Object* item, std::int32_t) {
    ItemState& state = item_state(item);
    std::uint64_t length = 0;
    if (state.is_inside()) return 0;
    if (const int error = core::resource_fork_length(state.path, length)) state.done("looked at", error);
    return static_cast<std::int32_t>(std::min<std::uint64_t>(length, kMostInt32));
}

// Names are shown whole here, for every file.
bool FileExtensionVisibleGetter(Object* item, std::int32_t) {
    item_state(item);
    return true;
}
void FileExtensionVisibleSetter(Object* item, std::int32_t, bool visible) {
    item_state(item).done("given a hidden extension", visible ? 0 : ENOTSUP);
}

bool fileLockedGetter(Object* item, std::int32_t) {
    struct stat status {};
    return item_state(item).look(status) && (status.st_mode & kAnyWrite) == 0;
}
void fileLockedSetter(Object* item, std::int32_t, bool locked) {
    ItemState& state = item_state(item);
    struct stat status {};
    if (!state.look(status)) return;
    const mode_t mode = status.st_mode & 07777;
    set_mode(state, locked ? mode & ~kAnyWrite : mode | S_IWUSR);
}

bool fileExistsGetter(Object* item, std::int32_t) {
    const ItemState& state = item_state(item);
    struct stat status {};
    return state.files->look(state.path, state.links, status) == 0;
}
bool fileAliasGetter(Object* item, std::int32_t) {
    const ItemState& state = item_state(item);
    struct stat status {};
    return state.files->look(state.path, Links::kItself, status) == 0 && S_ISLNK(status.st_mode);
}
bool fileDirectoryGetter(Object* item, std::int32_t) {
    const ItemState& state = item_state(item);
    struct stat status {};
    return state.files->look(state.path, state.links, status) == 0 && S_ISDIR(status.st_mode);
}

bool fileVisibleGetter(Object* item, std::int32_t) { return !core::name_of(item_state(item).path).starts_with('.'); }
void fileVisibleSetter(Object* item, std::int32_t, bool visible) {
    ItemState& state = item_state(item);
    std::string name(core::name_of(state.path));
    if (visible) {
        name.erase(0, std::min(name.find_first_not_of('.'), name.size()));
    } else if (!name.starts_with('.')) {
        name.insert(0, 1, '.');
    }
    rename(state, name);
}

String fileTypeGetter(Object* item, std::int32_t) {
    const ItemState& state = item_state(item);
    std::string mac_type;
    read_mac_code(state, MacCode::kType, mac_type);
    return String(core::type_of_file(state.files->name_of(state.path), mac_type));
}

Ref<Object> folderGetCreation(Object* item, std::int32_t) {
    ItemState& state = item_state(item);
    timespec time{};
    const int error = state.files->creation_time(state.path, state.links, time);
    if (error != 0 && !state.done("looked at", error)) return nullptr;
    return core::make_date(time);
}
void folderSetCreation(Object* item, std::int32_t, Object* date) {
    core::time_of(date);
    item_state(item).done("given a date of creation", ENOTSUP);
}
Ref<Object> folderGetModified(Object* item, std::int32_t) {
    struct stat status {};
    if (!item_state(item).look(status)) return nullptr;
    return core::make_date(core::modification_time(status));
}
void folderSetModified(Object* item, std::int32_t, Object* date) {
    ItemState& state = item_state(item);
    const timespec time = core::time_of(date);
    state.done("given a date", state.files->set_modification_time(state.path, state.links, time));
}

String fileMacTypeGetter(Object* item, std::int32_t) { return mac_code(item, MacCode::kType); }
void fileMacTypeSetter(Object* item, std::int32_t, const String& type) { set_mac_code(item, MacCode::kType, type); }
String fileMacCreatorGetter(Object* item, std::int32_t) { return mac_code(item, MacCode::kCreator); }
void fileMacCreatorSetter(Object* item, std::int32_t, const String& creator) {
    set_mac_code(item, MacCode::kCreator, creator);
}

bool FolderItemIsCurrentlyReadable(Object* item, std::int32_t) { return is_allowed(item, R_OK); }
bool FolderItemIsCurrentlyWriteable(Object* item, std::int32_t) { return is_allowed(item, W_OK); }

std::int32_t fileVRefNumGetter(Object* item, std::int32_t) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(status_of(item).st_dev));
}
std::int32_t fileDirIDGetter(Object* item, std::int32_t) {
    ItemState& state = item_state(item);
    struct stat status {};
    const int error = state.files->look(std::string(core::folder_of(state.path)), Links::kFollow, status);
    if (error != 0) state.done("looked at", error);
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(status.st_ino));
}

std::int32_t FolderItemGetPermissions(Object* item) {
    return static_cast<std::int32_t>(status_of(item).st_mode) & kPermitAll;
}
void FolderItemSetPermissionsInteger(Object* item, std::int32_t mode) {
    set_mode(item_state(item), static_cast<mode_t>(mode & kPermitAll));
}
void FolderItemSetPermissionsClass(Object* item, Object* permissions) {
    if (permissions == nullptr) RaiseNilObjectException();
    FolderItemSetPermissionsInteger(item, static_cast<PermissionsObject*>(permissions)->mode_bits);
}

String FolderItemGroupGetter(Object* item, std::int32_t) {
    struct stat status {};
    return item_state(item).look(status) ? name_of_account<Groups>(status.st_gid) : String();
}
String FolderItemOwnerGetter(Object* item, std::int32_t) {
    struct stat status {};
    return item_state(item).look(status) ? name_of_account<Users>(status.st_uid) : String();
}
void FolderItemGroupSetter(Object* item, std::int32_t, const String& group) {
    const auto id = account_of<Groups>(group);
    set_owner(item_state(item), static_cast<uid_t>(-1), id.value_or(0), id ? 0 : EINVAL);
}
void FolderItemOwnerSetter(Object* item, std::int32_t, const String& owner) {
    const auto id = account_of<Users>(owner);
    set_owner(item_state(item), id.value_or(0), static_cast<gid_t>(-1), id ? 0 : EINVAL);
}

}  // namespace tavrik
