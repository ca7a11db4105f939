#include "toolkit/core/file_choice.h"
#include "toolkit/core/file_type.h"
#include "toolkit/core/main_thread.h"
#include "toolkit/core/window.h"

#include <tavrik/exception.h>
#include <tavrik/fields.h>
#include <tavrik/folder_item.h>
#include <tavrik/folder_item_dialog.h>

#include <filesystem>
#include <system_error>
#include <utility>

namespace tavrik {
namespace {

enum class DialogKind { kNone, kOpen };

// What the classes of dialogs differ by.
struct DialogState : NativeState {
    DialogKind kind = DialogKind::kNone;
};

FolderItemDialogObject& dialog_of(Object* dialog) {
    if (dialog == nullptr) RaiseNilObjectException();
    if (dialog->native == nullptr) dialog->native = new DialogState;
    return *static_cast<FolderItemDialogObject*>(dialog);
}

DialogKind kind_of(const FolderItemDialogObject& dialog) { return native<DialogState>(&dialog)->kind; }

std::string path_of_folder(Object* item) {
    if (item == nullptr) return {};
    std::string path(fileAbsolutePathGetter(item, 0).view());
    std::error_code error;
    return std::filesystem::is_directory(path, error) ? path : std::string();
}

// Zeros are what a new object has, and stand for the platform's choice.
std::optional<front::Point> position_of(const FolderItemDialogObject& dialog) {
    if (dialog.mLeft == 0 && dialog.mTop == 0) return std::nullopt;
    return front::Point{.left = dialog.mLeft, .top = dialog.mTop};
}

front::FileChoice choice_of(const FolderItemDialogObject& dialog) {
    return {.title = std::string(view(dialog.mTitle)),
            .prompt = std::string(view(dialog.mPromptText)),
            .action_caption = std::string(view(dialog.mActionButtonCaption)),
            .cancel_caption = std::string(view(dialog.mCancelButtonCaption)),
            // Where to look is told by the folder alone.
            .suggested_name = std::filesystem::path(view(dialog.mSuggestedFileName)).filename(),
            .initial_folder = path_of_folder(dialog.mInitialDirectory),
            .filters = core::filters_for(view(dialog.mFilter)),
            .position = position_of(dialog)};
}

Ref<Object> show(FolderItemDialogObject& dialog, const std::function<front::WindowFace*()>& over) {
    if (kind_of(dialog) == DialogKind::kNone) {
        RuntimeRaise("UnsupportedFormatException",
                     "a FolderItemDialog can't be shown: it isn't told what to choose for, as an OpenDialog is");
    }
    // What happens behind the dialog may drop the last reference to it.
    const auto held = Ref<Object>::hold(&dialog);
    Ref<Object> chosen = core::choose_item(choice_of(dialog), over);
    objSetter(&dialog.mResult, 0, chosen.object());
    return chosen;
}

}  // namespace

void FolderItemDialogInitializer(Object* dialog) { dialog_of(dialog); }

void FolderItemDialogFinalizer(Object* dialog) {
    FolderItemDialogObject& room = dialog_of(dialog);
    for (StringRecord** text : {&room.mTitle, &room.mActionButtonCaption, &room.mCancelButtonCaption,
                                &room.mSuggestedFileName, &room.mPromptText, &room.mFilter}) {
        stringSetter(text, 0, {});
    }
    for (Object** item : {&room.mInitialDirectory, &room.mResult}) objSetter(item, 0, nullptr);
    delete std::exchange(room.native, nullptr);
}

void OpenDialogInitializer(Object* dialog) {
    dialog_of(dialog);
    native<DialogState>(dialog)->kind = DialogKind::kOpen;
}

Ref<Object> FolderItemDialogShowModal(Object* dialog) {
    core::need_main_thread();
    return show(dialog_of(dialog), []() -> front::WindowFace* { return nullptr; });
}

Ref<Object> FolderItemDialogShowWithin(Object* dialog, Object* window) {
    core::need_main_thread();
    const auto held = Ref<Object>::hold(window);
    return show(dialog_of(dialog),
                [window] { return window == nullptr ? nullptr : core::window_state(window).outermost().face(); });
}

}  // namespace tavrik
