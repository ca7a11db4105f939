#include "toolkit/core/control.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"

#include <tavrik/exception.h>
#include <tavrik/push_button.h>

#include <memory>
#include <string>

namespace tavrik {
namespace core {
namespace {

constinit Operation<void()> call_action{"PushButton", "_CallAction", "%%"};
constinit Operation<void()> got_focus{"PushButton", "_GotFocus", "%%"};
constinit Operation<void()> lost_focus{"PushButton", "_LostFocus", "%%"};

class PushButtonState final : public ControlState, private front::ButtonListener {
public:
    using ControlState::ControlState;

    std::string caption;
    bool is_default = false;
    bool is_cancel = false;
    front::TextStyle style;

    void attach(front::WindowFace& window) override {
        face_ = window.make_button(*this);
        changed();
    }
    void detach() override {
        on_main_stack([this] { face_.reset(); });
    }

    void changed() override {
        if (!face_) return;
        const front::ButtonDescription description{.name = std::string(text_property(self(), "Name").view()),
                                                   .caption = caption,
                                                   .bounds = bounds,
                                                   .tab_index = tab_index,
                                                   .visible = visible,
                                                   .enabled = enabled,
                                                   .is_default = is_default,
                                                   .is_cancel = is_cancel,
                                                   .help = help,
                                                   .style = style};
        on_main_stack([&] { face_->apply(description); });
    }
    void set_focus() override {
        if (face_) on_main_stack([this] { face_->set_focus(); });
    }

    void push() {
        const Ref<Object> kept(self());
        if (enabled) call_action(self());
    }

private:
    void pressed() override {
        deliver([this] { push(); });
    }
    void focus_changed(bool has_focus) override {
        deliver([this, has_focus] {
            const Ref<Object> kept(self());
            has_focus ? got_focus(self()) : lost_focus(self());
        });
    }

    std::unique_ptr<front::ButtonFace> face_;
};

PushButtonState& state_of(Object* button) { return static_cast<PushButtonState&>(control_state(button)); }

template <class Value>
void set(Object* button, Value PushButtonState::*part, Value value) {
    PushButtonState& state = state_of(button);
    state.*part = std::move(value);
    state.changed();
}

template <class Value>
void set_style(Object* button, Value front::TextStyle::*part, Value value) {
    PushButtonState& state = state_of(button);
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

void PushButtonCreatePane(Object* button) { core::create_pane(button); }
void PushButtonDestructor(Object* button) { state_of(button).detach(); }
void pushButtonPush(Object* button) { state_of(button).push(); }

String pushButtonTitleGetter(Object* button, std::int32_t) {
    return String(std::string_view(state_of(button).caption));
}
void pushButtonTitleSetter(Object* button, std::int32_t, const String& caption) {
    core::set(button, &State::caption, std::string(caption.view()));
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
