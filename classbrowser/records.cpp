#include "classbrowser/records.h"

#include "classbrowser/json.h"

#include <tavrik/class_record.h>

#include <algorithm>
#include <map>
#include <set>
#include <span>
#include <vector>

namespace tavrik::classbrowser {
namespace {

template <class Record>
std::span<const Record> table(const Record* records, std::int32_t count) {
    return {records, static_cast<std::size_t>(count)};
}

std::span<const MethodRecord> methods_of(const ClassRecord& record) {
    return table(record.methods, record.method_count);
}

// Behind the inherited records an application class leaves some blank.
std::int32_t first_own_method(const ClassRecord& record) {
    std::int32_t index = record.parent == nullptr ? 0 : record.parent->method_count;
    while (index < record.method_count && record.methods[index].name == nullptr) ++index;
    return index;
}

std::int32_t first_own_property(const ClassRecord& record) {
    return record.parent == nullptr ? 0 : record.parent->property_count;
}

// Small numbers for pointers: 1 and on, in the order in which they are met; 0 for nil.
class Numbers {
public:
    std::int64_t of(Function function) {
        if (function == nullptr) return 0;
        return numbers_.try_emplace(function, std::ssize(numbers_) + 1).first->second;
    }

private:
    std::map<Function, std::int64_t> numbers_;
};

class Writer {
public:
    std::string write(std::span<const ClassRecord* const> classes) {
        json_.object([&] {
            json_.key("classes").array([&] {
                for (const ClassRecord* record : classes) write(*record);
            });
            json_.key("counts").object([&] { write_counts(classes); });
        });
        return json_.line();
    }

private:
    void write(const ClassRecord& record) {
        json_.object([&] {
            json_.key("name").text(view(record.name));
            json_.key("parent");
            record.parent == nullptr ? json_.null() : json_.text(view(record.parent->name));
            json_.key("number").number(RuntimeClassNumber(&record));
            json_.key("interface").boolean(record.is_interface != 0);
            json_.key("size").number(record.instance_size);
            json_.key("init").boolean(record.init != nullptr);
            json_.key("destructor").boolean(record.destructor != nullptr);
            json_.key("exit").boolean(record.exit != nullptr);
            json_.key("method_total").number(record.method_count);
            json_.key("event_total").number(record.event_count);
            json_.key("property_total").number(record.property_count);
            json_.key("own_methods_at").number(first_own_method(record));
            json_.key("vtable").array([&] { write_vtable(record); });
            write_all("methods", methods_of(record));
            write_all("events", table(record.events, record.event_count));
            write_all("properties", table(record.properties, record.property_count));
            write_all("interfaces", table(record.interfaces(), record.interface_count));
        });
    }

    template <class Record>
    void write_all(std::string_view key, std::span<const Record> records) {
        json_.key(key).array([&] {
            for (const Record& record : records) json_.object([&] { write_parts(record); });
        });
    }

    void write_vtable(const ClassRecord& record) {
        for (const Function slot : table(record.vtable, record.vtable_size)) {
            json_.array([&] {
                for (const MethodRecord& method : methods_of(record)) {
                    if (method.function == slot) json_.text(view(method.name));
                }
            });
        }
    }

    void write_member(const MemberRecord& member, std::string_view type_key, const StringRecord* type) {
        json_.key("name").text(view(member.name));
        json_.key(type_key).text(view(type));
        json_.key("flags").number(member.flags);
        json_.key("attributes").array([&] {
            for (const AttributeEntry& entry : table(member.attributes, member.attribute_count)) {
                json_.text(view(entry.name));
            }
        });
    }

    void write_parts(const MethodRecord& method) {
        write_member(method, "signature", method.signature);
        json_.key("invoker").number(invokers_.of(method.invoker));
        json_.key("function").number(functions_.of(method.function));
    }
    void write_parts(const EventRecord& event) {
        json_.key("name").text(view(event.name));
        json_.key("handled").boolean(event.handler != nullptr);
    }
    void write_parts(const PropertyRecord& property) {
        write_member(property, "type", property.type_code);
        json_.key("get").boolean(property.getter != nullptr);
        json_.key("set").boolean(property.setter != nullptr);
    }
    void write_parts(const InterfaceEntry& entry) {
        json_.key("name").text(view(entry.interface->name));
        json_.key("operations").number(entry.operation_count);
    }

    void write_counts(std::span<const ClassRecord* const> classes) {
        std::set<Function> thunks;
        std::set<std::string_view> signatures;
        std::int64_t methods = 0;
        std::int64_t properties = 0;
        for (const ClassRecord* record : classes) {
            for (const MethodRecord& method :
                 methods_of(*record).subspan(static_cast<std::size_t>(first_own_method(*record)))) {
                thunks.insert(method.invoker);
                signatures.insert(view(method.signature));
                ++methods;
            }
            properties += record->property_count - first_own_property(*record);
        }
        json_.key("thunks").number(std::ssize(thunks));
        json_.key("signatures").number(std::ssize(signatures));
        json_.key("method_records").number(methods);
        json_.key("property_records").number(properties);
    }

    Json json_;
    Numbers invokers_;
    Numbers functions_;
};

}  // namespace

std::string records_as_json() {
    std::vector<const ClassRecord*> classes;
    for (const ClassRecord* record = RuntimeGetClassList(); record != nullptr; record = record->next) {
        classes.push_back(record);
    }
    std::ranges::reverse(classes);
    return Writer().write(classes);
}

}  // namespace tavrik::classbrowser
