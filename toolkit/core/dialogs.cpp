#include "toolkit/core/file_choice.h"
#include "toolkit/core/file_type.h"
#include "toolkit/core/main_thread.h"
#include "toolkit/core/program.h"
#include "toolkit/core/window_list.h"

#include <tavrik/dialogs.h>
#include <tavrik/exception.h>

namespace tavrik {

void RuntimeMsgBox(const String& text) {
    core::need_main_thread();
    core::show_message({.text = std::string(text.view()), .icon = front::MessageIcon::kNote});
}

Ref<Object> RuntimeGetOpenFolderItem(const String& filter) {
    core::need_main_thread();
    front::FileChoice choice;
    choice.filters = core::filters_for(filter.view());
    return core::choose_item(choice, core::frontmost_face);
}

}  // namespace tavrik
