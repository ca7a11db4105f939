#include "toolkit/core/event_scope.h"
#include "toolkit/core/file_type.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/program.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/streams.h"
#include "toolkit/core/window.h"

#include <tavrik/dialogs.h>
#include <tavrik/exception.h>

namespace tavrik {

void RuntimeMsgBox(const String& text) {
    core::show_message({.text = std::string(text.view()), .icon = front::MessageIcon::kNote});
}

Ref<Object> RuntimeGetOpenFolderItem(const String& filter) {
    core::flush_all_streams();
    front::FileChoice choice;
    choice.filters = core::filters_for(filter.view());
    std::optional<std::string> path =
        core::on_main_stack([&] { return core::front().choose_file(choice, core::frontmost_face()); });
    if (path) return core::make_folder_item(std::move(*path));
    core::EventScope::note_cancel();
    return nullptr;
}

}  // namespace tavrik
