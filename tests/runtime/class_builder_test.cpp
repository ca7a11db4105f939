#include "runtime/class.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"

#include <string>
#include <vector>

// A small family of classes, of which nothing is built before a test asks for it.
namespace tavrik::farm {

struct Movable : Interface<Movable> {};

struct Animal : Class<Animal> {
    static const ClassDefinition& definition();

    String Speak(std::int32_t times) { return dispatch<pick<String(std::int32_t)>(&Animal::Speak)>(this, times); }
    String Speak() { return dispatch<pick<String()>(&Animal::Speak)>(this); }
    bool Move() { return dispatch<&Animal::Move>(this); }
    void set_Name(const String& name) { dispatch<&Animal::set_Name>(this, name); }
    bool Plain();
    std::int32_t Legs() { return 4; }
    std::int32_t Age() { return 2; }
    void set_Age(std::int32_t) {}

    struct Events {
        static inline constinit Event<void()> Fed;
        static inline constinit Event<bool(std::int32_t)> Called;
    };

    StringField mName;
    std::int32_t _mWeight;
    bool tame;
};

struct Dog : Class<Dog, Animal> {
    static const ClassDefinition& definition();

    bool Fetch() { return dispatch<&Dog::Fetch>(this); }
    bool Event_Called(std::int32_t times) { return dispatch<&Dog::Event_Called>(this, times); }

    struct Events {
        static inline constinit Event<void()> Petted;
    };
};

// Of an application, and never built but through Puppy.
struct Terrier : Class<Terrier, Dog> {
    static const ClassDefinition& definition();

    bool Dig() { return dispatch<&Terrier::Dig>(this); }
};

struct Puppy : Class<Puppy, Terrier> {
    static const ClassDefinition& definition();
};

namespace {

String speak_times(Animal*, std::int32_t times) { return String(std::string(static_cast<std::size_t>(times), '.')); }
String speak(Animal*) { return "..."_s; }
bool move(Object*) { return false; }
void set_name(Animal* self, const String& name) { self->mName = name; }
bool plain(Object*) { return true; }
std::int32_t count_all() { return 1; }
String bark(Dog*) { return "wuff"_s; }
bool fetch(Dog*) { return true; }
bool called(Dog*, std::int32_t times) { return times > 1; }
bool dig(Terrier*) { return true; }
void forwarded(Object*) {}

constexpr OperationRow kAnimalOperations[] = {
    operation<pick<String(std::int32_t)>(&Animal::Speak), speak_times>("Speak"),
    operation<pick<String()>(&Animal::Speak), speak>("Speak"),
    operation<&Animal::Move, move>("Move").not_public(),
    operation<&Animal::set_Name, set_name>("=Name"),
    method<&Animal::Plain, plain>("Plain"),
    shared<count_all>("CountAll")};
constexpr FieldRow kAnimalFields[] = {field<&Animal::mName>("mName"), field<&Animal::_mWeight>("_mWeight"),
                                      field<&Animal::tame>("tame")};
constexpr PropertyRow kAnimalProperties[] = {property<&Animal::Legs>("Legs"),
                                             property<&Animal::Age, &Animal::set_Age>("Age"),
                                             property<&Animal::Age, ignored>("Years")};
constexpr EventRow kAnimalEvents[] = {event("Fed", Animal::Events::Fed), event("Called", Animal::Events::Called)};
constexpr InterfaceRow kAnimalInterfaces[] = {implements<Movable, &Animal::Move, pick<String()>(&Animal::Speak)>()};

constexpr OperationRow kDogOperations[] = {operation<&Dog::Fetch, fetch>("Fetch"),
                                           overrides<Dog, pick<String()>(&Animal::Speak), bark>("Speak"),
                                           operation<&Dog::Event_Called, called>("Event_Called")};
constexpr EventRow kDogEvents[] = {event("Petted", Dog::Events::Petted)};
constexpr HandlerRow kDogHandlers[] = {handles<&Dog::Event_Called>("Called", Animal::Events::Called)};

constexpr OperationRow kTerrierOperations[] = {operation<&Terrier::Dig, dig>("Dig")};

}  // namespace

const ClassDefinition& Animal::definition() {
    static constexpr ClassDefinition kDefinition = define<Animal>({.init = init_forwards_to<Animal, forwarded>,
                                                                   .exit = exit_forwards_to<Animal, forwarded>,
                                                                   .operations = kAnimalOperations,
                                                                   .fields = kAnimalFields,
                                                                   .properties = kAnimalProperties,
                                                                   .events = kAnimalEvents,
                                                                   .interfaces = kAnimalInterfaces});
    return kDefinition;
}

const ClassDefinition& Dog::definition() {
    static constexpr ClassDefinition kDefinition =
        define<Dog>({.operations = kDogOperations, .events = kDogEvents, .handlers = kDogHandlers});
    return kDefinition;
}

const ClassDefinition& Terrier::definition() {
    static constexpr ClassDefinition kDefinition =
        define<Terrier>({.layer = Layer::kApplication, .operations = kTerrierOperations});
    return kDefinition;
}

const ClassDefinition& Puppy::definition() {
    static constexpr ClassDefinition kDefinition = define<Puppy>({});
    return kDefinition;
}

}  // namespace tavrik::farm

namespace tavrik::test {
namespace {

using namespace farm;
using Lines = std::vector<std::string>;

// The method records from an index on, as "name signature flags".
Lines methods_of(const ClassRecord& record, std::int32_t from = 0) {
    Lines lines;
    for (std::int32_t i = from; i < record.method_count; ++i) {
        const MethodRecord& method = record.methods[i];
        lines.push_back(std::string(view(method.name)) + " " + std::string(view(method.signature)) + " " +
                        std::to_string(method.flags));
    }
    return lines;
}

TEST(ClassBuilding, The_first_request_builds_the_parents_first_and_the_second_changes_nothing) {
    const ClassRecord* const puppy = Puppy::__Lookup();
    EXPECT_EQ(view(puppy->name), "farm.Puppy");
    EXPECT_EQ(puppy->parent, Terrier::__ctbl);
    EXPECT_EQ(Terrier::__ctbl->parent, Dog::__ctbl);
    EXPECT_LT(RuntimeClassNumber(Dog::__ctbl), RuntimeClassNumber(puppy));
    const ClassRecord* const newest = RuntimeGetClassList();
    Puppy::__ctblinit();
    EXPECT_EQ(Puppy::__Lookup(), puppy);
    EXPECT_EQ(RuntimeGetClassList(), newest);
}

TEST(ClassBuilding, Method_records_stand_in_the_order_of_the_rows_with_accessors_behind) {
    EXPECT_EQ(methods_of(*Animal::__Lookup()),
              (Lines{"__Exit %% 0", "__Init %% 0", "Speak %s%i4 1", "Speak %s% 1", "Move %b% 0", "Name %%s 5",
                     "Plain %b% 1", "CountAll %i4% 3", "Legs.Get %i4%i4 0", "Age.Get %i4%i4 0", "Age.Set %%i4i4 0",
                     "Years.Get %i4%i4 0", "Years.Set %%i4i4 0"}));
    EXPECT_EQ(methods_of(*Dog::__Lookup(), Animal::__ctbl->method_count),
              (Lines{"Fetch %b% 1", "Speak %s% 1", "Event_Called %b%i4 1"}));
}

TEST(ClassBuilding, Property_records_tell_type_and_access) {
    const ClassRecord& animal = *Animal::__Lookup();
    Lines lines;
    for (std::int32_t i = 0; i < animal.property_count; ++i) {
        const PropertyRecord& property = animal.properties[i];
        lines.push_back(std::string(view(property.name)) + " " + std::string(view(property.type_code)) + " " +
                        std::to_string(property.flags) + (property.setter == nullptr ? "" : " settable"));
    }
    EXPECT_EQ(lines, (Lines{"mName s 4 settable", "_mWeight i4 5 settable", "tame b 5 settable", "Legs i4 1",
                            "Age i4 5 settable", "Years i4 5 settable"}));
}

TEST(ClassBuilding, An_override_keeps_the_slot_of_its_parent) {
    const Balance balance;
    const ClassRecord& animal = *Animal::__Lookup();
    const ClassRecord& dog = *Dog::__Lookup();
    EXPECT_EQ(animal.vtable_size, 4);
    EXPECT_EQ(dog.vtable_size, 6);
    for (const std::int32_t slot : {0, 2, 3}) EXPECT_EQ(dog.vtable[slot], animal.vtable[slot]) << slot;
    const Ref<Animal> cow = make<Animal>();
    const Ref<Animal> puppy = make<Puppy>();
    EXPECT_EQ(cow->Speak(), "...");
    EXPECT_EQ(puppy->Speak(), "wuff");
    EXPECT_EQ(puppy->Speak(2), "..");
    puppy->set_Name("Rex"_s);
    EXPECT_EQ(puppy->mName.view(), "Rex");
}

TEST(ClassBuilding, Events_are_taken_over_with_their_handlers) {
    const ClassRecord& puppy = *Puppy::__Lookup();
    ASSERT_EQ(puppy.event_count, 3);
    EXPECT_EQ(view(puppy.events[1].name), "Called");
    EXPECT_EQ(view(puppy.events[2].name), "Petted");
    EXPECT_EQ(puppy.events[0].handler, nullptr);
    EXPECT_TRUE(Animal::Events::Called.raise(make<Puppy>().get(), 2));
    EXPECT_FALSE(Animal::Events::Called.raise(make<Animal>().get(), 2));
}

TEST(ClassBuilding, Interfaces_stand_in_order_with_the_operations_of_the_class) {
    const ClassRecord& animal = *Animal::__Lookup();
    ASSERT_EQ(animal.interface_count, 1);
    const InterfaceEntry& movable = animal.interfaces()[0];
    EXPECT_EQ(movable.interface, Movable::__Lookup());
    EXPECT_EQ(movable.interface->is_interface, 1);
    ASSERT_EQ(movable.operation_count, 2);
    EXPECT_EQ(movable.operations[0], animal.vtable[2]);
    EXPECT_EQ(movable.operations[1], animal.vtable[1]);
    EXPECT_EQ(Dog::__Lookup()->interface_count, 0);
    EXPECT_TRUE(is_a<Movable>(make<Dog>()));
}

TEST(ClassBuilding, A_class_of_an_application_leaves_its_parents_accessors_blank) {
    const ClassRecord& dog = *Dog::__Lookup();
    const ClassRecord& terrier = *Terrier::__Lookup();
    constexpr std::int32_t kAccessors = 5;
    ASSERT_EQ(terrier.method_count, dog.method_count + kAccessors + 1);
    for (std::int32_t i = dog.method_count; i < dog.method_count + kAccessors; ++i) {
        EXPECT_EQ(terrier.methods[i].name, nullptr) << i;
    }
    EXPECT_EQ(methods_of(terrier, dog.method_count + kAccessors), Lines{"Dig %b% 1"});
    EXPECT_EQ(Puppy::__Lookup()->method_count, terrier.method_count) << "blanks are inherited";
    EXPECT_EQ(terrier.property_count, dog.property_count);
    EXPECT_TRUE(make<Puppy>()->Dig());
}

}  // namespace
}  // namespace tavrik::test
