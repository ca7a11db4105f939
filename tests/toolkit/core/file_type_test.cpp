#include "data/file_type.h"

#include "tests/support/balance.h"
#include "toolkit/core/file_type.h"

#include <tavrik/file_type.h>

namespace tavrik::test {
namespace {

// The extensions that a filter string selects, types apart by "|".
std::string selected(std::string_view filter) {
    std::string all;
    for (const auto& type : core::filters_for(filter)) {
        all += type.label + ":";
        for (const std::string& extension : type.extensions) all += " " + extension;
        all += "|";
    }
    return all;
}

bool is_registered(std::string_view name) { return !core::filters_for(name).empty(); }

class FileTypes : public testing::Test {
protected:
    FileTypes() {
        map_->set_Name("map"_s);
        map_->set_Extensions("map"_s);
        bsp_->set_Name("bsp"_s);
        bsp_->set_Extensions("bsp"_s);
    }

    Balance balance_;
    Ref<FileType> map_ = make<FileType>();
    Ref<FileType> bsp_ = make<FileType>();
};

TEST_F(FileTypes, Are_registered_by_conversion_and_every_addition) {
    const std::pair<void (*)(FileType&, FileType&), const char*> uses[] = {
        {[](FileType& self, FileType&) { self.Operator_Convert(); }, "Operator_Convert"},
        {[](FileType& self, FileType& other) { self.Operator_Add(&other); }, "Operator_Add"},
        {[](FileType& self, FileType& other) { self.Operator_AddRight(&other); }, "Operator_AddRight"},
        {[](FileType& self, FileType&) { self.Operator_Add("x"_s); }, "Operator_Add of a text"},
        {[](FileType& self, FileType&) { self.Operator_AddRight("x"_s); }, "Operator_AddRight of a text"},
        {[](FileType& self, FileType&) { self.Register(); }, "Register"},
    };
    for (const auto& [use, name] : uses) {
        EXPECT_FALSE(is_registered("map")) << name;
        use(*map_.get(), *bsp_.get());
        use(*map_.get(), *bsp_.get());
        EXPECT_EQ(selected("map"), "map: map|") << name;
        map_->Deregister();
    }
}

TEST_F(FileTypes, Are_forgotten_when_a_value_changes_or_the_object_ends) {
    const std::pair<void (*)(Ref<FileType>&), const char*> ends[] = {
        {[](Ref<FileType>& type) { type->set_Name("chart"_s); }, "Name"},
        {[](Ref<FileType>& type) { type->set_MacType("MAP "_s); }, "MacType"},
        {[](Ref<FileType>& type) { type->set_Extensions("map"_s); }, "Extensions"},
        {[](Ref<FileType>& type) { type->Deregister(); }, "Deregister"},
        {[](Ref<FileType>& type) { type = nullptr; }, "end"},
    };
    for (const auto& [end, name] : ends) {
        Ref<FileType> type = make<FileType>();
        type->set_Name("map"_s);
        type->Register();
        ASSERT_TRUE(is_registered("map")) << name;
        end(type);
        EXPECT_FALSE(is_registered("map")) << name;
    }
}

TEST_F(FileTypes, Add_up_in_the_order_of_the_sum) {
    EXPECT_EQ(map_->Operator_Add(bsp_), "map;bsp");
    EXPECT_EQ(map_->Operator_AddRight(bsp_), "bsp;map");
    EXPECT_EQ(map_->Operator_Add("x;y"_s), "map;x;y");
    EXPECT_EQ(map_->Operator_AddRight("x;y"_s), "x;y;map");
    EXPECT_EQ(map_->Operator_AddRight(String()), ";map") << "no text, but a separator";
    map_->set_Extensions(".map; *.bsp;;ter rain"_s);
    EXPECT_EQ(map_->Operator_Add(map_), "map;map");
    EXPECT_EQ(selected("map"), "map: map bsp ter rain|") << "registered anew";
}

TEST_F(FileTypes, A_filter_selects_the_registered_types_that_it_names) {
    EXPECT_EQ(selected(map_->Operator_Add(bsp_).view()), "map, bsp: map bsp|map: map|bsp: bsp|");
    EXPECT_EQ(selected("bsp;unknown;map"), "bsp, map: bsp map|bsp: bsp|map: map|");
    EXPECT_EQ(selected("map;map"), "map: map|") << "a type named twice is one choice";
    for (const char* none : {"", ";", "Map"}) EXPECT_EQ(selected(none), "") << none;
}

TEST_F(FileTypes, The_choice_of_several_types_takes_what_any_of_them_takes) {
    map_->set_Extensions("map;old"_s);
    bsp_->set_Extensions("bsp;old"_s);
    EXPECT_EQ(selected(map_->Operator_Add(bsp_).view()), "map, bsp: map old bsp|map: map old|bsp: bsp old|");
    bsp_->set_Extensions(String());
    EXPECT_EQ(selected(map_->Operator_Add(bsp_).view()), "map, bsp:|map: map old|bsp:|")
        << "no extensions stand for all files";
}

}  // namespace
}  // namespace tavrik::test
