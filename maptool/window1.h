#pragma once

#include "ui/window.h"

namespace tavrik {

struct BinaryStream;
struct FolderItem;
struct PushButton;
struct QuitMenuItem;

namespace Window1 {

// The one window of the tool: "Load Map" opens a map, "Null BSP" blanks its three fields, "Un-do Null" puts their
// constants back.
struct Window1 : Class<Window1, Window> {
    static const ClassDefinition& definition();

    void Layout() { dispatch<&Window1::Layout>(this); }
    void CreateControls() { dispatch<&Window1::CreateControls>(this); }
    void _CreateControls0() { dispatch<&Window1::_CreateControls0>(this); }
    Ref<PushButton> PushButton1(const String& name);
    Ref<PushButton> NullBSP(const String& name);
    Ref<PushButton> Undo(const String& name);
    // The handlers of the buttons' Action events: each is entered with its button as self.
    void PushButton1_Action() { dispatch<&Window1::PushButton1_Action>(this); }
    void NullBSP_Action() { dispatch<&Window1::NullBSP_Action>(this); }
    void Undo_Action() { dispatch<&Window1::Undo_Action>(this); }
    Ref<MenuItem> EditMenu() { return dispatch<&Window1::EditMenu>(this); }
    Ref<MenuItem> EditSelectAll() { return dispatch<&Window1::EditSelectAll>(this); }
    Ref<MenuItem> UntitledMenu0() { return dispatch<&Window1::UntitledMenu0>(this); }
    Ref<MenuItem> EditClear() { return dispatch<&Window1::EditClear>(this); }
    Ref<MenuItem> EditPaste() { return dispatch<&Window1::EditPaste>(this); }
    Ref<MenuItem> EditCopy() { return dispatch<&Window1::EditCopy>(this); }
    Ref<MenuItem> EditCut() { return dispatch<&Window1::EditCut>(this); }
    Ref<MenuItem> UntitledMenu1() { return dispatch<&Window1::UntitledMenu1>(this); }
    Ref<MenuItem> EditUndo() { return dispatch<&Window1::EditUndo>(this); }
    Ref<MenuItem> FileMenu() { return dispatch<&Window1::FileMenu>(this); }
    Ref<QuitMenuItem> FileQuit() { return dispatch<&Window1::FileQuit>(this); }
    void AddMenuHandlers(Arg<Window> window) { dispatch<&Window1::AddMenuHandlers>(this, window); }

    // The file picked by the last "Load Map", nil after a cancelled dialog.
    Field<FolderItem> f;
    // Open on the map from its "Load Map" to the next, or to the end of the window.
    Field<BinaryStream> br;
};

// The implicit instance: the window is made and shown at the first call.
Ref<Window1> Window1_();

}  // namespace Window1
}  // namespace tavrik
