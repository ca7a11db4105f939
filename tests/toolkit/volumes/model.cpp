#include "tests/toolkit/volumes/model.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <vector>

extern "C" void tavrik_open_volume(const std::string& path, tavrik::volume::Mode mode, tavrik::volume::Opened& opened);

namespace tavrik::test {

using volume::Access;
using volume::Kind;
using volume::Volume;

namespace {

std::string folder_of(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "" : path.substr(0, slash);
}

bool is_below(const std::string& path, const std::string& folder) { return path.starts_with(folder + '/'); }

void read_folder(Volume& volume, const std::string& folder, Model& model) {
    std::vector<volume::Entry> entries;
    if (volume.list(folder, entries) != 0) model["unreadable " + folder];
    for (const volume::Entry& entry : entries) {
        const std::string path = folder.empty() ? entry.name : folder + '/' + entry.name;
        ModelEntry& found = model[path] = {.kind = entry.kind, .mode = entry.mode};
        int error = 0;
        if (entry.kind == Kind::kFolder) read_folder(volume, path, model);
        if (entry.kind == Kind::kLink) error = volume.read_link(path, found.bytes);
        if (entry.kind == Kind::kFile) {
            const auto file = volume.open(path, Access::kRead, error);
            found.bytes.resize(entry.size + 1);  // one more than there should be
            if (file) found.bytes.resize(file->read(0, found.bytes, error));
        }
        if (error != 0) found.bytes = "error " + std::to_string(error);
    }
}

}  // namespace

volume::Opened open_volume(const std::string& path, volume::Mode mode) {
    volume::Opened opened;
    tavrik_open_volume(path, mode, opened);
    return opened;
}

Model everything_in(Volume& volume) {
    Model model;
    read_folder(volume, "", model);
    return model;
}

std::string RandomChanges::some_path() {
    constexpr std::array kNames{"a", "b", "a-b", "a b", "\xff\xfe", "100%", "it's", "\xc3\xbc", ".c", "_"};
    std::string path;
    if (!model_.empty() && below(4) != 0) {
        path = std::next(model_.begin(), static_cast<std::ptrdiff_t>(below(model_.size())))->first;
        if (below(2) == 0) return path;
        path += '/';
    }
    return path + kNames[below(kNames.size())];
}

std::string RandomChanges::some_bytes() {
    std::string bytes(below(6000), 'x');
    if (below(2) == 0) std::ranges::generate(bytes, [&] { return static_cast<char>(random_()); });
    return bytes;
}

int RandomChanges::look_up(const std::string& path) const {
    const std::string folder = folder_of(path);
    if (!folder.empty()) {
        if (const int error = look_up(folder)) return error;
        if (model_.at(folder).kind != Kind::kFolder) return ENOTDIR;
    }
    return model_.contains(path) ? 0 : ENOENT;
}

bool RandomChanges::is_writable_folder(const std::string& path) const {
    return path.empty() || (model_.at(path).mode & 0200) != 0;
}

int RandomChanges::look_for_place(const std::string& path) const {
    const int error = look_up(path);
    if (error == 0) return EEXIST;
    if (const std::string folder = folder_of(path); error == ENOENT) {
        if (!folder.empty() && !model_.contains(folder)) return ENOENT;
        return is_writable_folder(folder) ? 0 : EACCES;
    }
    return error;
}

RandomChanges::Outcome RandomChanges::create(Volume* volume) {
    const std::string path = some_path();
    Outcome outcome{look_for_place(path)};
    ModelEntry entry;
    const std::size_t choice = below(8);
    if (choice == 0) {
        entry = {.kind = Kind::kLink, .mode = 0777, .bytes = "../a b"};
        if (volume != nullptr) outcome.error = volume->create_link(path, entry.bytes);
    } else if (choice < 4) {
        entry = {.kind = Kind::kFolder, .mode = 0755};
        if (volume != nullptr) outcome.error = volume->create_folder(path, entry.mode);
    } else {
        entry = {.kind = Kind::kFile, .mode = 0644};
        if (volume != nullptr) outcome.error = volume->create_file(path, entry.mode);
    }
    if (outcome.expected == 0) model_[path] = entry;
    return outcome;
}

RandomChanges::Outcome RandomChanges::remove(Volume* volume) {
    const std::string path = some_path();
    Outcome outcome{look_up(path)};
    const auto has_entries = [&] {
        return std::ranges::any_of(model_, [&](const auto& entry) { return is_below(entry.first, path); });
    };
    if (outcome.expected == 0 && has_entries()) outcome.expected = ENOTEMPTY;
    if (outcome.expected == 0 && !is_writable_folder(folder_of(path))) outcome.expected = EACCES;
    if (volume != nullptr) outcome.error = volume->remove(path);
    if (outcome.expected == 0) model_.erase(path);
    return outcome;
}

RandomChanges::Outcome RandomChanges::move(Volume* volume) {
    const std::string from = some_path();
    const std::string to = some_path();
    Outcome outcome{look_up(from)};
    if (volume != nullptr) outcome.error = volume->move(from, to);
    if (outcome.expected != 0 || from == to) return outcome;
    outcome.expected = look_for_place(to);
    if (outcome.expected == 0 && is_below(to, from)) outcome.expected = EINVAL;
    if (outcome.expected == 0 && !is_writable_folder(folder_of(from))) outcome.expected = EACCES;
    if (outcome.expected != 0) return outcome;
    Model moved;
    for (const auto& [path, entry] : model_)
        moved[path == from || is_below(path, from) ? to + path.substr(from.size()) : path] = entry;
    model_ = std::move(moved);
    return outcome;
}

RandomChanges::Outcome RandomChanges::set_mode(Volume* volume) {
    constexpr std::array<std::uint32_t, 5> kModes{0755, 0644, 0700, 04711, 0555};
    const std::string path = some_path();
    const std::uint32_t mode = kModes[below(kModes.size())];
    Outcome outcome{look_up(path)};
    if (volume != nullptr) outcome.error = volume->set_mode(path, mode);
    if (outcome.expected == 0) model_[path].mode = mode;
    return outcome;
}

RandomChanges::Outcome RandomChanges::write(Volume* volume) {
    const std::string path = some_path();
    const std::size_t position = below(9000);
    const std::string bytes = some_bytes();
    const bool cuts = below(4) == 0;
    Outcome outcome{look_up(path)};
    if (outcome.expected == 0) {
        const ModelEntry& entry = model_[path];
        if (entry.kind != Kind::kFile)
            outcome.expected = entry.kind == Kind::kFolder ? EISDIR : ELOOP;
        else if ((entry.mode & 0200) == 0)
            outcome.expected = EACCES;
    }
    if (volume != nullptr) {
        const auto file = volume->open(path, Access::kWrite, outcome.error);
        if (file) outcome.error = cuts ? file->set_length(position) : file->write(position, bytes);
        if (file && outcome.error == 0) outcome.error = file->flush();
    }
    if (outcome.expected != 0) return outcome;
    std::string& content = model_[path].bytes;
    if (cuts) content.resize(position);
    if (cuts || bytes.empty()) return outcome;
    content.resize(std::max(content.size(), position + bytes.size()));
    content.replace(position, bytes.size(), bytes);
    return outcome;
}

RandomChanges::Outcome RandomChanges::step(Volume* volume) {
    switch (below(10)) {
        case 0:
            return remove(volume);
        case 1:
        case 2:
            return move(volume);
        case 3:
            return set_mode(volume);
        case 4:
        case 5:
        case 6:
            return write(volume);
        default:
            return create(volume);
    }
}

}  // namespace tavrik::test
