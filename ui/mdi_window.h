#pragma once

#include "runtime/class.h"

#include <tavrik/mdi_window.h>

namespace tavrik {

// The frame around all windows of the program, or the area that they are on.
struct MDIWindow : Class<MDIWindow> {
    static const ClassDefinition& definition();

    void Maximize() { dispatch<&MDIWindow::Maximize>(this); }
    void Minimize() { dispatch<&MDIWindow::Minimize>(this); }
    void Restore() { dispatch<&MDIWindow::Restore>(this); }

    std::int32_t Left() { return MDIWindowPosGetter(this, 0); }
    void set_Left(std::int32_t left) { MDIWindowPosSetter(this, 0, left); }
    std::int32_t Top() { return MDIWindowPosGetter(this, 1); }
    void set_Top(std::int32_t top) { MDIWindowPosSetter(this, 1, top); }
    std::int32_t Width() { return MDIWindowPosGetter(this, 2); }
    void set_Width(std::int32_t width) { MDIWindowPosSetter(this, 2, width); }
    std::int32_t Height() { return MDIWindowPosGetter(this, 3); }
    void set_Height(std::int32_t height) { MDIWindowPosSetter(this, 3, height); }
    std::int32_t MinWidth() { return mMinWidth; }
    void set_MinWidth(std::int32_t width) { mMinWidth = static_cast<std::int16_t>(width); }
    std::int32_t MinHeight() { return mMinHeight; }
    void set_MinHeight(std::int32_t height) { mMinHeight = static_cast<std::int16_t>(height); }
    std::int32_t MaxWidth() { return mMaxWidth; }
    void set_MaxWidth(std::int32_t width) { mMaxWidth = static_cast<std::int16_t>(width); }
    std::int32_t MaxHeight() { return mMaxHeight; }
    void set_MaxHeight(std::int32_t height) { mMaxHeight = static_cast<std::int16_t>(height); }
    String Title() { return MDIWindowTitleGetter(this, 0); }
    void set_Title(const String& title) { MDIWindowTitleSetter(this, 0, title); }
    bool Visible() { return MDIWindowVisibleGetter(this, 0); }
    void set_Visible(bool visible) { MDIWindowVisibleSetter(this, 0, visible); }
    std::int32_t Handle() { return MDIWindowHandleGetter(this, 0); }

    struct Events {
        static inline constinit Event<void()> Open, Resized, Moved, Minimize, Maximize, Restore;
    };

    std::int16_t mMinWidth, mMinHeight, mMaxWidth, mMaxHeight;
};

}  // namespace tavrik
