#include <tavrik/fields.h>

#include <cstring>

namespace tavrik {
namespace {

template <class T>
T read(const void* object, std::int32_t offset) {
    T value;
    std::memcpy(&value, static_cast<const std::byte*>(object) + offset, sizeof value);
    return value;
}

template <class T>
void write(void* object, std::int32_t offset, T value) {
    std::memcpy(static_cast<std::byte*>(object) + offset, &value, sizeof value);
}

}  // namespace

std::int32_t intGetter(const void* object, std::int32_t offset) { return read<std::int32_t>(object, offset); }
void intSetter(void* object, std::int32_t offset, std::int32_t value) { write(object, offset, value); }

std::int32_t shortGetter(const void* object, std::int32_t offset) { return read<std::int16_t>(object, offset); }
void shortSetter(void* object, std::int32_t offset, std::int32_t value) {
    write(object, offset, static_cast<std::int16_t>(value));
}

bool boolGetter(const void* object, std::int32_t offset) { return (read<unsigned char>(object, offset) & 1U) != 0; }
void boolSetter(void* object, std::int32_t offset, bool value) { write(object, offset, value); }

double doubleGetter(const void* object, std::int32_t offset) { return read<double>(object, offset); }
void doubleSetter(void* object, std::int32_t offset, double value) { write(object, offset, value); }

Ref<Object> objGetter(const void* object, std::int32_t offset) { return {read<Object*>(object, offset)}; }

void objSetter(void* object, std::int32_t offset, Object* value) {
    auto* const old = read<Object*>(object, offset);
    lock(value);
    write(object, offset, value);
    unlock(old);
}

String stringGetter(const void* object, std::int32_t offset) { return String(read<StringRecord*>(object, offset)); }

void stringSetter(void* object, std::int32_t offset, const String& value) {
    auto* const old = read<StringRecord*>(object, offset);
    lock(value.record());
    write(object, offset, value.record());
    unlock(old);
}

}  // namespace tavrik
