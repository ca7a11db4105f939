#include "toolkit/core/file_choice.h"

#include "toolkit/core/event_scope.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/program.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/streams.h"

#include <utility>

namespace tavrik::core {

Ref<Object> choose_item(const front::FileChoice& choice, const std::function<front::WindowFace*()>& over) {
    flush_all_streams();
    std::optional<std::string> path = on_main_stack([&] { return front().choose_file(choice, over()); });
    if (path) return make_folder_item(std::move(*path));
    EventScope::note_cancel();
    return nullptr;
}

}  // namespace tavrik::core
