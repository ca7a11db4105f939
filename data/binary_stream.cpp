#include "data/binary_stream.h"

#include "data/memory_block.h"
#include "data/text_encoding.h"

namespace tavrik {
namespace {

bool last_error_is_odd(Object* stream) { return (BinaryStreamLastErrorGetter(stream, 0) & 1) != 0; }

constexpr OperationRow kOperations[] = {
    operation<&BinaryStream::ReadByte, BinaryStreamReadByte>("ReadByte"),
    operation<&BinaryStream::ReadShort, BinaryStreamReadShort>("ReadShort"),
    operation<&BinaryStream::ReadLong, BinaryStreamReadLong>("ReadLong"),
    operation<&BinaryStream::ReadPString, BinaryStreamReadPString>("ReadPString"),
    operation<&BinaryStream::ReadSingle, BinaryStreamReadFloat>("ReadSingle"),
    operation<&BinaryStream::ReadDouble, BinaryStreamReadDouble>("ReadDouble"),
    operation<&BinaryStream::ReadBoolean, BinaryStreamReadBoolean>("ReadBoolean"),
    operation<&BinaryStream::Read, BinaryStreamRead>("Read"),
    operation<&BinaryStream::WriteByte, BinaryStreamWriteByte>("WriteByte"),
    operation<&BinaryStream::WriteShort, BinaryStreamWriteShort>("WriteShort"),
    operation<&BinaryStream::WriteLong, BinaryStreamWriteLong>("WriteLong"),
    operation<&BinaryStream::WritePString, BinaryStreamWritePString>("WritePString"),
    operation<&BinaryStream::WriteSingle, BinaryStreamWriteFloat>("WriteSingle"),
    operation<&BinaryStream::WriteDouble, BinaryStreamWriteDouble>("WriteDouble"),
    operation<&BinaryStream::WriteBoolean, BinaryStreamWriteBoolean>("WriteBoolean"),
    operation<&BinaryStream::Write, BinaryStreamWrite>("Write"),
    operation<&BinaryStream::Close, BinaryStreamClose>("Close"),
    operation<&BinaryStream::Flush, BinaryStreamFlush>("Flush"),
    operation<&BinaryStream::WriteError, last_error_is_odd>("WriteError"),
    operation<&BinaryStream::EOF_, BinaryStreamEOF>("EOF"),
    operation<&BinaryStream::ReadError, last_error_is_odd>("ReadError"),
    operation<pick<void(const String&)>(&BinaryStream::Constructor), BinaryStringStringCtor>("Constructor"),
    operation<pick<void(Arg<MemoryBlock>)>(&BinaryStream::Constructor), BinaryStringMemoryBlockCtor>("Constructor"),
    operation<pick<void(std::int32_t, std::int32_t)>(&BinaryStream::Constructor), BinaryStreamHandleCtor>(
        "Constructor"),
    operation<&BinaryStream::Handle, BinaryStreamHandleGetter>("Handle"),
    operation<&BinaryStream::ReadInt8, BinaryStreamReadInt8>("ReadInt8"),
    operation<&BinaryStream::ReadInt16, BinaryStreamReadInt16>("ReadInt16"),
    operation<&BinaryStream::ReadInt32, BinaryStreamReadLong>("ReadInt32"),
    operation<&BinaryStream::ReadInt64, BinaryStreamReadInt64>("ReadInt64"),
    operation<&BinaryStream::ReadUInt8, BinaryStreamReadUInt8>("ReadUInt8"),
    operation<&BinaryStream::ReadUInt16, BinaryStreamReadUInt16>("ReadUInt16"),
    operation<&BinaryStream::ReadUInt32, BinaryStreamReadUInt32>("ReadUInt32"),
    operation<&BinaryStream::ReadUInt64, BinaryStreamReadUInt64>("ReadUInt64"),
    operation<&BinaryStream::WriteInt8, BinaryStreamWriteInt8>("WriteInt8"),
    operation<&BinaryStream::WriteInt16, BinaryStreamWriteInt16>("WriteInt16"),
    operation<&BinaryStream::WriteInt32, BinaryStreamWriteLong>("WriteInt32"),
    operation<&BinaryStream::WriteInt64, BinaryStreamWriteInt64>("WriteInt64"),
    operation<&BinaryStream::WriteUInt8, BinaryStreamWriteUInt8>("WriteUInt8"),
    operation<&BinaryStream::WriteUInt16, BinaryStreamWriteUInt16>("WriteUInt16"),
    operation<&BinaryStream::WriteUInt32, BinaryStreamWriteUInt32>("WriteUInt32"),
    operation<&BinaryStream::WriteUInt64, BinaryStreamWriteUInt64>("WriteUInt64"),
    operation<&BinaryStream::ReadCurrency, BinaryStreamReadCurrency>("ReadCurrency"),
    operation<&BinaryStream::WriteCurrency, BinaryStreamWriteCurrency>("WriteCurrency"),
    operation<&BinaryStream::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr PropertyRow kProperties[] = {
    stored<&BinaryStream::mLittleEndian>("LittleEndian"),
    property<&BinaryStream::Length, &BinaryStream::set_Length>("Length"),
    property<&BinaryStream::Position, &BinaryStream::set_Position>("Position"),
    property<&BinaryStream::LastErrorCode>("LastErrorCode"),
};

constexpr InterfaceRow kInterfaces[] = {
    implements<Writeable, &BinaryStream::Write, &BinaryStream::Flush, &BinaryStream::WriteError>(),
    implements<Readable, &BinaryStream::Read, &BinaryStream::EOF_, &BinaryStream::ReadError>(),
};

}  // namespace

const ClassDefinition& BinaryStream::definition() {
    static constexpr ClassDefinition kDefinition = define<BinaryStream>({
        .init = init_forwards_to<BinaryStream, BinaryStreamInitializer>,
        .exit = exit_forwards_to<BinaryStream, BinaryStreamDestructor>,
        .operations = kOperations,
        .properties = kProperties,
        .interfaces = kInterfaces,
    });
    return kDefinition;
}

}  // namespace tavrik
