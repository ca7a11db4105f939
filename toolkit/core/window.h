#pragma once

#include "toolkit/core/menu_handlers.h"
#include "toolkit/front/front.h"

#include <tavrik/object.h>

#include <memory>
#include <vector>

namespace tavrik::core {

class ControlState;

// A window: what it is, and its face once it has been shown.
class WindowState final : public NativeState, private front::WindowListener {
public:
    explicit WindowState(Object* self) : self_(self) {}

    front::WindowDescription description;
    std::int32_t frame = 0;
    bool live_resize = true;
    bool has_back_color = false;
    std::uint32_t back_color = 0xFFFFFF;

    MenuHandlers menu_handlers;

    Object* menu_bar() const { return menu_bar_.object(); }
    void set_menu_bar(Object* bar);

    front::WindowFace* face() const { return face_.get(); }
    // Makes the face at the first showing, with the faces of the controls.
    void show();
    void hide();
    // Tells the face the description anew.
    void changed();
    void menus_changed();
    // The face goes, the state stays.
    void drop_face();

    void attach(ControlState& control);

    // Once Open has been raised: controls that come later are opened as they come.
    bool opened = false;

private:
    void close_requested() override;
    void activated(bool active) override;
    void moved(int left, int top) override;
    void resized(int width, int height) override;
    void menus_opening() override;
    void menu_chosen(front::MenuId chosen) override;

    void make_face();

    Object* self_;
    Ref<Object> menu_bar_;
    std::unique_ptr<front::WindowFace> face_;
};

WindowState& window_state(Object* window);

// The windows that have been opened and not closed, the last activated last.
const std::vector<Ref<Object>>& open_windows();
// nullptr without a window on the screen.
Object* frontmost_window();
front::WindowFace* frontmost_face();

// Whether the windows may still refuse to close, and what their CancelClose events are told.
enum class AppIsQuitting { kNo, kYes, kNoMatterWhat };

// Whether the window closed.
bool close_window(Object* window, AppIsQuitting quitting);
bool close_all_windows(AppIsQuitting quitting);

}  // namespace tavrik::core
