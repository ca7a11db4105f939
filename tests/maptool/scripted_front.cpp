#include "tests/maptool/scripted_front.h"

#include <algorithm>
#include <stdexcept>

namespace tavrik {
namespace {

template <class Items, class Name>
auto& find_named(Items& items, std::string_view name, Name name_of) {
    const auto found = std::ranges::find(items, name, name_of);
    if (found == items.end()) throw std::runtime_error("nothing on the screen is called " + std::string(name));
    return *found;
}

}  // namespace

ShownButton::ShownButton(ShownWindow& window, front::ButtonListener& listener) : window_(window), listener_(listener) {
    window_.buttons.push_back(this);
}
ShownButton::~ShownButton() { std::erase(window_.buttons, this); }

ShownWindow::ShownWindow(ScriptedFront& front, front::WindowListener& listener) : front_(front), listener_(listener) {
    front_.windows.push_back(this);
}
ShownWindow::~ShownWindow() { std::erase(front_.windows, this); }

std::unique_ptr<front::ButtonFace> ShownWindow::make_button(front::ButtonListener& listener) {
    return std::make_unique<ShownButton>(*this, listener);
}

ShownButton& ShownWindow::button(std::string_view caption) const {
    return *find_named(buttons, caption, [](const ShownButton* button) { return button->description.caption; });
}

void ShownWindow::choose(std::string_view menu, std::string_view entry) {
    const auto& entries = find_named(menus, menu, &front::MenuDescription::text).children;
    listener_.menu_chosen(find_named(entries, entry, &front::MenuDescription::text).id);
}

std::unique_ptr<front::WindowFace> ScriptedFront::make_window(front::WindowListener& listener) {
    before_window();
    return std::make_unique<ShownWindow>(*this, listener);
}

std::size_t ScriptedFront::show_message(const front::MessageDescription& message, front::WindowFace*) {
    messages.push_back(message.text);
    when_message();
    return message.default_button;
}

std::optional<std::string> ScriptedFront::choose_file(const front::FileChoice& choice, front::WindowFace*) {
    choices.push_back(choice);
    when_choice();
    return answer_;
}

void ScriptedFront::load(std::string path) {
    answer_ = std::move(path);
    press("Load Map");
}

void ScriptedFront::load_and_cancel() {
    answer_.reset();
    press("Load Map");
}

}  // namespace tavrik
