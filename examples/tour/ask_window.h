#pragma once

#include "ui/window.h"

namespace tavrik::tour {

// A question, which is its title, with OK and Cancel.
struct AskWindow : Class<AskWindow, Window> {
    static const ClassDefinition& definition();

    void CreateControls() { dispatch<&AskWindow::CreateControls>(this); }

    bool mAccepted;
};

// Whether the person pressed OK.
bool ask(Arg<Window> over, const String& question);

}  // namespace tavrik::tour
