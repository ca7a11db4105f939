#include "data/memory_block.h"

namespace tavrik {
namespace {

constexpr OperationRow kOperations[] = {
    operation<&MemoryBlock::Long, memoryGetLong>("Long"),
    operation<&MemoryBlock::Ptr, memoryGetPtr>("Ptr"),
    operation<&MemoryBlock::Short, memoryGetShort>("Short"),
    operation<&MemoryBlock::UShort, memoryGetUShort>("UShort"),
    operation<&MemoryBlock::Byte, memoryGetByte>("Byte"),
    operation<&MemoryBlock::PString, memoryGetPString>("PString"),
    operation<&MemoryBlock::CString, memoryGetCString>("CString"),
    operation<&MemoryBlock::WString, memoryGetWString>("WString"),
    operation<&MemoryBlock::SingleValue, memoryGetSingle>("SingleValue"),
    operation<&MemoryBlock::DoubleValue, memoryGetDouble>("DoubleValue"),
    operation<&MemoryBlock::set_StringValue, memorySetString>("=StringValue"),
    operation<&MemoryBlock::StringValue, memoryGetString>("StringValue"),
    operation<&MemoryBlock::BooleanValue, memoryGetBoolean>("BooleanValue"),
    operation<&MemoryBlock::ColorValue, memoryGetColor>("ColorValue"),
    operation<&MemoryBlock::Constructor, memoryBlockNewConstructor>("Constructor"),
    operation<&MemoryBlock::Operator_Convert<String>, MemoryBlockToStringOperator>("Operator_Convert"),
    operation<MemoryBlock::FromString(&MemoryBlock::Operator_Convert), MemoryBlockFromStringOperator>(
        "Operator_Convert"),
    operation<&MemoryBlock::Operator_Add, MemoryBlockAddOperator>("Operator_Add"),
    operation<&MemoryBlock::Operator_Compare, MemoryBlockCompareOperator>("Operator_Compare"),
    operation<&MemoryBlock::Operator_Convert<void*>, memoryBlockGetPtr>("Operator_Convert"),
    operation<MemoryBlock::FromPointer(&MemoryBlock::Operator_Convert), ConvertPtrToMemoryBlock>("Operator_Convert"),
    operation<&MemoryBlock::LeftB, MemoryBlockLeftB>("LeftB"),
    operation<pick<Ref<MemoryBlock>(std::int32_t)>(&MemoryBlock::MidB), MemoryBlockMidB2>("MidB"),
    operation<pick<Ref<MemoryBlock>(std::int32_t, std::int32_t)>(&MemoryBlock::MidB), MemoryBlockMidB3>("MidB"),
    operation<&MemoryBlock::RightB, MemoryBlockRightB>("RightB"),
    operation<&MemoryBlock::set_ColorValue, memorySetColor>("=ColorValue"),
    operation<&MemoryBlock::set_BooleanValue, memorySetBoolean>("=BooleanValue"),
    operation<&MemoryBlock::set_DoubleValue, memorySetDouble>("=DoubleValue"),
    operation<&MemoryBlock::set_SingleValue, memorySetSingle>("=SingleValue"),
    operation<&MemoryBlock::set_WString, memorySetWString>("=WString"),
    operation<&MemoryBlock::set_CString, memorySetCString>("=CString"),
    operation<&MemoryBlock::set_PString, memorySetPString>("=PString"),
    operation<&MemoryBlock::set_Byte, memorySetByte>("=Byte"),
    operation<&MemoryBlock::set_UShort, memorySetShort>("=UShort"),
    operation<&MemoryBlock::set_Short, memorySetShort>("=Short"),
    operation<&MemoryBlock::set_Ptr, memorySetPtr>("=Ptr"),
    operation<&MemoryBlock::set_Long, memorySetLong>("=Long"),
    operation<&MemoryBlock::set_Int32Value, memorySetLong>("=Int32Value"),
    operation<&MemoryBlock::Int32Value, memoryGetLong>("Int32Value"),
    operation<&MemoryBlock::set_Int8Value, memorySetInt8>("=Int8Value"),
    operation<&MemoryBlock::set_Int16Value, memorySetInt16>("=Int16Value"),
    operation<&MemoryBlock::set_Int64Value, memorySetInt64>("=Int64Value"),
    operation<&MemoryBlock::Int8Value, memoryGetInt8>("Int8Value"),
    operation<&MemoryBlock::Int16Value, memoryGetInt16>("Int16Value"),
    operation<&MemoryBlock::Int64Value, memoryGetInt64>("Int64Value"),
    operation<&MemoryBlock::set_UInt8Value, memorySetUInt8>("=UInt8Value"),
    operation<&MemoryBlock::set_UInt16Value, memorySetUInt16>("=UInt16Value"),
    operation<&MemoryBlock::set_UInt32Value, memorySetUInt32>("=UInt32Value"),
    operation<&MemoryBlock::set_UInt64Value, memorySetUInt64>("=UInt64Value"),
    operation<&MemoryBlock::UInt8Value, memoryGetUInt8>("UInt8Value"),
    operation<&MemoryBlock::UInt16Value, memoryGetUInt16>("UInt16Value"),
    operation<&MemoryBlock::UInt32Value, memoryGetUInt32>("UInt32Value"),
    operation<&MemoryBlock::UInt64Value, memoryGetUInt64>("UInt64Value"),
    operation<&MemoryBlock::CurrencyValue, memoryGetCurrency>("CurrencyValue"),
    operation<&MemoryBlock::set_CurrencyValue, memorySetCurrency>("=CurrencyValue"),
    operation<&MemoryBlock::__DependencyList, no_effect>("__DependencyList").not_public(),
    operation<&MemoryBlock::MemoryBlock_, memoryBlockNewConstructor>("MemoryBlock"),
};

constexpr PropertyRow kProperties[] = {
    stored<&MemoryBlock::mLittleEndian>("LittleEndian"),
    property<&MemoryBlock::Size, &MemoryBlock::set_Size>("Size"),
};

}  // namespace

const ClassDefinition& MemoryBlock::definition() {
    static constexpr ClassDefinition kDefinition = define<MemoryBlock>({
        .init = init_forwards_to<MemoryBlock, MemoryBlockInitializer>,
        .exit = exit_forwards_to<MemoryBlock, MemoryBlockFinalizer>,
        .operations = kOperations,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
