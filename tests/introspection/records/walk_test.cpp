// Every record of every class, whoever declared it.
#include "runtime/signature.h"

#include <tavrik/class_record.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace tavrik::test {
namespace {

std::vector<const ClassRecord*> all_classes() {
    std::vector<const ClassRecord*> classes;
    for (const ClassRecord* c = RuntimeGetClassList(); c != nullptr; c = c->next) classes.push_back(c);
    return classes;
}

template <class Record>
std::span<const Record> table(const Record* records, std::int32_t count) {
    return {records, static_cast<std::size_t>(count)};
}
auto methods_of(const ClassRecord& c) { return table(c.methods, c.method_count); }
auto events_of(const ClassRecord& c) { return table(c.events, c.event_count); }
auto properties_of(const ClassRecord& c) { return table(c.properties, c.property_count); }

// The records between the parent's last and the first own one of an application class.
bool is_blank(const MethodRecord& method) { return method.name == nullptr; }

std::string where(const ClassRecord& c, const MemberRecord& member) {
    return std::string(view(c.name)) + ": " + std::string(view(member.name));
}

bool is_locked(const StringRecord* string) { return string != nullptr && string->count >= 2; }

template <class Check>
void for_each_method(Check check) {
    for (const ClassRecord* c : all_classes()) {
        for (const MethodRecord& method : methods_of(*c)) {
            if (is_blank(method)) continue;
            SCOPED_TRACE(where(*c, method));
            check(*c, method);
        }
    }
}
template <class Check>
void for_each_property(Check check) {
    for (const ClassRecord* c : all_classes()) {
        for (const PropertyRecord& property : properties_of(*c)) {
            SCOPED_TRACE(where(*c, property));
            check(*c, property);
        }
    }
}

void check_attributes(const MemberRecord& member) {
    const bool is_shared = (member.flags & kShared) != 0;
    ASSERT_EQ(member.attribute_count, is_shared ? 1 : 0);
    if (!is_shared) return;
    EXPECT_EQ(view(member.attributes[0].name), "__Shared");
    EXPECT_EQ(member.attributes[0].value, nullptr);
    EXPECT_EQ(member.attributes[0].value_flag, 0);
}

TEST(Records, Of_methods_are_complete_and_locked) {
    for_each_method([](const ClassRecord&, const MethodRecord& method) {
        EXPECT_TRUE(is_locked(method.name));
        EXPECT_TRUE(is_locked(method.signature));
        EXPECT_TRUE(split_signature(view(method.signature)).has_value()) << view(method.signature);
        EXPECT_NE(method.function, nullptr);
        EXPECT_NE(method.invoker, nullptr);
        check_attributes(method);
    });
}

TEST(Records, Have_one_invoker_for_each_signature_shared_or_not) {
    std::map<std::pair<std::string_view, bool>, Function> invoker_of;
    std::map<Function, std::pair<std::string_view, bool>> signature_of;
    for_each_method([&](const ClassRecord&, const MethodRecord& method) {
        const std::pair key(view(method.signature), (method.flags & kShared) != 0);
        EXPECT_EQ(invoker_of.try_emplace(key, method.invoker).first->second, method.invoker);
        EXPECT_EQ(signature_of.try_emplace(method.invoker, key).first->second, key);
    });
    EXPECT_GE(invoker_of.size(), 100U);
}

TEST(Records, Of_properties_are_complete_and_have_the_invokers_of_their_type) {
    std::map<std::string_view, std::pair<Function, Function>> invokers_of;
    for_each_property([&](const ClassRecord&, const PropertyRecord& property) {
        EXPECT_TRUE(is_locked(property.name));
        EXPECT_TRUE(is_locked(property.type_code));
        std::string_view code = view(property.type_code);
        EXPECT_TRUE(take_type_code(code, ByReference::kNotAllowed) && code.empty()) << view(property.type_code);
        check_attributes(property);
        const bool is_shared = (property.flags & kShared) != 0;
        EXPECT_EQ(property.getter != nullptr || property.setter != nullptr, !is_shared);
        EXPECT_EQ((property.flags & kWritable) != 0, property.setter != nullptr || is_shared);
        EXPECT_EQ(property.getter == nullptr, property.read_invoker == nullptr);
        EXPECT_EQ(property.setter == nullptr, property.write_invoker == nullptr);

        const std::string_view type = view(property.type_code);
        const bool is_object = type.starts_with("o<") || type.starts_with('A') || type == "v";
        auto& [read, write] = invokers_of[is_object ? "object" : type];
        for (const auto& [known, given] : {std::pair(&read, property.read_invoker), {&write, property.write_invoker}}) {
            if (*known == nullptr) *known = given;
            EXPECT_TRUE(given == nullptr || given == *known) << type;
        }
    });
    std::set<Function> different;
    for (const auto& [type, invokers] : invokers_of) different.insert(invokers.first);
    EXPECT_EQ(different.size(), invokers_of.size());
}

TEST(Records, Of_accessors_fit_their_property) {
    std::int32_t accessors = 0;
    for (const ClassRecord* c : all_classes()) {
        for (const MethodRecord& method : methods_of(*c)) {
            const std::string_view name = view(method.name);
            const bool reads = name.ends_with(".Get");
            if (method.flags != 0 || (!reads && !name.ends_with(".Set"))) continue;
            SCOPED_TRACE(where(*c, method));
            const auto fits = [&](const PropertyRecord& property) {
                if (view(property.name) != name.substr(0, name.size() - 4)) return false;
                const std::string type(view(property.type_code));
                return reads ? property.getter == method.function && view(method.signature) == "%" + type + "%i4"
                             : property.setter == method.function && view(method.signature) == "%%i4" + type;
            };
            EXPECT_EQ(std::ranges::count_if(properties_of(*c), fits), 1);
            ++accessors;
        }
    }
    EXPECT_GE(accessors, 100);
}

TEST(Records, Of_the_parent_stand_in_front) {
    const auto name_of = [](const auto& record) { return record.name; };
    for (const ClassRecord* c : all_classes()) {
        if (c->parent == nullptr) continue;
        SCOPED_TRACE(view(c->name));
        const auto same_method = [](const MethodRecord& a, const MethodRecord& b) {
            return a.name == b.name && a.signature == b.signature && a.function == b.function &&
                   a.invoker == b.invoker && a.flags == b.flags;
        };
        const auto same_property = [](const PropertyRecord& a, const PropertyRecord& b) {
            return a.name == b.name && a.type_code == b.type_code && a.getter == b.getter && a.setter == b.setter &&
                   a.parameter == b.parameter;
        };
        const auto is_front = [](const auto& front, const auto& all, auto same) {
            return all.size() >= front.size() && std::equal(front.begin(), front.end(), all.begin(), same);
        };
        EXPECT_TRUE(is_front(methods_of(*c->parent), methods_of(*c), same_method));
        EXPECT_TRUE(is_front(properties_of(*c->parent), properties_of(*c), same_property));
        EXPECT_TRUE(is_front(events_of(*c->parent), events_of(*c),
                             [&](const auto& a, const auto& b) { return name_of(a) == name_of(b); }));
        EXPECT_GE(c->instance_size, c->parent->instance_size);
    }
}

// A slot holds its parent's function or one of the class's own records, under the name that the parent's has.
TEST(Records, Of_overrides_keep_the_places_of_the_slots) {
    for (const ClassRecord* c : all_classes()) {
        SCOPED_TRACE(view(c->name));
        const auto name_in = [](const ClassRecord& of, Function function) -> std::string {
            for (const MethodRecord& method : methods_of(of)) {
                if (method.function == function)
                    return std::string(view(method.name)) + " " + std::string(view(method.signature));
            }
            return {};
        };
        ASSERT_GE(c->vtable_size, c->parent == nullptr ? 0 : c->parent->vtable_size);
        for (std::int32_t slot = 0; slot < c->vtable_size; ++slot) {
            EXPECT_NE(name_in(*c, c->vtable[slot]), "") << slot;
            if (c->parent == nullptr || slot >= c->parent->vtable_size) continue;
            if (c->vtable[slot] == c->parent->vtable[slot]) continue;
            EXPECT_EQ(name_in(*c, c->vtable[slot]), name_in(*c->parent, c->parent->vtable[slot]));
        }
    }
}

TEST(Records, Of_events_and_interfaces_are_whole) {
    for (const ClassRecord* c : all_classes()) {
        SCOPED_TRACE(view(c->name));
        for (const EventRecord& event : events_of(*c)) EXPECT_TRUE(is_locked(event.name));
        for (const InterfaceEntry& entry : table(c->interfaces(), c->interface_count)) {
            EXPECT_EQ(entry.interface->is_interface, 1);
            EXPECT_GT(entry.operation_count, 0);
            for (const Function operation : table(entry.operations, entry.operation_count)) {
                EXPECT_NE(std::ranges::find(table(c->vtable, c->vtable_size), operation),
                          table(c->vtable, c->vtable_size).end());
            }
        }
        if (c->is_interface == 0) continue;
        EXPECT_EQ(c->method_count + c->event_count + c->property_count + c->vtable_size + c->instance_size, 0);
        EXPECT_EQ(c->parent, nullptr);
    }
}

}  // namespace
}  // namespace tavrik::test
