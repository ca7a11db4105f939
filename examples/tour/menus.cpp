#include "examples/tour/menus.h"

#include "ui/quit_menu_item.h"

namespace tavrik::tour {

Ref<MenuBar> make_menu_bar() {
    const Ref<MenuBar> bar = make<MenuBar>();
    bar->Constructor();
    const Ref<MenuItem> file = make_item("FileMenu"_s, "&File"_s);
    bar->Append(file);
    file->Append(make_item("FileNextPage"_s, "&Next Page"_s, "Cmd+G"_s));
    file->Append(make_item("FileSeparator"_s, "-"_s));
    file->Append(make_item<QuitMenuItem>("FileQuit"_s, "&Quit"_s, "Cmd+Q"_s));
    return bar;
}

}  // namespace tavrik::tour
