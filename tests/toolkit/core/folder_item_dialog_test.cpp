#include "data/file_type.h"
#include "data/folder_item.h"
#include "data/open_dialog.h"
#include "runtime/tavrik_module.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/window.h"
#include "ui/window.h"

namespace tavrik::test {
namespace {

class OpenDialogs : public testing::Test {
protected:
    Ref<FolderItem> item(const std::string& name) {
        return static_ref<FolderItem>(core::make_folder_item(folder_.file(name)));
    }
    void answer(const std::string& name) {
        front_.when_choice = [path = folder_.file(name)](auto*) { return path; };
    }
    void cancel() {
        front_.when_choice = [](auto*) { return std::nullopt; };
    }
    // What the front is told on a showing.
    front::FileChoice told() {
        dialog_->ShowModal();
        return front_.choices.back();
    }

    Balance balance_;
    TemporaryFolder folder_;
    RecordingFront front_;
    Ref<OpenDialog> dialog_ = make<OpenDialog>();
};

TEST_F(OpenDialogs, Return_the_chosen_file_and_keep_it_as_the_result) {
    answer("valley.map");
    const Ref<FolderItem> chosen = dialog_->ShowModal();
    EXPECT_EQ(chosen->AbsolutePath().view(), folder_.file("valley.map"));
    EXPECT_EQ(dialog_->Result(), chosen);
    cancel();
    EXPECT_FALSE(dialog_->ShowModal());
    EXPECT_FALSE(dialog_->Result()) << "the last showing counts";
}

TEST_F(OpenDialogs, List_their_properties_with_the_working_object_last) {
    std::string names;
    for (std::int32_t i = 0; i < dialog_->record->property_count; ++i) {
        names += std::string(view(dialog_->record->properties[i].name)) + ' ';
    }
    EXPECT_EQ(names,
              "Top Left InitialDirectory Result Filter Title ActionButtonCaption CancelButtonCaption SuggestedFileName "
              "PromptText _mImp ");
    const PropertyRecord& last = dialog_->record->properties[10];
    EXPECT_EQ(view(last.type_code), "o<_FolderItemDialogImp>");
    EXPECT_EQ(last.flags, kPublic | kWritable);
    const Ref<FolderItem> stored = item("valley.map");
    objSetter(dialog_.object(), last.parameter, stored.object());
    EXPECT_EQ(dialog_->_mImp.object(), stored.object());
}

TEST_F(OpenDialogs, Keep_their_result_whatever_is_assigned) {
    answer("valley.map");
    const Ref<FolderItem> chosen = dialog_->ShowModal();
    const PropertyRecord& result = *core::find_property(dialog_->record, "Result");
    reinterpret_cast<void (*)(Object*, std::int32_t, Object*)>(result.setter)(dialog_.object(), 0, nullptr);
    EXPECT_EQ(dialog_->Result(), chosen);
}

TEST_F(OpenDialogs, Tell_the_front_what_they_were_told) {
    const front::FileChoice plain = told();
    EXPECT_EQ(plain.title + plain.prompt + plain.action_caption + plain.cancel_caption + plain.suggested_name +
                  plain.initial_folder,
              "");
    EXPECT_TRUE(plain.filters.empty());
    EXPECT_FALSE(plain.position);

    const Ref<FileType> maps = make<FileType>();
    maps->set_Name("map"_s);
    dialog_->set_Filter(maps->Operator_Convert());
    dialog_->set_Title("Load"_s);
    dialog_->set_PromptText("Which map?"_s);
    dialog_->set_ActionButtonCaption("Load it"_s);
    dialog_->set_CancelButtonCaption("Leave"_s);
    dialog_->set_SuggestedFileName("../hills/valley.map"_s);
    dialog_->set_InitialDirectory(item("."));
    dialog_->set_Top(-7);
    const front::FileChoice full = told();
    EXPECT_EQ(full.title, "Load");
    EXPECT_EQ(full.prompt, "Which map?");
    EXPECT_EQ(full.action_caption, "Load it");
    EXPECT_EQ(full.cancel_caption, "Leave");
    EXPECT_EQ(full.suggested_name, "valley.map");
    EXPECT_TRUE(std::filesystem::equivalent(full.initial_folder, folder_.path()));
    EXPECT_EQ(full.position, (front::Point{.left = 0, .top = -7}));
    ASSERT_EQ(full.filters.size(), 1U);
    EXPECT_EQ(full.filters[0].label, "map");
}

TEST_F(OpenDialogs, Pass_over_an_initial_directory_that_is_no_folder) {
    folder_.new_file("valley.map", "");
    for (const char* name : {"valley.map", "nowhere"}) {
        dialog_->set_InitialDirectory(item(name));
        EXPECT_EQ(told().initial_folder, "") << name;
    }
}

TEST_F(OpenDialogs, Are_shown_over_the_window_they_are_shown_within) {
    std::vector<front::WindowFace*> over;
    front_.when_choice = [&](front::WindowFace* face) {
        over.push_back(face);
        return std::nullopt;
    };
    const Ref<Window> window = make<Window>();
    window->Window_();
    window->Show();
    front::WindowFace* const face = core::window_state(window.object()).face();
    ASSERT_NE(face, nullptr);
    dialog_->ShowModal();
    dialog_->ShowModalWithin(window);
    window->Close();
    dialog_->ShowModalWithin(window);
    dialog_->ShowModalWithin(nullptr);
    EXPECT_EQ(over, (std::vector<front::WindowFace*>{nullptr, face, nullptr, nullptr}));
}

TEST_F(OpenDialogs, Live_until_they_are_answered) {
    front_.when_choice = [&](auto*) {
        dialog_ = nullptr;
        return folder_.file("valley.map");
    };
    EXPECT_EQ(dialog_.get()->ShowModal()->Name().view(), "valley.map");
}

TEST_F(OpenDialogs, Excuse_what_follows_a_cancel) {
    core::deliver([&] { dialog_->ShowModal()->Name(); });
    EXPECT_TRUE(front_.messages.empty());
    core::deliver([&] { Tavrik::GetOpenFolderItem(String())->Name(); });
    EXPECT_TRUE(front_.messages.empty());
    core::deliver([&] { dialog_->Result()->Name(); });
    EXPECT_EQ(front_.messages.size(), 1U) << "nothing was cancelled in this event";
}

TEST_F(OpenDialogs, Alone_can_be_shown) {
    const Ref<FolderItemDialog> plain = make<FolderItemDialog>();
    EXPECT_EQ(class_raised_by([&] { plain->ShowModal(); }), "UnsupportedFormatException");
    EXPECT_EQ(class_raised_by([&] { plain->ShowModalWithin(nullptr); }), "UnsupportedFormatException");
    EXPECT_TRUE(front_.choices.empty());
}

}  // namespace
}  // namespace tavrik::test
