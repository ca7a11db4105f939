#include "bench/controls/class_layer_windows.h"

#include "ui/canvas.h"
#include "ui/push_button.h"

namespace tavrik::bench {
namespace {

// As the code of a window makes its controls.
template <class Kind>
Ref<Kind> add(Window* window, const String& name, const Place& place) {
    const Ref<Kind> control = static_ref<Kind>(window->__New(Kind::__Lookup()));
    control->Constructor();
    window->_AddControl(name, control);
    control->_Move(place.left, place.top, place.width, place.height);
    return control;
}

Ref<Canvas> add_canvas(Window* window, int number, const Place& place) {
    return add<Canvas>(window, String("Canvas" + std::to_string(number)), place);
}

void add_inner_canvases(Window* window, int outer, const Place& outer_place) {
    const Ref<Canvas> parent = add_canvas(window, outer, outer_place);
    for (int i = 0; i < kInnerSquares.count(); ++i) {
        Place place = kInnerSquares[i];
        place.left += outer_place.left;
        place.top += outer_place.top;
        add_canvas(window, (outer + 1) * kInnerSquares.count() + i, place)->set_Parent(parent);
    }
}

}  // namespace

Ref<Window> make_window() {
    Ref<Window> window = make<Window>();
    window->Window_();
    window->_Move(0, 0, kWindowWidth, kWindowHeight);
    return window;
}

Ref<Window> make_window_with_buttons(int count, ButtonHeight height) {
    Ref<Window> window = make_window();
    for (int i = 0; i < count; ++i) {
        const String caption(caption_of_button(i));
        add<PushButton>(window.get(), caption, place_of_button(i, height))->set_Caption(caption);
    }
    return window;
}

Ref<Window> make_window_with_canvases(Tree tree) {
    Ref<Window> window = make_window();
    const Squares& squares = tree == Tree::kFlat ? kAllSquares : kOuterSquares;
    for (int i = 0; i < squares.count(); ++i) {
        if (tree == Tree::kFlat) {
            add_canvas(window.get(), i, squares[i]);
        } else {
            add_inner_canvases(window.get(), i, squares[i]);
        }
    }
    return window;
}

}  // namespace tavrik::bench
