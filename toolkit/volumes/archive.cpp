#include "toolkit/volumes/archive.h"

#include "toolkit/volumes/archive_file.h"
#include "toolkit/volumes/compression.h"
#include "toolkit/volumes/failure.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <new>

namespace tavrik::volume {
namespace {

// As SQLite's own tool makes it, letter for letter.
constexpr const char* kSchema =
    "CREATE TABLE sqlar(\n"
    "  name TEXT PRIMARY KEY,  -- name of the file\n"
    "  mode INT,               -- access permissions\n"
    "  mtime INT,              -- last modification time\n"
    "  sz INT,                 -- original file size\n"
    "  data BLOB               -- compressed content\n"
    ")";
constexpr std::string_view kRootRow = ".";
constexpr std::int64_t kSizeOfLink = -1;
constexpr std::uint32_t kPermissions = 07777;
constexpr std::uint32_t kLinkMode = 0777;
constexpr std::uint32_t kOwnerWrite = 0200;
// Larger ones are trusted until a page turns out to be wrong: reading all of them takes too long.
constexpr std::uint64_t kLargestChecked = std::uint64_t{64} << 20;

Kind kind_of(std::int64_t mode) {
    if ((mode & S_IFMT) == S_IFDIR) return Kind::kFolder;
    return (mode & S_IFMT) == S_IFLNK ? Kind::kLink : Kind::kFile;
}

std::int64_t full_mode(Kind kind, std::uint32_t mode) {
    const std::uint32_t type = kind == Kind::kFolder ? S_IFDIR : kind == Kind::kLink ? S_IFLNK : S_IFREG;
    return static_cast<std::int64_t>(type | (mode & kPermissions));
}

std::string row_name(const Node& node) { return node.parent == nullptr ? std::string(kRootRow) : path_of(node); }

void need_owner_write(const Node& node) {
    if ((node.mode & kOwnerWrite) == 0) throw Failure{EACCES};
}

}  // namespace

Archive::Archive(const std::string& path, Mode mode)
    : file_(path, mode),
      database_(file_.path(), file_.writable()),
      identity_(file_.identity()),
      longest_file_(database_.longest_value()),
      version_(database_, "PRAGMA data_version") {
    if (mode == Mode::kCreate) database_.execute(kSchema);
    check_schema();
    refresh();
}

void Archive::check_schema() {
    Statement table(database_, "SELECT 1 FROM sqlite_schema WHERE name = 'sqlar' AND type = 'table'");
    if (!table.step()) throw Failure{EIO, true, "it is a database, but no volume"};
    Statement columns(database_,
                      "SELECT count(*) FROM pragma_table_xinfo('sqlar') WHERE hidden = 0 AND "
                      "lower(name) IN ('name', 'mode', 'mtime', 'sz', 'data')");
    if (!columns.step() || columns.number(0) != 5) throw Failure{EIO, true, "its table has other columns"};
    Statement encoding(database_, "PRAGMA encoding");
    if (!encoding.step() || encoding.text(0) != "UTF-8") throw Failure{EIO, true, "its names aren't in UTF-8"};
    // SQLite takes what is missing from the last page for zero bytes.
    Statement pages(database_, "SELECT page_count * page_size FROM pragma_page_count, pragma_page_size");
    if (!pages.step() || pages.number(0) > static_cast<std::int64_t>(file_.size()))
        throw Failure{EIO, true, "its end is missing"};
    if (file_.size() > kLargestChecked) return;
    Statement check(database_, "PRAGMA quick_check(1)");
    if (check.step() && check.text(0) != "ok") throw Failure{EIO, true, "it is damaged"};
}

// Runs what reads or changes the tree, on the tree as it is in the file.
template <class Body>
int Archive::attempt(Body body) {
    try {
        refresh();
        body();
        return 0;
    } catch (const Failure& failure) {
        return failure.error;
    } catch (const std::bad_alloc&) {
        return ENOMEM;
    }
}

template <class Body>
int Archive::change(Body body) {
    return attempt([&] {
        if (!writable()) throw Failure{EROFS};
        body();
    });
}

// Another program may have changed the file, and a failed change may have left its traces in the tree.
void Archive::refresh() {
    version_.reset();
    version_.step();
    const std::int64_t version = version_.number(0);
    version_.reset();
    if (!is_tree_old_ && version == tree_version_) return;
    is_tree_old_ = true;
    Tree tree = read_tree();
    follow(tree);
    tree_ = std::move(tree);
    tree_version_ = version;
    is_tree_old_ = false;
}

Tree Archive::read_tree() {
    Tree tree;
    Statement rows(database_,
                   "SELECT rowid, name, mode, mtime, sz, "
                   "CASE typeof(data) WHEN 'text' THEN length(CAST(data AS BLOB)) ELSE length(data) END FROM sqlar");
    while (rows.step()) {
        const std::int64_t mode = rows.number(2);
        const Kind kind = kind_of(mode);
        Node* const node = rows.is_null(1) ? nullptr : tree.place(rows.text(1), kind);
        if (node == nullptr) continue;
        node->row = rows.number(0);
        node->kind = kind;
        node->mode = static_cast<std::uint32_t>(mode) & kPermissions;
        node->modified = rows.number(3);
        const std::int64_t size = kind == Kind::kFile && rows.number(4) > 0 ? rows.number(4) : rows.number(5);
        node->size = kind == Kind::kFolder ? 0 : static_cast<std::uint64_t>(size);
    }
    return tree;
}

// Open files stay with their paths.
void Archive::follow(Tree& tree) {
    std::erase_if(open_files_, [](const auto& content) { return content.expired(); });
    for (const auto& weak : open_files_) {
        const std::shared_ptr<Content> content = weak.lock();
        if (!content || content->node == nullptr) continue;
        Node* const node = tree.find(path_of(*content->node));
        content->node = node != nullptr && node->kind == Kind::kFile ? node : nullptr;
        if (content->node == nullptr) continue;
        content->node->content = content;
        if (!content->is_changed) content->is_loaded = false;
    }
}

Node& Archive::need(std::string_view path) {
    Node* const node = tree_.find(path);
    if (node == nullptr) throw Failure{ENOENT};
    return *node;
}

Node& Archive::need_folder(std::string_view path) {
    Node& node = need(path);
    if (node.kind != Kind::kFolder) throw Failure{ENOTDIR};
    return node;
}

// The folder for a new entry.
Node& Archive::need_place(std::string_view path) {
    const SplitPath parts = split(path);
    Node& folder = need_folder(parts.folder);
    if (folder.children.contains(parts.name)) throw Failure{EEXIST};
    need_owner_write(folder);
    return folder;
}

Entry Archive::entry_of(const Node& node) const {
    Entry entry{node.name, node.kind, node.size, node.mode, node.modified};
    if (node.parent == nullptr && !node.row) entry.modified = file_.modified();
    const std::shared_ptr<Content> content = node.content.lock();
    if (content && content->is_loaded) entry.size = content->bytes.size();
    return entry;
}

int Archive::stat(std::string_view path, Entry& entry) {
    return attempt([&] { entry = entry_of(need(path)); });
}

int Archive::list(std::string_view folder, std::vector<Entry>& entries) {
    return attempt([&] {
        const Node& node = need_folder(folder);
        entries.clear();
        entries.reserve(node.children.size());
        for (const auto& [name, child] : node.children) entries.push_back(entry_of(*child));
    });
}

int Archive::read_link(std::string_view path, std::string& target) {
    return attempt([&] {
        const Node& node = need(path);
        if (node.kind != Kind::kLink) throw Failure{EINVAL};
        Statement row(database_, "SELECT data FROM sqlar WHERE rowid = ?", *node.row);
        if (!row.step()) throw Failure{ENOENT};
        target = row.bytes(0);
    });
}

std::unique_ptr<File> Archive::open(std::string_view path, Access access, int& error) {
    std::unique_ptr<File> file;
    error = attempt([&] {
        Node& node = need(path);
        if (node.kind == Kind::kFolder) throw Failure{EISDIR};
        if (node.kind == Kind::kLink) throw Failure{ELOOP};
        if (access == Access::kWrite && !writable()) throw Failure{EROFS};
        if (access == Access::kWrite) need_owner_write(node);
        std::shared_ptr<Content> content = node.content.lock();
        if (!content) {
            content = std::make_shared<Content>(Content{.node = &node});
            open_files_.emplace_back(content);
            node.content = content;
        }
        file = std::make_unique<ArchiveFile>(shared_from_this(), std::move(content), access);
    });
    return file;
}

int Archive::load(Content& content) {
    if (content.is_changed || (content.is_loaded && content.node == nullptr)) return 0;
    return attempt([&] { read_bytes(content); });
}

void Archive::read_bytes(Content& content) {
    if (content.is_loaded) return;
    if (content.node == nullptr) throw Failure{ENOENT};
    const Node& node = *content.node;
    if (node.size > longest_file_) throw Failure{EFBIG};
    Statement row(database_, "SELECT data FROM sqlar WHERE rowid = ?", *node.row);
    if (!row.step()) throw Failure{ENOENT};
    const std::string_view data = row.bytes(0);
    content.bytes = data.size() == node.size ? std::string(data) : uncompressed(data, node.size);
    content.is_loaded = true;
}

// Of a file that is to go: those who have it open read on.
std::shared_ptr<Content> Archive::open_content(const Node& node) {
    std::shared_ptr<Content> content = node.content.lock();
    if (!content) return nullptr;
    try {
        read_bytes(*content);
    } catch (const Failure&) {
        // What can't be read can be removed all the same.
    }
    return content;
}

int Archive::store(Content& content) {
    if (!content.is_changed) return 0;
    return change([&] {
        if (content.node == nullptr) {
            content.is_changed = false;
            return;
        }
        Node& node = *content.node;
        const std::string packed = compressed(content.bytes);
        const auto size = static_cast<std::int64_t>(content.bytes.size());
        const std::int64_t now = std::time(nullptr);
        run(database_, "UPDATE sqlar SET data = ?, sz = ?, mtime = ? WHERE rowid = ?",
            Blob{packed.empty() ? content.bytes : packed}, size, now, *node.row);
        if (database_.changed_rows() != 1) throw Failure{ENOENT};
        node.size = content.bytes.size();
        node.modified = now;
        content.is_changed = false;
    });
}

void Archive::insert(Node& node, std::string_view data) {
    const std::string name = row_name(node);
    constexpr std::string_view kInsert = "INSERT INTO sqlar(name, mode, mtime, sz, data) VALUES(?, ?, ?, ?, ?)";
    const std::int64_t mode = full_mode(node.kind, node.mode);
    const std::string_view text = name;
    switch (node.kind) {
        case Kind::kFolder:
            run(database_, kInsert, text, mode, node.modified, std::int64_t{0});
            break;
        case Kind::kFile:
            run(database_, kInsert, text, mode, node.modified, std::int64_t{0}, Blob{data});
            break;
        case Kind::kLink:
            run(database_, kInsert, text, mode, node.modified, kSizeOfLink, data);
            break;
    }
    node.row = database_.last_row();
}

// A folder that stands only in the names of others gets a row before something depends on it.
void Archive::keep(Node& node) {
    if (!node.row) insert(node, {});
}

void Archive::touch(Node& folder) {
    if (folder.parent == nullptr && !folder.row) return;
    keep(folder);
    folder.modified = std::time(nullptr);
    run(database_, "UPDATE sqlar SET mtime = ? WHERE rowid = ?", folder.modified, *folder.row);
}

void Archive::create(std::string_view path, Kind kind, std::uint32_t mode, std::string_view data) {
    Node& folder = need_place(path);
    Transaction transaction(database_, is_tree_old_);
    touch(folder);
    Node& node = Tree::add(folder, split(path).name);
    node.kind = kind;
    node.mode = mode & kPermissions;
    node.modified = std::time(nullptr);
    node.size = data.size();
    insert(node, data);
    transaction.commit();
}

int Archive::create_file(std::string_view path, std::uint32_t mode) {
    return change([&] { create(path, Kind::kFile, mode, {}); });
}

int Archive::create_folder(std::string_view path, std::uint32_t mode) {
    return change([&] { create(path, Kind::kFolder, mode, {}); });
}

int Archive::create_link(std::string_view path, std::string_view target) {
    return change([&] {
        if (target.empty() || target.size() > kLongestPath || target.find('\0') != std::string_view::npos)
            throw Failure{EINVAL};
        create(path, Kind::kLink, kLinkMode, target);
    });
}

int Archive::remove(std::string_view path) {
    return change([&] {
        Node& node = need(path);
        if (node.parent == nullptr) throw Failure{EBUSY};
        if (!node.children.empty()) throw Failure{ENOTEMPTY};
        need_owner_write(*node.parent);
        const std::shared_ptr<Content> content = open_content(node);
        Transaction transaction(database_, is_tree_old_);
        if (node.row) run(database_, "DELETE FROM sqlar WHERE rowid = ?", *node.row);
        touch(*node.parent);
        transaction.commit();
        if (content) content->node = nullptr;
        Tree::remove(node);
    });
}

void Archive::rename_rows(const Node& node, const std::string& new_path) {
    if (new_path.size() > kLongestPath) throw Failure{ENAMETOOLONG};
    if (node.row) run(database_, "UPDATE sqlar SET name = ? WHERE rowid = ?", std::string_view(new_path), *node.row);
    for (const auto& [name, child] : node.children) rename_rows(*child, new_path + '/' + name);
}

int Archive::move(std::string_view from, std::string_view to) {
    return change([&] {
        Node& node = need(from);
        if (node.parent == nullptr) throw Failure{EBUSY};
        if (from == to) return;
        Node& folder = need_place(to);
        if (is_within(folder, node)) throw Failure{EINVAL};
        need_owner_write(*node.parent);
        Transaction transaction(database_, is_tree_old_);
        rename_rows(node, std::string(to));
        touch(*node.parent);
        touch(folder);
        transaction.commit();
        Tree::move(node, folder, split(to).name);
    });
}

int Archive::set_mode(std::string_view path, std::uint32_t mode) {
    return change([&] {
        Node& node = need(path);
        Transaction transaction(database_, is_tree_old_);
        keep(node);
        run(database_, "UPDATE sqlar SET mode = ? WHERE rowid = ?", full_mode(node.kind, mode), *node.row);
        transaction.commit();
        node.mode = mode & kPermissions;
    });
}

int Archive::set_modified(std::string_view path, std::int64_t seconds) {
    return change([&] {
        Node& node = need(path);
        Transaction transaction(database_, is_tree_old_);
        keep(node);
        run(database_, "UPDATE sqlar SET mtime = ? WHERE rowid = ?", seconds, *node.row);
        transaction.commit();
        node.modified = seconds;
    });
}

std::vector<std::pair<std::shared_ptr<Content>, std::string>> Archive::paths_of_open_files() const {
    std::vector<std::pair<std::shared_ptr<Content>, std::string>> paths;
    for (const auto& weak : open_files_) {
        const std::shared_ptr<Content> content = weak.lock();
        if (content && content->node != nullptr) paths.emplace_back(content, path_of(*content->node));
    }
    return paths;
}

int Archive::change_at_once(const std::function<int()>& steps) {
    std::vector<std::pair<std::shared_ptr<Content>, std::string>> open_before;
    bool undone = false;
    const int error = change([&] {
        open_before = paths_of_open_files();
        Transaction transaction(database_, undone);
        if (const int failed = steps()) throw Failure{failed};
        transaction.commit();
    });
    if (!undone) return error;
    // What was open and had gone is back.
    is_tree_old_ = true;
    attempt([&] {
        for (const auto& [content, path] : open_before) {
            content->node = tree_.find(path);
            if (content->node != nullptr) content->node->content = content;
        }
    });
    return error;
}

}  // namespace tavrik::volume
