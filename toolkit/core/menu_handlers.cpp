#include "toolkit/core/menu_handlers.h"

#include <tavrik/dictionary.h>
#include <tavrik/variant.h>

namespace tavrik::core {

void MenuHandlers::add(const String& item, Function handler) {
    if (!handlers_) handlers_ = std::make_unique<Handlers>();
    handlers_->insert_or_assign(std::string(item.view()), handler);
}

void MenuHandlers::add(Object* dictionary, const String& item, Function handler) {
    dictionaryValueSetter(dictionary, StringToVariant(item).object(), BooleanToVariant(true).object());
    add(item, handler);
}

bool MenuHandlers::call(Object* owner, std::string_view item) const {
    if (!handlers_) return false;
    const auto found = handlers_->find(item);
    if (found == handlers_->end() || found->second == nullptr) return false;
    return reinterpret_cast<bool (*)(Object*)>(found->second)(owner);
}

}  // namespace tavrik::core
