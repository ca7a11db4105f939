#pragma once

#include "ui/window.h"

namespace tavrik::tour {

struct Counter;

// Three pages: a board, two counters, and two dialogs.
struct TourWindow : Class<TourWindow, Window> {
    static const ClassDefinition& definition();

    void Layout() { dispatch<&TourWindow::Layout>(this); }
    void CreateControls() { dispatch<&TourWindow::CreateControls>(this); }
    void AddMenuHandlers(Arg<Window> window) { dispatch<&TourWindow::AddMenuHandlers>(this, window); }

    StringField mName;
    Field<Counter> mApples, mPears;
};

// Opens a window of that name.
void open_window(const String& name);

}  // namespace tavrik::tour
