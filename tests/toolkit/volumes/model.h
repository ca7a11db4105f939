#pragma once

#include "toolkit/volume/volume.h"

#include <cstdint>
#include <map>
#include <memory>
#include <random>
#include <string>

namespace tavrik::test {

struct ModelEntry {
    volume::Kind kind = volume::Kind::kFolder;
    std::uint32_t mode = 0755;
    std::string bytes = {};  // of a file, or the target of a link

    bool operator==(const ModelEntry&) const = default;
};

// What a volume should be: everything in it but the root, by path.
using Model = std::map<std::string, ModelEntry>;

volume::Opened open_volume(const std::string& path, volume::Mode mode);
// All that is in a volume, read through the seam.
Model everything_in(volume::Volume& volume);

// Changes a volume and its model alike. Each step is at most one transaction.
class RandomChanges {
public:
    RandomChanges(Model model, unsigned seed) : model_(std::move(model)), random_(seed) {}

    struct Outcome {
        int expected = 0;
        int error = 0;
    };
    // Without a volume only the model is changed.
    Outcome step(volume::Volume* volume);
    const Model& model() const { return model_; }

private:
    std::size_t below(std::size_t end) { return random_() % end; }
    std::string some_path();
    std::string some_bytes();
    int look_up(const std::string& path) const;
    int look_for_place(const std::string& path) const;
    bool is_writable_folder(const std::string& path) const;

    Outcome create(volume::Volume* volume);
    Outcome remove(volume::Volume* volume);
    Outcome move(volume::Volume* volume);
    Outcome set_mode(volume::Volume* volume);
    Outcome write(volume::Volume* volume);

    Model model_;
    std::mt19937 random_;
};

}  // namespace tavrik::test
