#pragma once

#include "ui/menu_bar.h"

namespace tavrik::MenuBar1 {

// The tool's one menu bar: File with Quit, and Edit with the usual entries.
struct MenuBar1 : Class<MenuBar1, MenuBar> {
    static const ClassDefinition& definition();

    void Untitled0() { dispatch<&MenuBar1::Untitled0>(this); }
    void Untitled1() { dispatch<&MenuBar1::Untitled1>(this); }
};

// The one instance, which is made at the first call.
Ref<MenuBar1> MenuBar1_();

extern Object* _implicitInstance;
void _implicitInstance__Exit();

}  // namespace tavrik::MenuBar1
