#include "data/dictionary.h"
#include "introspection/attribute_info.h"
#include "introspection/constructor_info.h"
#include "introspection/introspection.h"
#include "introspection/leaf_types.h"
#include "introspection/method_info.h"
#include "introspection/property_info.h"
#include "maptool/window1.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/sketch.h"
#include "ui/window.h"

#include <algorithm>

namespace tavrik::test {
namespace {

using namespace Introspection;

Ref<ClassInfo> class_named(const char* name) { return ClassInfo::Lookup(String(std::string_view(name))); }

class ClassInfos : public testing::Test {
    Balance balance_;
};

TEST_F(ClassInfos, One_object_is_found_by_record_by_name_and_by_instance) {
    const Ref<ClassInfo> dictionary = ClassInfo::Lookup(Dictionary::__Lookup());
    EXPECT_EQ(class_named("Dictionary"), dictionary);
    EXPECT_EQ(GetType(make<Dictionary>()), dictionary);
    EXPECT_FALSE(GetType(nullptr));
    EXPECT_EQ(class_named("Introspection.EnumInfo")->Name(), "EnumInfo");
    EXPECT_EQ(class_named("Introspection.EnumInfo")->FullName(), "Introspection.EnumInfo");
    const Ref<ClassInfo> root = ClassInfo::Lookup(static_cast<ClassRecord*>(nullptr));
    EXPECT_EQ(class_named("Nowhere"), root);
    EXPECT_EQ(root->GetConstructors()->upper_bound(), -1);
    EXPECT_FALSE(root->IsSubclassOf(root));
}

TEST_F(ClassInfos, By_name_are_known_only_the_classes_that_were_there_at_the_first_question) {
    ClassRecord* const younger = make_class("sketch.Same");
    make_class("sketch.Same");
    EXPECT_EQ(class_named("sketch.Same")->mClassRef, younger) << "of two the one that is later on the list stands";
    ClassRecord* const late = make_class("sketch.Late");
    EXPECT_EQ(class_named("sketch.Late")->mClassRef, nullptr);
    EXPECT_EQ(ClassInfo::Lookup(late)->mClassRef, late);
}

TEST_F(ClassInfos, Lists_hold_inherited_members_first_and_overridden_ones_twice) {
    const Ref<ClassInfo> type = class_named("Introspection.ClassInfo");
    const Names properties = names_of(type->GetProperties());
    EXPECT_EQ(properties.front(), "mNameValue");
    EXPECT_EQ(properties.back(), "mClassRef");
    const Names methods = names_of(type->GetMethods());
    EXPECT_EQ(std::ranges::count(methods, "IsSubclassOf"), 2);
    EXPECT_EQ(names_of(type->GetConstructors()), (Names{"Constructor", "Constructor", "Constructor"}));
    const Ref<MethodInfo> inherited = type->GetMethods()->at(0);
    EXPECT_EQ(inherited->Name(), "GetAttributes");
    EXPECT_EQ(inherited->mOwnerClassRef, ClassInfo::__Lookup()) << "the owner is the class that was asked";

    // These are copies, and the attributes are not.
    type->GetMethods()->resize(-1);
    EXPECT_EQ(type->GetMethods()->at(0), inherited);
    EXPECT_EQ(type->GetAttributes(), type->GetAttributes());
}

TEST_F(ClassInfos, Two_classes_that_name_each_other_are_both_complete) {
    ClassRecord* const hen = make_class("sketch.Hen", {.properties = {{"Laid", "o<sketch.Egg>"}, {"Age", "i4"}}});
    ClassRecord* const egg = make_class("sketch.Egg", {.properties = {{"From", "o<sketch.Hen>"}, {"Warm", "b"}}});
    const Ref<ClassInfo> type = ClassInfo::Lookup(hen);
    const Ref<PropertyInfo> laid = type->GetProperties()->at(0);
    EXPECT_EQ(laid->PropertyType(), ClassInfo::Lookup(egg));
    const Ref<PropertyInfo> from = laid->PropertyType()->GetProperties()->at(0);
    EXPECT_EQ(from->PropertyType(), type);
    EXPECT_EQ(names_of(from->PropertyType()->GetProperties()), (Names{"Laid", "Age"}));
}

TEST_F(ClassInfos, What_is_hidden_is_told_nowhere) {
    ClassRecord* const secret = make_class("sketch.Secret", {.methods = {{"Dig", "%%"}}, .attributes = {"Hidden"}});
    ClassRecord* const child = make_class("sketch.Open", {.parent = secret,
                                                          .methods = {{"Constructor", "%%", {"Hidden"}},
                                                                      {"Show", "%%", {"Noted", "Hidden"}},
                                                                      {"Play", "%%", {"hidden"}}},
                                                          .properties = {{"Age", "i4", {"Hidden"}}, {"Size", "i4"}}});
    EXPECT_FALSE(class_named("sketch.Secret"));
    EXPECT_FALSE(ClassInfo::Lookup(secret));
    EXPECT_FALSE(GetType(RuntimeNewObject(secret)));
    EXPECT_EQ(ClassInfo::sClassRefMap->Count(), 0);

    const Ref<ClassInfo> type = ClassInfo::Lookup(child);
    EXPECT_FALSE(type->BaseType());
    EXPECT_EQ(names_of(type->GetMethods()), (Names{"Dig", "Play"})) << "members of a hidden parent aren't hidden";
    EXPECT_EQ(names_of(type->GetConstructors()), Names{""});
    EXPECT_EQ(names_of(type->GetProperties()), Names{"Size"});
    EXPECT_FALSE(type->IsHidden(nullptr));
    EXPECT_EQ(class_raised_by([&] { type->IsHidden(ArrayOf<AttributeInfo>::make(0)); }), "NilObjectException");
}

TEST_F(ClassInfos, A_class_is_a_subclass_of_itself_and_of_its_parents_alone) {
    const Ref<ClassInfo> type = class_named("Introspection.EnumInfo");
    for (const char* name : {"Introspection.EnumInfo", "Introspection.ValueTypeInfo", "Introspection.MemberInfo"}) {
        EXPECT_TRUE(type->IsSubclassOf(class_named(name))) << name;
    }
    for (const char* name : {"Introspection.StringInfo", "Dictionary", "Object"}) {
        EXPECT_FALSE(type->IsSubclassOf(class_named(name))) << name;
    }
    EXPECT_FALSE(type->IsSubclassOf(nullptr));
    EXPECT_FALSE(type->IsSubclassOf(make<StringInfo>()));
    const Ref<ClassInfo> interface = class_named("Readable");
    EXPECT_FALSE(class_named("BinaryStream")->IsSubclassOf(interface)) << "an interface is no parent";
    EXPECT_TRUE(interface->IsInterface() && !interface->IsClass());
    EXPECT_EQ(interface->GetConstructors()->upper_bound(), -1);
    EXPECT_EQ(type->BaseType()->Name(), "ValueTypeInfo");
}

TEST_F(ClassInfos, A_blank_record_is_a_method_without_name_and_function) {
    const auto methods = ClassInfo::Lookup(Window1::Window1::__Lookup())->GetMethods();
    const Ref<MethodInfo> method = methods->at(Window::__Lookup()->method_count);
    EXPECT_EQ(method->Name(), "");
    EXPECT_FALSE(method->ReturnType());
    EXPECT_EQ(class_raised_by([&] { method->Invoke(nullptr, nullptr); }), "FunctionNotFoundException");
}

}  // namespace
}  // namespace tavrik::test
