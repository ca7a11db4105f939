#pragma once

#include "data/streams.h"
#include "runtime/class.h"

#include <tavrik/binary_stream.h>

namespace tavrik {

struct MemoryBlock;
struct TextEncoding;

// Typed values at a byte position of a file, a text, a memory block or a descriptor. What fails shows in LastErrorCode,
// whose values are those of StreamError.
struct BinaryStream : Class<BinaryStream, BinaryStreamObject> {
    static const ClassDefinition& definition();

    std::int32_t ReadByte() { return dispatch<&BinaryStream::ReadByte>(this); }
    std::int32_t ReadShort() { return dispatch<&BinaryStream::ReadShort>(this); }
    std::int32_t ReadLong() { return dispatch<&BinaryStream::ReadLong>(this); }
    String ReadPString(Arg<TextEncoding> encoding) { return dispatch<&BinaryStream::ReadPString>(this, encoding); }
    double ReadSingle() { return dispatch<&BinaryStream::ReadSingle>(this); }
    double ReadDouble() { return dispatch<&BinaryStream::ReadDouble>(this); }
    bool ReadBoolean() { return dispatch<&BinaryStream::ReadBoolean>(this); }
    String Read(std::int32_t most, Arg<TextEncoding> encoding) {
        return dispatch<&BinaryStream::Read>(this, most, encoding);
    }
    void WriteByte(std::int32_t value) { dispatch<&BinaryStream::WriteByte>(this, value); }
    void WriteShort(std::int32_t value) { dispatch<&BinaryStream::WriteShort>(this, value); }
    void WriteLong(std::int32_t value) { dispatch<&BinaryStream::WriteLong>(this, value); }
    void WritePString(const String& text) { dispatch<&BinaryStream::WritePString>(this, text); }
    void WriteSingle(double value) { dispatch<&BinaryStream::WriteSingle>(this, value); }
    void WriteDouble(double value) { dispatch<&BinaryStream::WriteDouble>(this, value); }
    void WriteBoolean(bool value) { dispatch<&BinaryStream::WriteBoolean>(this, value); }
    void Write(const String& bytes) { dispatch<&BinaryStream::Write>(this, bytes); }
    void Close() { dispatch<&BinaryStream::Close>(this); }
    void Flush() { dispatch<&BinaryStream::Flush>(this); }
    bool WriteError() { return dispatch<&BinaryStream::WriteError>(this); }
    bool EOF_() { return dispatch<&BinaryStream::EOF_>(this); }
    bool ReadError() { return dispatch<&BinaryStream::ReadError>(this); }
    void Constructor(const String& text) {
        dispatch<pick<void(const String&)>(&BinaryStream::Constructor)>(this, text);
    }
    void Constructor(Arg<MemoryBlock> block) {
        dispatch<pick<void(Arg<MemoryBlock>)>(&BinaryStream::Constructor)>(this, block);
    }
    void Constructor(std::int32_t handle, std::int32_t type) {
        dispatch<pick<void(std::int32_t, std::int32_t)>(&BinaryStream::Constructor)>(this, handle, type);
    }
    std::int32_t Handle(std::int32_t type) { return dispatch<&BinaryStream::Handle>(this, type); }
    std::int8_t ReadInt8() { return dispatch<&BinaryStream::ReadInt8>(this); }
    std::int16_t ReadInt16() { return dispatch<&BinaryStream::ReadInt16>(this); }
    std::int32_t ReadInt32() { return dispatch<&BinaryStream::ReadInt32>(this); }
    std::int64_t ReadInt64() { return dispatch<&BinaryStream::ReadInt64>(this); }
    std::uint8_t ReadUInt8() { return dispatch<&BinaryStream::ReadUInt8>(this); }
    std::uint16_t ReadUInt16() { return dispatch<&BinaryStream::ReadUInt16>(this); }
    std::uint32_t ReadUInt32() { return dispatch<&BinaryStream::ReadUInt32>(this); }
    std::uint64_t ReadUInt64() { return dispatch<&BinaryStream::ReadUInt64>(this); }
    void WriteInt8(std::int8_t value) { dispatch<&BinaryStream::WriteInt8>(this, value); }
    void WriteInt16(std::int16_t value) { dispatch<&BinaryStream::WriteInt16>(this, value); }
    void WriteInt32(std::int32_t value) { dispatch<&BinaryStream::WriteInt32>(this, value); }
    void WriteInt64(std::int64_t value) { dispatch<&BinaryStream::WriteInt64>(this, value); }
    void WriteUInt8(std::uint8_t value) { dispatch<&BinaryStream::WriteUInt8>(this, value); }
    void WriteUInt16(std::uint16_t value) { dispatch<&BinaryStream::WriteUInt16>(this, value); }
    void WriteUInt32(std::uint32_t value) { dispatch<&BinaryStream::WriteUInt32>(this, value); }
    void WriteUInt64(std::uint64_t value) { dispatch<&BinaryStream::WriteUInt64>(this, value); }
    Currency ReadCurrency() { return dispatch<&BinaryStream::ReadCurrency>(this); }
    void WriteCurrency(Currency value) { dispatch<&BinaryStream::WriteCurrency>(this, value); }
    void __DependencyList() { dispatch<&BinaryStream::__DependencyList>(this); }

    // The byte order of all values that are read and written from now on.
    bool LittleEndian() { return mLittleEndian; }
    void set_LittleEndian(bool little) { mLittleEndian = little; }
    std::uint64_t Length() { return BinaryStreamGetLength(this, 0); }
    void set_Length(std::uint64_t length) { BinaryStreamSetLength(this, 0, length); }
    std::uint64_t Position() { return BinaryStreamGetPosition(this, 0); }
    void set_Position(std::uint64_t position) { BinaryStreamSetPosition(this, 0, position); }
    std::int32_t LastErrorCode() { return BinaryStreamLastErrorGetter(this, 0); }
};

}  // namespace tavrik
