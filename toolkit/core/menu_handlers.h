#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

#include <map>
#include <memory>
#include <string>

namespace tavrik::core {

// What a control, a window or the application does on menu items, by their names. A window and the application have a
// dictionary in the class layer too, which tells that there is a handler; this has the functions.
class MenuHandlers {
public:
    void add(const String& item, Function handler);
    void add(Object* dictionary, const String& item, Function handler);
    bool has(std::string_view item) const { return handlers_ && handlers_->contains(item); }
    // Calls the handler with its owner. False without one, and when it leaves the item to others.
    bool call(Object* owner, std::string_view item) const;

private:
    using Handlers = std::map<std::string, Function, std::less<>>;

    std::unique_ptr<Handlers> handlers_;  // most have none
};

}  // namespace tavrik::core
