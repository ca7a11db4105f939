#pragma once

#include "toolkit/volume/volume.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tavrik::volume {

struct Content;

struct Node {
    std::string name;
    Node* parent = nullptr;
    Kind kind = Kind::kFolder;
    std::uint32_t mode = 0755;
    std::int64_t modified = 0;
    std::uint64_t size = 0;
    std::optional<std::int64_t> row;  // none for a folder that only the names of other rows tell of
    std::map<std::string, std::unique_ptr<Node>, std::less<>> children;
    std::weak_ptr<Content> content;  // where the file is open
};

// Longer paths can't be reached.
inline constexpr std::size_t kLongestPath = 4095;
inline constexpr std::size_t kLongestName = 255;

// The last name of a path, and the path of its folder. Throws Failure if it is no path, or the root.
struct SplitPath {
    std::string_view folder;
    std::string_view name;
};
SplitPath split(std::string_view path);

std::string path_of(const Node& node);
bool is_within(const Node& node, const Node& folder);

// The folders and files that the names of an archive's rows tell of.
class Tree {
public:
    Tree() = default;
    ~Tree();
    Tree(Tree&& other) noexcept = default;
    Tree& operator=(Tree&& other) noexcept;

    Node& root() { return *root_; }
    // nullptr if there is none. Throws Failure if it is no path.
    Node* find(std::string_view path);
    // The node for a row, and the folders above it. Names are foreign, such as "./a//b". nullptr for a name that can't
    // be reached: one with "..", below a file, or taken.
    Node* place(std::string_view name, Kind kind);

    static Node& add(Node& folder, std::string_view name);
    static void move(Node& node, Node& folder, std::string_view name);
    static void remove(Node& node);

private:
    void clear();

    std::unique_ptr<Node> root_ = std::make_unique<Node>();
};

}  // namespace tavrik::volume
