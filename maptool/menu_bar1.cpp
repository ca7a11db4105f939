#include "maptool/menu_bar1.h"

#include "runtime/frame.h"
#include "ui/quit_menu_item.h"

namespace tavrik::MenuBar1 {

Object* _implicitInstance = nullptr;

Ref<MenuBar1> MenuBar1_() {
    if (_implicitInstance == nullptr) {
        Ref<MenuBar1> bar = make<MenuBar1>();
        bar->Constructor();
        RuntimeLockUnlockObjects(nullptr, std::exchange(_implicitInstance, bar.release()));
    }
    return Ref<MenuBar1>::hold(_implicitInstance);
}

void _implicitInstance__Exit() { RuntimeLockUnlockObjects(nullptr, std::exchange(_implicitInstance, nullptr)); }

namespace {

template <class Item>
Ref<MenuItem> make_item(const String& name, const String& text) {
    Ref<MenuItem> item = make<Item>();
    item->Constructor();
    item->set_Name(name);
    item->set_AutoEnable(true);
    item->set_Text(text);
    return item;
}

template <class Item>
Ref<MenuItem> make_item(const String& name, const String& text, const String& shortcut) {
    Ref<MenuItem> item = make_item<Item>(name, text);
    item->set_KeyboardShortcut(shortcut);
    return item;
}

void append_to(MenuItem* bar, const String& parent, const Ref<MenuItem>& item) { bar->Child(parent)->Append(item); }

void make_file_menu(MenuBar1* self) {
    Frame frame(self);
    Local<MenuItem> item = frame.local<MenuItem>();

    item = make_item<MenuItem>("FileMenu"_s, "&File"_s, nullptr);
    self->Append(item);
    item = make_item<QuitMenuItem>("FileQuit"_s, "&Quit"_s, "Cmd+Q"_s);
    append_to(self, "FileMenu"_s, item);
}

void make_edit_menu(MenuBar1* self) {
    Frame frame(self);
    Local<MenuItem> item = frame.local<MenuItem>();

    item = make_item<MenuItem>("EditMenu"_s, "&Edit"_s, nullptr);
    self->Append(item);
    item = make_item<MenuItem>("EditUndo"_s, "&Undo"_s, "Cmd+Z"_s);
    append_to(self, "EditMenu"_s, item);
    item = make_item<MenuItem>("UntitledMenu1"_s, "-"_s);
    append_to(self, "EditMenu"_s, item);
    item = make_item<MenuItem>("EditCut"_s, "Cu&t"_s, "Cmd+X"_s);
    append_to(self, "EditMenu"_s, item);
    item = make_item<MenuItem>("EditCopy"_s, "&Copy"_s, "Cmd+C"_s);
    append_to(self, "EditMenu"_s, item);
    item = make_item<MenuItem>("EditPaste"_s, "&Paste"_s, "Cmd+V"_s);
    append_to(self, "EditMenu"_s, item);
    item = make_item<MenuItem>("EditClear"_s, "&Delete"_s, nullptr);
    append_to(self, "EditMenu"_s, item);
    item = make_item<MenuItem>("UntitledMenu0"_s, "-"_s);
    append_to(self, "EditMenu"_s, item);
    item = make_item<MenuItem>("EditSelectAll"_s, "Select &All"_s, "Cmd+A"_s);
    append_to(self, "EditMenu"_s, item);
}

// Builds the menus, and leaves the bar itself as it is.
void construct(MenuBar1* self) {
    const Frame frame(self);
    self->Untitled0();
    self->Untitled1();
}

constexpr OperationRow kOperations[] = {
    operation<&MenuBar1::Untitled0, make_file_menu>("Untitled0"),
    operation<&MenuBar1::Untitled1, make_edit_menu>("Untitled1"),
    overrides<MenuBar1, pick<void()>(&MenuItem::Constructor), construct>("Constructor"),
};

}  // namespace

const ClassDefinition& MenuBar1::definition() {
    static constexpr ClassDefinition kDefinition = define<MenuBar1>({
        .layer = Layer::kApplication,
        .operations = kOperations,
    });
    return kDefinition;
}

}  // namespace tavrik::MenuBar1
