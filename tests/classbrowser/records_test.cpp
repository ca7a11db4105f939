#include "classbrowser/records.h"

#include "classbrowser/json.h"

#include <tavrik/class_record.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace tavrik::classbrowser {
namespace {

using testing::HasSubstr;

TEST(Json, Sets_commas_and_escapes) {
    Json json;
    json.object([&] {
        json.key("list").array([&] {
            json.number(-1);
            json.text("a\"b\\c\x01 \xC3\xA4");
            json.array([] {});
            json.boolean(true);
        });
        json.key("none").null();
    });
    EXPECT_EQ(json.line(), R"({"list":[-1,"a\"b\\c\u0001 )"
                           "\xC3\xA4"
                           R"(",[],true],"none":null})");
}

std::string entry_of(const std::string& json, std::string_view class_name) {
    const std::string head = "{\"name\":\"" + std::string(class_name) + "\",\"parent\"";
    const std::size_t begin = json.find(head);
    return json.substr(begin, json.find("\",\"parent\"", begin + head.size()) - begin);
}

TEST(Class_records, Are_shown_as_they_stand) {
    const std::string json = records_as_json();
    EXPECT_EQ(json.find('\n'), std::string::npos);
    EXPECT_THAT(entry_of(json, "Writeable"), HasSubstr(R"("interface":true,"size":0,"init":false)"));

    const std::string stream = entry_of(json, "BinaryStream");
    EXPECT_THAT(stream, HasSubstr(R"("interfaces":[{"name":"Writeable","operations":3})"));

    const std::string menu_bar = entry_of(json, "MenuBar1.MenuBar1");
    const ClassRecord& parent = *RuntimeFindClass("MenuBar");
    EXPECT_THAT(menu_bar, HasSubstr(R"("parent":"MenuBar")"));
    // The inherited constructor's slot has the class's own function, which is under one name in the records.
    EXPECT_THAT(menu_bar, HasSubstr(R"(["Constructor"])"));
    std::smatch own;
    ASSERT_TRUE(std::regex_search(menu_bar, own, std::regex(R"("method_total":(\d+).*"own_methods_at":(\d+))")));
    EXPECT_EQ(std::stoi(own[1]) - std::stoi(own[2]), 3);
    EXPECT_GT(std::stoi(own[2]), parent.method_count);
}

TEST(Class_records, Are_counted) {
    std::set<std::string_view> signatures;
    std::set<Function> thunks;
    std::int32_t methods = 0;
    std::int32_t properties = 0;
    for (const ClassRecord* c = RuntimeGetClassList(); c != nullptr; c = c->next) {
        properties += c->property_count - (c->parent == nullptr ? 0 : c->parent->property_count);
        for (std::int32_t i = c->parent == nullptr ? 0 : c->parent->method_count; i < c->method_count; ++i) {
            if (c->methods[i].name == nullptr) continue;
            ++methods;
            signatures.insert(view(c->methods[i].signature));
            thunks.insert(c->methods[i].invoker);
        }
    }
    const auto number = [](auto value) { return std::to_string(value); };
    EXPECT_THAT(records_as_json(), HasSubstr(R"("counts":{"thunks":)" + number(thunks.size()) + R"(,"signatures":)" +
                                             number(signatures.size()) + R"(,"method_records":)" + number(methods) +
                                             R"(,"property_records":)" + number(properties) + "}}"));
}

}  // namespace
}  // namespace tavrik::classbrowser
