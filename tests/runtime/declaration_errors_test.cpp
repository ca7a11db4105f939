#include "runtime/class.h"

#include <gtest/gtest.h>

#include <string>

// Mistakes in rows that the compiler can't see: the record isn't built, and the program ends.
namespace tavrik::wrong {

struct Ringing : Interface<Ringing> {};

struct Instrument : Class<Instrument> {
    static const ClassDefinition& definition();

    bool Play() { return dispatch<&Instrument::Play>(this); }
    bool Forgotten() { return dispatch<&Instrument::Forgotten>(this); }

    struct Events {
        static inline constinit Event<bool()> Played, Broken, Undeclared;
    };
};

struct Bell : Class<Bell, Instrument> {
    bool Ring() { return dispatch<&Bell::Ring>(this); }
    bool Toll() { return dispatch<&Bell::Toll>(this); }
    std::int32_t Size() { return 0; }

    std::int32_t mSize;
};

namespace {

bool yes(Object*) { return true; }

constexpr OperationRow kPlay[] = {operation<&Instrument::Play, yes>("Play")};
constexpr EventRow kEvents[] = {event("Played", Instrument::Events::Played),
                                event("Broken", Instrument::Events::Broken)};

}  // namespace

const ClassDefinition& Instrument::definition() {
    static constexpr ClassDefinition kDefinition = define<Instrument>({.operations = kPlay, .events = kEvents});
    return kDefinition;
}

namespace {

constexpr auto kRing = operation<&Bell::Ring, yes>("Ring");

constexpr OperationRow kRingOnce[] = {kRing};
constexpr OperationRow kRingTwice[] = {kRing, kRing};
constexpr OperationRow kOverrideOfNothing[] = {overrides<Bell, &Instrument::Forgotten, yes>("Forgotten")};
constexpr OperationRow kOverrideOfItsOwn[] = {kRing, overrides<Bell, &Instrument::Play, yes>("Play")};
constexpr PropertyRow kSizeTwice[] = {property<&Bell::Size>("Size"), property<&Bell::Size>("Size")};
constexpr PropertyRow kSize[] = {property<&Bell::Size>("Size")};
constexpr FieldRow kSizeField[] = {field<&Bell::mSize>("Size")};
constexpr HandlerRow kUnknownEvent[] = {handles<&Bell::Ring>("Undeclared", Instrument::Events::Undeclared)};
constexpr HandlerRow kMisnamedEvent[] = {handles<&Bell::Ring>("Broken", Instrument::Events::Played)};
constexpr HandlerRow kHandlerWithoutSlot[] = {handles<&Bell::Toll>("Played", Instrument::Events::Played)};
constexpr InterfaceRow kInterfaceWithoutSlot[] = {implements<Ringing, &Bell::Toll>()};

struct Mistake {
    ClassRecord* (*parent)();
    Declaration declared;
    std::string told;
};

TEST(DeclarationErrorsDeathTest, End_the_program_with_a_sentence_that_names_class_and_member) {
    const auto parent = &Instrument::__Lookup;
    const Mistake mistakes[] = {
        {parent, {.operations = kRingTwice}, "declares an operation twice: Ring"},
        {parent, {.operations = kOverrideOfNothing}, "overrides an operation that no parent has: Forgotten"},
        {nullptr, {.operations = kOverrideOfItsOwn}, "overrides an operation of its own: Play"},
        {parent, {.properties = kSizeTwice}, "declares an operation twice: Size.Get"},
        {parent, {.fields = kSizeField, .properties = kSize}, "declares a property twice: Size"},
        {parent, {.operations = kRingOnce, .handlers = kUnknownEvent}, "handles an event that it hasn't: Undeclared"},
        {parent, {.operations = kRingOnce, .handlers = kMisnamedEvent}, "handles an event that it hasn't: Broken"},
        {parent, {.handlers = kHandlerWithoutSlot}, "handles an event with an operation that it hasn't: Played"},
        {parent,
         {.interfaces = kInterfaceWithoutSlot},
         "implements an interface with an operation that it hasn't: wrong.Ringing"},
    };
    Instrument::__ctblinit();
    for (const auto& [parent_lookup, declared, told] : mistakes) {
        const ClassDefinition definition{
            .name = class_name_record<Bell>, .parent = parent_lookup, .declared = declared};
        ClassRecord* record = nullptr;
        EXPECT_DEATH(build_class(definition, record), "class wrong.Bell: " + told) << told;
    }
}

}  // namespace
}  // namespace tavrik::wrong
