#include "toolkit/fronts/terminal/message_question.h"

#include "toolkit/fronts/terminal/captions.h"
#include "toolkit/fronts/terminal/command.h"
#include "toolkit/fronts/terminal/screen_text.h"

namespace tavrik::front::terminal {

MessageQuestion::MessageQuestion(const MessageDescription& message)
    : message_(message), pressed_(message.cancel_button) {}

std::string MessageQuestion::text() const { return message_text(message_); }

std::string MessageQuestion::take(std::string line) {
    const bool has_default = message_.default_button < message_.buttons.size();
    if (has_default && trimmed(line).empty()) {
        press(message_.default_button);
        return {};
    }
    if (const auto button = find_caption(line, message_.buttons)) {
        press(*button);
        return {};
    }
    return has_default ? "Type the caption of a button, or an empty line for the default one.\n"
                       : "Type the caption of a button.\n";
}

void MessageQuestion::press(std::size_t button) {
    pressed_ = button;
    end();
}

}  // namespace tavrik::front::terminal
