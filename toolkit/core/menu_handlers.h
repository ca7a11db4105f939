#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

#include <map>
#include <string>

namespace tavrik::core {

// What a control, a window or the application does on menu items, by their names. A window and the application have a
// dictionary in the class layer too, which tells that there is a handler; this has the functions.
class MenuHandlers {
public:
    void add(const String& item, Function handler);
    void add(Object* dictionary, const String& item, Function handler);
    bool has(std::string_view item) const { return handlers_.find(item) != handlers_.end(); }
    // Calls the handler with its owner. False without one, and when it leaves the item to others.
    bool call(Object* owner, std::string_view item) const;

private:
    std::map<std::string, Function, std::less<>> handlers_;
};

}  // namespace tavrik::core
