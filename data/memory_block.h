#pragma once

#include "data/text_encoding.h"
#include "runtime/class.h"

#include <tavrik/memory_block.h>

namespace tavrik {

// A run of bytes, read and written as typed values at byte offsets. Every access is checked against Size, except for a
// block made from a pointer: it doesn't own its bytes, its Size is 0 for "unknown", and nothing is checked until Size
// is set.
struct MemoryBlock : Class<MemoryBlock, MemoryBlockObject> {
    static const ClassDefinition& definition();

    // What tells the conversions of one name apart.
    using FromString = void (MemoryBlock::*)(const String&);
    using FromPointer = void (MemoryBlock::*)(void*);

    std::int32_t Long(std::int32_t offset) { return dispatch<&MemoryBlock::Long>(this, offset); }
    // A block over the bytes at the address that stands there.
    Ref<MemoryBlock> Ptr(std::int32_t offset) { return dispatch<&MemoryBlock::Ptr>(this, offset); }
    std::int32_t Short(std::int32_t offset) { return dispatch<&MemoryBlock::Short>(this, offset); }
    std::int32_t UShort(std::int32_t offset) { return dispatch<&MemoryBlock::UShort>(this, offset); }
    std::int32_t Byte(std::int32_t offset) { return dispatch<&MemoryBlock::Byte>(this, offset); }
    String PString(std::int32_t offset) { return dispatch<&MemoryBlock::PString>(this, offset); }
    String CString(std::int32_t offset) { return dispatch<&MemoryBlock::CString>(this, offset); }
    String WString(std::int32_t offset) { return dispatch<&MemoryBlock::WString>(this, offset); }
    double SingleValue(std::int32_t offset) { return dispatch<&MemoryBlock::SingleValue>(this, offset); }
    double DoubleValue(std::int32_t offset) { return dispatch<&MemoryBlock::DoubleValue>(this, offset); }
    void set_StringValue(std::int32_t offset, std::int32_t length, const String& text) {
        dispatch<&MemoryBlock::set_StringValue>(this, offset, length, text);
    }
    String StringValue(std::int32_t offset, std::int32_t length, Arg<TextEncoding> encoding) {
        return dispatch<&MemoryBlock::StringValue>(this, offset, length, encoding);
    }
    bool BooleanValue(std::int32_t offset) { return dispatch<&MemoryBlock::BooleanValue>(this, offset); }
    // A pixel of 16, 24 or 32 bits.
    Color ColorValue(std::int32_t offset, std::int32_t bits) {
        return dispatch<&MemoryBlock::ColorValue>(this, offset, bits);
    }
    void Constructor(std::int32_t size) { dispatch<&MemoryBlock::Constructor>(this, size); }
    // Overloaded by its result: Operator_Convert<String>() gives the bytes, Operator_Convert<void*>() their address.
    template <class To>
    To Operator_Convert() {
        return dispatch<&MemoryBlock::Operator_Convert<To>>(this);
    }
    void Operator_Convert(const String& text) { dispatch<FromString(&MemoryBlock::Operator_Convert)>(this, text); }
    Ref<MemoryBlock> Operator_Add(Arg<MemoryBlock> other) { return dispatch<&MemoryBlock::Operator_Add>(this, other); }
    std::int32_t Operator_Compare(Arg<MemoryBlock> other) {
        return dispatch<&MemoryBlock::Operator_Compare>(this, other);
    }
    void Operator_Convert(void* address) { dispatch<FromPointer(&MemoryBlock::Operator_Convert)>(this, address); }
    Ref<MemoryBlock> LeftB(std::int32_t length) { return dispatch<&MemoryBlock::LeftB>(this, length); }
    Ref<MemoryBlock> MidB(std::int32_t offset) {
        return dispatch<pick<Ref<MemoryBlock>(std::int32_t)>(&MemoryBlock::MidB)>(this, offset);
    }
    Ref<MemoryBlock> MidB(std::int32_t offset, std::int32_t length) {
        return dispatch<pick<Ref<MemoryBlock>(std::int32_t, std::int32_t)>(&MemoryBlock::MidB)>(this, offset, length);
    }
    Ref<MemoryBlock> RightB(std::int32_t length) { return dispatch<&MemoryBlock::RightB>(this, length); }
    void set_ColorValue(std::int32_t offset, std::int32_t bits, Color color) {
        dispatch<&MemoryBlock::set_ColorValue>(this, offset, bits, color);
    }
    void set_BooleanValue(std::int32_t offset, bool value) {
        dispatch<&MemoryBlock::set_BooleanValue>(this, offset, value);
    }
    void set_DoubleValue(std::int32_t offset, double value) {
        dispatch<&MemoryBlock::set_DoubleValue>(this, offset, value);
    }
    void set_SingleValue(std::int32_t offset, double value) {
        dispatch<&MemoryBlock::set_SingleValue>(this, offset, value);
    }
    void set_WString(std::int32_t offset, const String& text) {
        dispatch<&MemoryBlock::set_WString>(this, offset, text);
    }
    void set_CString(std::int32_t offset, const String& text) {
        dispatch<&MemoryBlock::set_CString>(this, offset, text);
    }
    void set_PString(std::int32_t offset, const String& text) {
        dispatch<&MemoryBlock::set_PString>(this, offset, text);
    }
    void set_Byte(std::int32_t offset, std::int32_t value) { dispatch<&MemoryBlock::set_Byte>(this, offset, value); }
    void set_UShort(std::int32_t offset, std::int32_t value) {
        dispatch<&MemoryBlock::set_UShort>(this, offset, value);
    }
    void set_Short(std::int32_t offset, std::int32_t value) { dispatch<&MemoryBlock::set_Short>(this, offset, value); }
    void set_Ptr(std::int32_t offset, Arg<MemoryBlock> target) {
        dispatch<&MemoryBlock::set_Ptr>(this, offset, target);
    }
    void set_Long(std::int32_t offset, std::int32_t value) { dispatch<&MemoryBlock::set_Long>(this, offset, value); }
    void set_Int32Value(std::int32_t offset, std::int32_t value) {
        dispatch<&MemoryBlock::set_Int32Value>(this, offset, value);
    }
    std::int32_t Int32Value(std::int32_t offset) { return dispatch<&MemoryBlock::Int32Value>(this, offset); }
    void set_Int8Value(std::int32_t offset, std::int8_t value) {
        dispatch<&MemoryBlock::set_Int8Value>(this, offset, value);
    }
    void set_Int16Value(std::int32_t offset, std::int16_t value) {
        dispatch<&MemoryBlock::set_Int16Value>(this, offset, value);
    }
    void set_Int64Value(std::int32_t offset, std::int64_t value) {
        dispatch<&MemoryBlock::set_Int64Value>(this, offset, value);
    }
    std::int8_t Int8Value(std::int32_t offset) { return dispatch<&MemoryBlock::Int8Value>(this, offset); }
    std::int16_t Int16Value(std::int32_t offset) { return dispatch<&MemoryBlock::Int16Value>(this, offset); }
    std::int64_t Int64Value(std::int32_t offset) { return dispatch<&MemoryBlock::Int64Value>(this, offset); }
    void set_UInt8Value(std::int32_t offset, std::uint8_t value) {
        dispatch<&MemoryBlock::set_UInt8Value>(this, offset, value);
    }
    void set_UInt16Value(std::int32_t offset, std::uint16_t value) {
        dispatch<&MemoryBlock::set_UInt16Value>(this, offset, value);
    }
    void set_UInt32Value(std::int32_t offset, std::uint32_t value) {
        dispatch<&MemoryBlock::set_UInt32Value>(this, offset, value);
    }
    void set_UInt64Value(std::int32_t offset, std::uint64_t value) {
        dispatch<&MemoryBlock::set_UInt64Value>(this, offset, value);
    }
    std::uint8_t UInt8Value(std::int32_t offset) { return dispatch<&MemoryBlock::UInt8Value>(this, offset); }
    std::uint16_t UInt16Value(std::int32_t offset) { return dispatch<&MemoryBlock::UInt16Value>(this, offset); }
    std::uint32_t UInt32Value(std::int32_t offset) { return dispatch<&MemoryBlock::UInt32Value>(this, offset); }
    std::uint64_t UInt64Value(std::int32_t offset) { return dispatch<&MemoryBlock::UInt64Value>(this, offset); }
    Currency CurrencyValue(std::int32_t offset) { return dispatch<&MemoryBlock::CurrencyValue>(this, offset); }
    void set_CurrencyValue(std::int32_t offset, Currency value) {
        dispatch<&MemoryBlock::set_CurrencyValue>(this, offset, value);
    }
    void __DependencyList() { dispatch<&MemoryBlock::__DependencyList>(this); }
    void MemoryBlock_(std::int32_t size) { dispatch<&MemoryBlock::MemoryBlock_>(this, size); }

    // The byte order of all values that are read and written from now on. A new block has the machine's.
    bool LittleEndian() { return mLittleEndian; }
    void set_LittleEndian(bool little) { mLittleEndian = little; }
    std::int32_t Size() { return memoryBlockGetSize(this, 0); }
    void set_Size(std::int32_t size) { memoryBlockSetSize(this, 0, size); }
};

}  // namespace tavrik
