#include "maptool/window1_actions.h"

#include "data/binary_stream.h"
#include "data/file_type.h"
#include "data/folder_item.h"
#include "maptool/map_fields.h"
#include "maptool/window1.h"
#include "runtime/frame.h"
#include "runtime/tavrik_module.h"
#include "ui/push_button.h"

namespace tavrik::Window1 {
namespace {

using maptool::kMapFields;
using maptool::kStateField;
using maptool::MapField;

// The window of the button that a handler is entered with. Both are held by the handler's frame.
Local<Window1> window_of_button(Frame& frame, Object* entered) {
    Ref<Object> self(entered);
    Ref<Object> me;
    RuntimeSwapSelfAndMe(self, me);
    Local<Window1> window = frame.local(check_cast<Window1>(self));
    frame.local(me);
    return window;
}

void set_enabled(Local<Window1> window, const String& button, bool enabled) {
    check_cast<PushButton>(RuntimeWindowControlByName(window.get(), button))->set_Enabled(enabled);
}

void write_fields(Local<Window1> window, std::int32_t MapField::*value) {
    for (const MapField& field : kMapFields) {
        window->br->set_Position(field.offset);
        window->br->WriteInt32(field.*value);
        RuntimeBackgroundTask();
    }
}

}  // namespace

void load_map(Object* button) {
    Frame frame(button);
    const Local<Window1> self = window_of_button(frame, button);
    Local<FileType> type = frame.local<FileType>();

    type = static_ref<FileType>(self->__New(FileType::__Lookup()));
    type->set_Name("map"_s);
    type->set_MacType("GamD"_s);
    type->set_Extensions("map"_s);
    self->f = Tavrik::GetOpenFolderItem(type->Operator_Convert());
    self->br = self->f->OpenAsBinaryFile(true);
    self->br->set_LittleEndian(true);
    self->br->set_Position(kStateField.offset);
    const bool intact = self->br->ReadInt32() == kStateField.when_restored;
    set_enabled(self, intact ? "NullBSP"_s : "Undo"_s, true);
}

void null_bsp(Object* button) {
    Frame frame(button);
    const Local<Window1> self = window_of_button(frame, button);

    write_fields(self, &MapField::when_nulled);
    Tavrik::MsgBox("BSP Nulled."_s);
    set_enabled(self, "NullBSP"_s, false);
    set_enabled(self, "Undo"_s, true);
}

void undo_null(Object* button) {
    Frame frame(button);
    const Local<Window1> self = window_of_button(frame, button);

    write_fields(self, &MapField::when_restored);
    Tavrik::MsgBox("BSP Un-Nulled."_s);
    set_enabled(self, "NullBSP"_s, true);
    set_enabled(self, "Undo"_s, false);
}

}  // namespace tavrik::Window1
