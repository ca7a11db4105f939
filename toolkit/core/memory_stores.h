#pragma once

#include "toolkit/core/byte_store.h"

#include <tavrik/object.h>
#include <tavrik/string.h>

#include <optional>

namespace tavrik::core {

// The bytes of a string. Strings don't change: the first write makes a copy, which belongs to the stream alone.
class StringStore final : public ByteStore {
public:
    explicit StringStore(const String& text) : ByteStore("the text", true), text_(text) {}

    bool is_memory() const override { return true; }
    std::size_t read(std::uint64_t position, std::span<char> bytes, int& error) override;
    int write(std::uint64_t position, std::string_view bytes) override;
    std::uint64_t length(int& error) override;
    int set_length(std::uint64_t length) override;

private:
    std::string_view bytes() const { return copy_ ? std::string_view(*copy_) : text_.view(); }
    std::string& copy();

    String text_;
    std::optional<std::string> copy_;
};

// The bytes of a memory block, which is held. A write behind its end lets it grow.
class MemoryBlockStore final : public ByteStore {
public:
    // Raises NilObjectException.
    explicit MemoryBlockStore(Object* block);

    bool is_memory() const override { return true; }
    std::size_t read(std::uint64_t position, std::span<char> bytes, int& error) override;
    int write(std::uint64_t position, std::string_view bytes) override;
    std::uint64_t length(int& error) override;
    int set_length(std::uint64_t length) override;

private:
    Ref<Object> block_;
};

}  // namespace tavrik::core
