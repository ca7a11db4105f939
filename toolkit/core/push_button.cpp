#include "toolkit/core/control.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/pane.h"
#include "toolkit/core/reflection.h"

#include <tavrik/class_record.h>
#include <tavrik/push_button.h>

#include <memory>
#include <string>
#include <vector>

namespace tavrik {
namespace core {
namespace {

constinit Operation<void()> call_action{"PushButton", "_CallAction", "%%"};

class PushButtonState final : public ControlState, private front::ButtonListener {
public:
    using ControlState::ControlState;

    String caption;
    bool is_default = false;
    bool is_cancel = false;
    front::TextStyle style;
    std::vector<Ref<Object>> receivers;

    void push() {
        const Ref<Object> kept(self());
        if (!enabled_throughout()) return;
        for (const Ref<Object>& receiver : std::vector(receivers)) notify(receiver.object());
        call_action(self());
    }

protected:
    std::unique_ptr<front::ControlFace> make_face(front::ContainerFace& container,
                                                  front::ControlListener& listener) override {
        return container.make_button(listener, *this);
    }
    void apply_to(front::ControlFace& face) override {
        front::ButtonDescription button;
        describe(button);
        button.caption = caption.view();
        button.is_default = is_default;
        button.is_cancel = is_cancel;
        button.style = style;
        static_cast<front::ButtonFace&>(face).apply(button);
    }

private:
    void pressed() override {
        deliver([this] { push(); });
    }

    void notify(Object* receiver) {
        const Function* const operations =
            RuntimeLookupInterfaceVtable(receiver, need_class("actionNotificationReceiver"));
        reinterpret_cast<void (*)(Object*, Object*)>(operations[0])(receiver, self());
    }
};

PushButtonState& state_of(Object* button, const char* call = __builtin_FUNCTION()) {
    return static_cast<PushButtonState&>(control_state(button, call));
}

template <class Value>
void set(Object* button, Value PushButtonState::*part, Value value, const char* call = __builtin_FUNCTION()) {
    PushButtonState& state = state_of(button, call);
    state.*part = std::move(value);
    state.changed();
}

template <class Value>
void set_style(Object* button, Value front::TextStyle::*part, Value value, const char* call = __builtin_FUNCTION()) {
    PushButtonState& state = state_of(button, call);
    state.style.*part = std::move(value);
    state.changed();
}

}  // namespace

std::unique_ptr<ControlState> make_push_button_state(Object* button) {
    return std::make_unique<PushButtonState>(button);
}

}  // namespace core

using core::state_of;
using State = core::PushButtonState;
using Style = front::TextStyle;

void pbAddActionNotificationReceiver(Object* button, Object* receiver) {
    if (receiver == nullptr) RaiseNilObjectException();
    state_of(button).receivers.emplace_back(receiver);
}
void pbRemoveActionNotificationReceiver(Object* button, Object* receiver) {
    std::erase(state_of(button).receivers, Ref<Object>(receiver));
}

void PushButtonCreatePane(Object* button) { core::create_pane(button); }
void PushButtonDestructor(Object* button) { state_of(button).detach(); }
void pushButtonPush(Object* button) { state_of(button).push(); }

String pushButtonTitleGetter(Object* button, std::int32_t) { return state_of(button).caption; }
void pushButtonTitleSetter(Object* button, std::int32_t, const String& caption) {
    core::set(button, &State::caption, caption);
}
bool pushButtonDefaultGetter(Object* button, std::int32_t) { return state_of(button).is_default; }
void pushButtonDefaultSetter(Object* button, std::int32_t, bool is_default) {
    core::set(button, &State::is_default, is_default);
}
bool pushButtonCancelGetter(Object* button, std::int32_t) { return state_of(button).is_cancel; }
void pushButtonCancelSetter(Object* button, std::int32_t, bool is_cancel) {
    core::set(button, &State::is_cancel, is_cancel);
}
String pushButtonTextFontGetter(Object* button, std::int32_t) {
    return String(std::string_view(state_of(button).style.font));
}
void pushButtonTextFontSetter(Object* button, std::int32_t, const String& font) {
    core::set_style(button, &Style::font, std::string(font.view()));
}
std::int32_t pushButtonTextSizeGetter(Object* button, std::int32_t) { return state_of(button).style.size; }
void pushButtonTextSizeSetter(Object* button, std::int32_t, std::int32_t size) {
    core::set_style(button, &Style::size, size);
}
bool pushButtonBoldGetter(Object* button, std::int32_t) { return state_of(button).style.bold; }
void pushButtonBoldSetter(Object* button, std::int32_t, bool bold) { core::set_style(button, &Style::bold, bold); }
bool pushButtonItalicGetter(Object* button, std::int32_t) { return state_of(button).style.italic; }
void pushButtonItalicSetter(Object* button, std::int32_t, bool italic) {
    core::set_style(button, &Style::italic, italic);
}
bool pushButtonUnderlineGetter(Object* button, std::int32_t) { return state_of(button).style.underline; }
void pushButtonUnderlineSetter(Object* button, std::int32_t, bool underline) {
    core::set_style(button, &Style::underline, underline);
}

}  // namespace tavrik
