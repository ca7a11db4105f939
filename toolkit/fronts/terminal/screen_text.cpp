#include "toolkit/fronts/terminal/screen_text.h"

#include "toolkit/fronts/terminal/captions.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace tavrik::front::terminal {
namespace {

std::string marks(const MenuEntry& entry) {
    if (entry.checked) return entry.enabled ? " (checked)" : " (checked, off)";
    return entry.enabled ? "" : " (off)";
}

std::string menu_lines(std::span<const MenuEntry> entries) {
    std::string lines;
    const std::string* menu = nullptr;
    for (const MenuEntry& entry : entries) {
        if (menu != nullptr && *menu == entry.menu) {
            lines += ", ";
        } else {
            if (menu != nullptr) lines += '\n';
            lines += entry.menu + ": ";
            menu = &entry.menu;
        }
        lines += entry.text + marks(entry);
    }
    return entries.empty() ? lines : lines + '\n';
}

std::string control_line(std::size_t number, const ControlView& control) {
    std::string line = std::to_string(number) + '.';
    if (!control.caption.empty()) line += ' ' + control.caption;
    if (!control.value.empty()) line += ": " + control.value;
    if (!control.enabled) line += " (off)";
    return line + '\n';
}

std::string title_line(std::string_view title) { return title.empty() ? "" : printable(title) + '\n'; }

// A text of several lines has them indented from the second on, so that none can be taken for a line of the screen.
std::string paragraph(std::string_view text) {
    std::string lines;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\r\n");
        if (!lines.empty() && end != 0) lines += "    ";
        lines += printable(text.substr(0, end)) + '\n';
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
    }
    return lines;
}

std::string filter_label(const FileFilter& filter) {
    std::string label = printable(filter.label);
    for (std::size_t index = 0; index < filter.extensions.size(); ++index) {
        label += (index == 0 ? " (*." : ", *.") + printable(filter.extensions[index]);
    }
    return filter.extensions.empty() ? label : label + ')';
}

}  // namespace

std::string window_text(const WindowView& window) {
    std::string text = window.title + '\n' + menu_lines(window.entries);
    for (std::size_t index = 0; index < window.controls.size(); ++index) {
        text += control_line(index + 1, window.controls[index]);
    }
    return text;
}

std::string menu_text(std::span<const MenuEntry> entries) {
    std::string text;
    for (std::size_t index = 0; index < entries.size(); ++index) {
        text += std::to_string(index + 1) + ". " + entries[index].path() + marks(entries[index]) + '\n';
    }
    return text + "Number or name of an entry, or an empty line for none:\n";
}

std::string message_text(const MessageDescription& message) {
    std::string text = title_line(message.title) + paragraph(message.text) + paragraph(message.explanation);
    std::string_view separator = "Buttons: ";
    for (std::size_t index = 0; index < message.buttons.size(); ++index) {
        text += separator;
        text += printed_caption(message.buttons[index]);
        if (index == message.default_button) text += " (default)";
        separator = ", ";
    }
    return text + '\n';
}

std::string file_choice_text(const FileChoice& choice) {
    std::string text = title_line(choice.title) + paragraph(choice.prompt);
    if (!choice.filters.empty()) {
        text += "Files: ";
        for (const FileFilter& filter : choice.filters) text += filter_label(filter) + ", ";
        text += "All files\n";
    }
    if (!choice.initial_folder.empty()) text += "Folder: " + printable(choice.initial_folder) + '\n';
    if (!choice.suggested_name.empty()) text += "Suggested: " + printable(choice.suggested_name) + '\n';
    return text + path_prompt(choice);
}

// "Load: path, or an empty line for Leave:"
std::string path_prompt(const FileChoice& choice) {
    const std::string action = printed_caption(choice.action_caption);
    const std::string cancel = printed_caption(choice.cancel_caption);
    return (action.empty() ? "Path" : action + ": path") + ", or an empty line " +
           (cancel.empty() ? "to cancel" : "for " + cancel) + ":\n";
}

}  // namespace tavrik::front::terminal
