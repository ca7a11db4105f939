#include "toolkit/volumes/tree.h"

#include "toolkit/volumes/failure.h"

#include <algorithm>
#include <cerrno>
#include <utility>
#include <vector>

namespace tavrik::volume {
namespace {

// 0, or what is wrong with a name.
int fault_of(std::string_view name) {
    if (name.empty() || name == "." || name == ".." || name.find('\0') != std::string_view::npos) return EINVAL;
    return name.size() > kLongestName ? ENAMETOOLONG : 0;
}

std::string_view take_name(std::string_view& path) {
    const std::string_view name = path.substr(0, path.find('/'));
    path.remove_prefix(std::min(name.size() + 1, path.size()));
    return name;
}

// The names of a row's path; nothing where it has one that can't be.
std::optional<std::vector<std::string_view>> names_of(std::string_view path) {
    if (path.size() > kLongestPath) return {};
    std::vector<std::string_view> names;
    while (!path.empty()) {
        const std::string_view name = take_name(path);
        if (name.empty() || name == ".") continue;
        if (fault_of(name) != 0) return {};
        names.push_back(name);
    }
    return names;
}

Node* child(const Node& folder, std::string_view name) {
    const auto found = folder.children.find(name);
    return found == folder.children.end() ? nullptr : found->second.get();
}

}  // namespace

SplitPath split(std::string_view path) {
    if (path.empty()) throw Failure{EINVAL};
    if (path.size() > kLongestPath) throw Failure{ENAMETOOLONG};
    const std::size_t slash = path.rfind('/');
    const SplitPath parts = slash == std::string_view::npos
                                ? SplitPath{.folder = {}, .name = path}
                                : SplitPath{.folder = path.substr(0, slash), .name = path.substr(slash + 1)};
    if (slash == 0) throw Failure{EINVAL};
    if (const int fault = fault_of(parts.name)) throw Failure{fault};
    return parts;
}

std::string path_of(const Node& node) {
    std::vector<std::string_view> names;
    for (const Node* at = &node; at->parent != nullptr; at = at->parent) names.push_back(at->name);
    std::string path;
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        if (!path.empty()) path += '/';
        path += *name;
    }
    return path;
}

bool is_within(const Node& node, const Node& folder) {
    const Node* at = &node;
    while (at != nullptr && at != &folder) at = at->parent;
    return at != nullptr;
}

Tree::~Tree() { clear(); }

Tree& Tree::operator=(Tree&& other) noexcept {
    clear();
    root_ = std::move(other.root_);
    return *this;
}

// One level at a time, so that a deep tree takes no deep stack.
void Tree::clear() {
    std::vector<std::unique_ptr<Node>> doomed;
    doomed.push_back(std::move(root_));
    while (!doomed.empty()) {
        const std::unique_ptr<Node> node = std::move(doomed.back());
        doomed.pop_back();
        if (node == nullptr) continue;
        for (auto& [name, child] : node->children) doomed.push_back(std::move(child));
    }
}

Node* Tree::find(std::string_view path) {
    if (path.size() > kLongestPath) throw Failure{ENAMETOOLONG};
    if (path.ends_with('/')) throw Failure{EINVAL};
    Node* at = root_.get();
    while (at != nullptr && !path.empty()) {
        const std::string_view name = take_name(path);
        if (const int fault = fault_of(name)) throw Failure{fault};
        if (at->kind != Kind::kFolder) throw Failure{ENOTDIR};
        at = child(*at, name);
    }
    return at;
}

Node* Tree::place(std::string_view name, Kind kind) {
    const auto names = names_of(name);
    if (!names) return nullptr;
    Node* at = root_.get();
    bool is_new = false;
    for (const std::string_view step : *names) {
        if (at->kind != Kind::kFolder) return nullptr;
        Node* const next = child(*at, step);
        is_new = next == nullptr;
        at = is_new ? &add(*at, step) : next;
    }
    const bool is_free = is_new || (at->kind == Kind::kFolder && kind == Kind::kFolder && !at->row);
    return is_free ? at : nullptr;
}

Node& Tree::add(Node& folder, std::string_view name) {
    auto node = std::make_unique<Node>();
    node->name = name;
    node->parent = &folder;
    return *folder.children.emplace(name, std::move(node)).first->second;
}

void Tree::move(Node& node, Node& folder, std::string_view name) {
    auto entry = node.parent->children.extract(node.name);
    node.name = entry.key() = name;
    node.parent = &folder;
    folder.children.insert(std::move(entry));
}

void Tree::remove(Node& node) { node.parent->children.erase(node.parent->children.find(node.name)); }

}  // namespace tavrik::volume
