#include "toolkit/core/program.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/window.h"
#include "toolkit/core/window_list.h"

#include <tavrik/exception.h>
#include <tavrik/fields.h>
#include <tavrik/message_dialog.h>
#include <tavrik/runtime.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace tavrik {
namespace {

enum Selector : std::size_t { kCancels = 0, kActs = 1, kOther = 2 };
enum Flag : std::size_t { kVisible = 0, kDefault = 1, kCancel = 2 };

constexpr std::array kClasses{"_CancelButton", "_ActionButton", "_AlternateActionButton"};
// As people read them: what acts comes first.
constexpr std::array kShown{kActs, kCancels, kOther};

struct DialogState : NativeState {
    ~DialogState() override;
    std::array<Ref<Object>, kClasses.size()> buttons;  // by their selectors
};

struct ButtonState : NativeState {
    std::string caption;
    std::array<bool, 3> flags{};  // by their selectors
    DialogState* dialog = nullptr;
};

ButtonState& button_state(Object* button) {
    if (button == nullptr) RaiseNilObjectException();
    if (button->native == nullptr) button->native = new ButtonState;
    return *native<ButtonState>(button);
}

bool has(const Ref<Object>& button, Flag flag) { return button_state(button.object()).flags[flag]; }

// Buttons that somebody holds outlive their dialog.
DialogState::~DialogState() {
    for (const Ref<Object>& button : buttons) button_state(button.object()).dialog = nullptr;
}

MessageDialogObject& dialog_of(Object* dialog) {
    if (dialog == nullptr) RaiseNilObjectException();
    return *static_cast<MessageDialogObject*>(dialog);
}

DialogState& state_of(Object* dialog) { return *native<DialogState>(&dialog_of(dialog)); }

bool& flag_of(Object* button, std::int32_t which) {
    ButtonState& state = button_state(button);
    if (which < 0 || which >= static_cast<std::int32_t>(state.flags.size())) {
        RuntimeRaise("OutOfBoundsException", "a message dialog's button has no such setting");
    }
    return state.flags[static_cast<std::size_t>(which)];
}

void set_up(Object* button, std::string caption, std::array<bool, 3> flags) {
    button_state(button).caption = std::move(caption);
    button_state(button).flags = flags;
}

// A dialog without a button could never be left.
std::vector<Ref<Object>> shown_buttons(const DialogState& dialog) {
    std::vector<Ref<Object>> shown;
    for (const Selector which : kShown) {
        if (has(dialog.buttons[which], kVisible)) shown.push_back(dialog.buttons[which]);
    }
    if (shown.empty()) shown.push_back(dialog.buttons[kActs]);
    return shown;
}

std::size_t place_of(Flag flag, const std::vector<Ref<Object>>& shown) {
    const auto found = std::ranges::find_if(shown, [flag](const Ref<Object>& button) { return has(button, flag); });
    return static_cast<std::size_t>(found - shown.begin());
}

front::MessageDescription describe(const MessageDialogObject& dialog, const std::vector<Ref<Object>>& shown) {
    front::MessageDescription message{.title = std::string(view(dialog.mTitle)),
                                      .text = std::string(view(dialog.mMessage)),
                                      .explanation = std::string(view(dialog.mExplanation)),
                                      .icon = static_cast<front::MessageIcon>(dialog.mIcon + 1),
                                      .buttons = {},
                                      .default_button = place_of(kDefault, shown),
                                      // A single button is all that a person can mean.
                                      .cancel_button = shown.size() == 1 ? 0 : place_of(kCancel, shown)};
    for (const Ref<Object>& button : shown) message.buttons.push_back(button_state(button.object()).caption);
    return message;
}

Ref<Object> show(MessageDialogObject& dialog, const std::function<front::WindowFace*()>& over) {
    // What happens behind the dialog may drop the last reference to it.
    const auto held = Ref<Object>::hold(&dialog);
    const DialogState& state = state_of(&dialog);
    const std::vector<Ref<Object>> shown = shown_buttons(state);
    const std::size_t pressed = core::show_message(describe(dialog, shown), over);
    return pressed < shown.size() ? shown[pressed] : state.buttons[kCancels];
}

}  // namespace

void MessageDialogInitializer(Object* dialog) {
    if (dialog_of(dialog).native != nullptr) return;
    auto state = std::make_unique<DialogState>();
    for (std::size_t i = 0; i < kClasses.size(); ++i) {
        state->buttons[i] = RuntimeNewObject(core::need_class(kClasses[i]));
        button_state(state->buttons[i].object()).dialog = state.get();
    }
    set_up(state->buttons[kActs].object(), "OK", {true, true, false});
    set_up(state->buttons[kCancels].object(), "Cancel", {false, false, true});
    set_up(state->buttons[kOther].object(), "Other", {false, false, false});
    dialog->native = state.release();
}

void MessageDialogFinalizer(Object* dialog) {
    MessageDialogObject& room = dialog_of(dialog);
    for (StringRecord** text : {&room.mTitle, &room.mMessage, &room.mExplanation}) stringSetter(text, 0, {});
    delete std::exchange(room.native, nullptr);
}

Ref<Object> MessageDialogShowModal(Object* dialog) { return show(dialog_of(dialog), core::frontmost_face); }

Ref<Object> MessageDialogShowModalWithin(Object* dialog, Object* window) {
    if (window == nullptr) return MessageDialogShowModal(dialog);
    const Ref<Object> kept(window);
    return show(dialog_of(dialog), [window] { return core::window_state(window).face(); });
}

String StringToSSGetter(const void* object, std::int32_t offset) { return stringGetter(object, offset); }
void SSToStringSetter(void* object, std::int32_t offset, const String& text) { stringSetter(object, offset, text); }

void MDIconSetter(void* object, std::int32_t offset, std::int32_t icon) {
    if (icon < -1 || icon > 3) {
        RuntimeRaise("OutOfBoundsException",
                     "a message dialog has no icon " + std::to_string(icon) + ": they go from -1 to 3");
    }
    intSetter(object, offset, icon);
}

Ref<Object> MDButtonGetter(Object* dialog, std::int32_t which) {
    const auto& buttons = state_of(dialog).buttons;
    if (which >= 0 && which < static_cast<std::int32_t>(buttons.size()))
        return buttons[static_cast<std::size_t>(which)];
    RuntimeRaise("OutOfBoundsException", "a message dialog has no such button");
}

bool MDBBooleanGetter(Object* button, std::int32_t which) { return flag_of(button, which); }

void MDBBooleanSetter(Object* button, std::int32_t which, bool value) {
    bool& flag = flag_of(button, which);
    const DialogState* const dialog = button_state(button).dialog;
    const bool is_of_one_button = which != static_cast<std::int32_t>(kVisible);
    if (value && is_of_one_button && dialog != nullptr) {
        for (const Ref<Object>& other : dialog->buttons) flag_of(other.object(), which) = false;
    }
    flag = value;
}

String MDBCaptionGetter(Object* button, std::int32_t) { return String(std::string_view(button_state(button).caption)); }
void MDBCaptionSetter(Object* button, std::int32_t, const String& caption) {
    button_state(button).caption = caption.view();
}

}  // namespace tavrik
