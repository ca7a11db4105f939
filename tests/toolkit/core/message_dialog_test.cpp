#include "ui/message_dialog.h"

#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/window.h"
#include "ui/window.h"

namespace tavrik::test {
namespace {

constexpr std::size_t kNone = 99;

class MessageDialogs : public testing::Test {
protected:
    MessageDialogs() {
        front_.press = [this](const front::MessageDescription& message, front::WindowFace* over) {
            told_ = message;
            over_.push_back(over);
            return pressed_;
        };
    }
    Ref<MessageDialogButton> pressing(std::size_t button) {
        pressed_ = button;
        return dialog_->ShowModal();
    }

    Balance balance_;
    RecordingFront front_;
    Ref<MessageDialog> dialog_ = make<MessageDialog>();
    front::MessageDescription told_;
    std::vector<front::WindowFace*> over_;
    std::size_t pressed_ = 0;
};

TEST_F(MessageDialogs, Are_told_as_they_are) {
    dialog_->set_Title("Tool"_s);
    dialog_->set_Message("Save?"_s);
    dialog_->set_Explanation("It was changed."_s);
    for (std::int32_t icon = -1; icon <= 3; ++icon) {
        dialog_->set_Icon(icon);
        pressing(0);
        EXPECT_EQ(static_cast<std::int32_t>(told_.icon), icon + 1);
    }
    EXPECT_EQ(told_.title + '|' + told_.text + '|' + told_.explanation, "Tool|Save?|It was changed.");
    for (const std::int32_t icon : {-2, 4}) {
        EXPECT_EQ(class_raised_by([&] { dialog_->set_Icon(icon); }), "OutOfBoundsException");
    }
    EXPECT_EQ(dialog_->Icon(), 3);
}

TEST_F(MessageDialogs, Show_the_visible_buttons_and_return_the_one_that_ended_them) {
    struct Case {
        bool action, cancel, other;
        std::vector<std::string> captions;
        std::size_t default_button, cancel_button;
        std::string results;  // the button for each press, and for the end of the program
    };
    const Case cases[] = {
        {true, false, false, {"OK"}, 0, 0, "ac"},
        {true, true, false, {"OK", "Cancel"}, 0, 1, "acc"},
        {true, true, true, {"OK", "Cancel", "Other"}, 0, 1, "acoc"},
        {true, false, true, {"OK", "Other"}, 0, 2, "aoc"},
        {false, true, true, {"Cancel", "Other"}, 2, 0, "coc"},
        {false, false, false, {"OK"}, 0, 0, "ac"},
    };
    const std::pair<Ref<MessageDialogButton>, char> letters[] = {
        {dialog_->ActionButton(), 'a'}, {dialog_->CancelButton(), 'c'}, {dialog_->AlternateActionButton(), 'o'}};
    for (const Case& each : cases) {
        dialog_->ActionButton()->set_Visible(each.action);
        dialog_->CancelButton()->set_Visible(each.cancel);
        dialog_->AlternateActionButton()->set_Visible(each.other);
        std::string results;
        for (std::size_t i = 0; i <= each.captions.size(); ++i) {
            const Ref<MessageDialogButton> result = pressing(i < each.captions.size() ? i : kNone);
            for (const auto& [button, letter] : letters) {
                if (button == result) results += letter;
            }
        }
        SCOPED_TRACE(testing::PrintToString(each.captions));
        EXPECT_EQ(results, each.results);
        EXPECT_EQ(told_.buttons, each.captions);
        EXPECT_EQ(told_.default_button, each.default_button);
        EXPECT_EQ(told_.cancel_button, each.cancel_button);
    }
}

TEST_F(MessageDialogs, Have_one_default_and_one_that_cancels_whichever_was_told_last) {
    const Ref<_CancelButton> cancel = dialog_->CancelButton();
    cancel->set_Visible(true);
    cancel->set_Default(true);
    EXPECT_FALSE(dialog_->ActionButton()->Default());
    dialog_->ActionButton()->set_Cancel(true);
    EXPECT_FALSE(cancel->Cancel());
    pressing(0);
    EXPECT_EQ(told_.default_button, 1U);
    EXPECT_EQ(told_.cancel_button, 0U);
    dialog_ = nullptr;
    cancel->set_Default(true);
    cancel->set_Caption("Keep"_s);
    EXPECT_EQ(cancel->Caption().view(), "Keep") << "a button may outlive its dialog";
}

TEST_F(MessageDialogs, Keep_their_buttons_whatever_is_assigned) {
    const Ref<MessageDialogButton> action = dialog_->ActionButton();
    for (const char* name : {"ActionButton", "CancelButton", "AlternateActionButton"}) {
        const PropertyRecord& property = *core::find_property(dialog_->record, name);
        reinterpret_cast<void (*)(Object*, std::int32_t, Object*)>(property.setter)(dialog_.object(), 0, nullptr);
        EXPECT_EQ(view(property.type_code).substr(0, 3), "o<_");
    }
    EXPECT_EQ(dialog_->ActionButton(), action);
    EXPECT_TRUE(dialog_->CancelButton() && dialog_->AlternateActionButton());
}

TEST_F(MessageDialogs, Are_shown_over_the_window_they_are_shown_within_or_else_the_frontmost) {
    const Ref<Window> windows[] = {make<Window>(), make<Window>()};
    for (const Ref<Window>& window : windows) {
        window->Window_();
        window->Show();
    }
    dialog_->ShowModalWithin(windows[0]);
    dialog_->ShowModal();
    dialog_->ShowModalWithin(nullptr);
    const auto face = [](const Ref<Window>& window) { return core::window_state(window.object()).face(); };
    EXPECT_EQ(over_, (std::vector{face(windows[0]), face(windows[1]), face(windows[1])}));
    for (const Ref<Window>& window : windows) window->Close();
}

TEST_F(MessageDialogs, Live_until_they_are_answered) {
    front_.when_message = [&] { dialog_ = nullptr; };
    EXPECT_EQ(dialog_.get()->ShowModal()->Caption().view(), "OK");
}

}  // namespace
}  // namespace tavrik::test
