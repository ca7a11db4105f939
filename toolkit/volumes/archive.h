#pragma once

#include "toolkit/volume/volume.h"
#include "toolkit/volumes/database.h"
#include "toolkit/volumes/tree.h"
#include "toolkit/volumes/volume_file.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavrik::volume {

// The bytes of a file that is open, shared by all who have it open.
struct Content {
    Node* node;  // nullptr once the file is removed
    std::string bytes = {};
    bool is_loaded = false;
    bool is_changed = false;
};

// A volume as an SQLite archive: the table sqlar, with a row for each folder, file and link.
class Archive final : public Volume, public std::enable_shared_from_this<Archive> {
public:
    // Throws Failure.
    Archive(const std::string& path, Mode mode);

    const std::string& path() const override { return file_.path(); }
    std::pair<dev_t, ino_t> identity() const override { return identity_; }
    bool writable() const override { return file_.writable(); }

    int stat(std::string_view path, Entry& entry) override;
    int list(std::string_view folder, std::vector<Entry>& entries) override;
    int read_link(std::string_view path, std::string& target) override;
    std::unique_ptr<File> open(std::string_view path, Access access, int& error) override;

    int create_file(std::string_view path, std::uint32_t mode) override;
    int create_folder(std::string_view path, std::uint32_t mode) override;
    int create_link(std::string_view path, std::string_view target) override;
    int move(std::string_view from, std::string_view to) override;
    int remove(std::string_view path) override;
    int set_mode(std::string_view path, std::uint32_t mode) override;
    int set_modified(std::string_view path, std::int64_t seconds) override;
    int change_at_once(const std::function<int()>& steps) override;

    // Of open files: loads the bytes if need be, and stores them if they have changed.
    int load(Content& content);
    int store(Content& content);
    std::uint64_t longest_file() const { return longest_file_; }

private:
    template <class Body>
    int attempt(Body body);
    template <class Body>
    int change(Body body);

    void check_schema();
    void refresh();
    Tree read_tree();
    void follow(Tree& tree);
    void read_bytes(Content& content);
    std::shared_ptr<Content> open_content(const Node& node);
    std::vector<std::pair<std::shared_ptr<Content>, std::string>> paths_of_open_files() const;

    Node& need(std::string_view path);
    Node& need_folder(std::string_view path);
    Node& need_place(std::string_view path);
    Entry entry_of(const Node& node) const;
    void create(std::string_view path, Kind kind, std::uint32_t mode, std::string_view data);
    void insert(Node& node, std::string_view data);
    void keep(Node& node);
    void touch(Node& folder);
    void rename_rows(const Node& node, const std::string& new_path);

    VolumeFile file_;
    Database database_;
    std::pair<dev_t, ino_t> identity_;
    std::uint64_t longest_file_;
    Statement version_;
    std::int64_t tree_version_ = 0;
    bool is_tree_old_ = true;
    Tree tree_;
    std::vector<std::weak_ptr<Content>> open_files_;
};

}  // namespace tavrik::volume
