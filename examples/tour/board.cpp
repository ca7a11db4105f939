#include "examples/tour/board.h"

#include "examples/tour/controls.h"
#include "examples/tour/menus.h"
#include "runtime/frame.h"
#include "ui/canvas.h"

namespace tavrik::tour {
namespace {

constexpr std::int32_t kMarkerSize = 24;

struct NamedColor {
    const char* name;
    Color color;
};
constexpr NamedColor kColors[] = {
    {"Red", rgb(192, 57, 43)},
    {"Green", rgb(39, 134, 76)},
    {"Blue", rgb(41, 98, 168)},
};

void pointer_moved(Object* canvas, std::int32_t x, std::int32_t y) {
    const Frame frame(canvas);
    window_of<Board>(canvas)->Point(x, y);
}

// The pointer is over the marker, which lies on the canvas.
void pointer_moved_on_marker(Object* marker, std::int32_t x, std::int32_t y) {
    const Frame frame(marker);
    auto* const self = static_cast<ContainerControl*>(marker);
    check_cast<Board>(self->Window())->Point(self->Left() + x, self->Top() + y);
}

bool pressed(Object* canvas, std::int32_t x, std::int32_t y) {
    pointer_moved(canvas, x, y);
    return true;
}

bool key_pressed(Object* canvas, const String& key) {
    const Frame frame(canvas);
    constexpr std::int32_t kStep = 10;
    const Ref<Board> self = window_of<Board>(canvas);
    const std::string_view arrow = key.view();
    if (arrow == "\x1C") return self->Point(self->mX - kStep, self->mY), true;
    if (arrow == "\x1D") return self->Point(self->mX + kStep, self->mY), true;
    if (arrow == "\x1E") return self->Point(self->mX, self->mY - kStep), true;
    if (arrow == "\x1F") return self->Point(self->mX, self->mY + kStep), true;
    return false;
}

bool construct_menu(Object* canvas, Object* menu, std::int32_t, std::int32_t) {
    const Frame frame(canvas, menu);
    for (const NamedColor& each : kColors) {
        const String name = String(std::string_view(each.name));
        const Ref<MenuItem> item = make_item(name, name);
        item->set_AutoEnable(false);
        static_cast<MenuItem*>(menu)->Append(item);
    }
    return true;
}

bool color_chosen(Object* canvas, Object* item) {
    const Frame frame(canvas, item);
    const String name = static_cast<MenuItem*>(item)->Name();
    for (const NamedColor& each : kColors) {
        if (name.view() == each.name) window_of<Board>(canvas)->mMarker->set_BackColor(each.color);
    }
    return true;
}

void create_controls(Board* self) {
    const Frame frame(self);
    self->_Move(0, 0, 200, 100);
    self->set_HasBackColor(true);
    self->set_BackColor(rgb(226, 234, 244));

    const Ref<Canvas> canvas = add<Canvas>(self, "Board"_s, {0, 0, 200, 100});
    lock_edges(canvas, true, true, true, true);
    canvas->set_AcceptFocus(true);
    canvas->set_UseFocusRing(true);
    canvas->set_HelpTag("Move the pointer here, or press the arrow keys"_s);
    on(canvas, "MouseMove"_s, pointer_moved);
    on(canvas, "MouseDrag"_s, pointer_moved);
    on(canvas, "MouseDown"_s, pressed);
    on(canvas, "KeyDown"_s, key_pressed);
    on(canvas, "ConstructContextualMenu"_s, construct_menu);
    on(canvas, "ContextualMenuAction"_s, color_chosen);

    const Ref<ContainerControl> marker = make<ContainerControl>();
    marker->Window_();
    marker->set_HasBackColor(true);
    marker->set_BackColor(kColors[0].color);
    marker->EmbedWithin(canvas, 0, 0, kMarkerSize, kMarkerSize);
    on(marker, "MouseMove"_s, pointer_moved_on_marker);
    self->mMarker = marker;
    self->Point(60, 50);
}

void point(Board* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    self->mX = x;
    self->mY = y;
    self->mMarker->_Move(x - kMarkerSize / 2, y - kMarkerSize / 2, kMarkerSize, kMarkerSize);
    Board::Events::Pointed.raise(self, x, y);
}

constexpr OperationRow kOperations[] = {
    operation<&Board::CreateControls, create_controls>("CreateControls"),
    operation<&Board::Point, point>("Point"),
};

constexpr FieldRow kFields[] = {
    field<&Board::mMarker>("mMarker"),
    field<&Board::mX>("mX"),
    field<&Board::mY>("mY"),
};

constexpr EventRow kEvents[] = {event("Pointed", Board::Events::Pointed)};

constexpr HandlerRow kHandlers[] = {
    handles<&Board::CreateControls>("CreateControls", Window::Events::CreateControls),
};

}  // namespace

const ClassDefinition& Board::definition() {
    static constexpr ClassDefinition kDefinition = define<Board>({
        .layer = Layer::kApplication,
        .operations = kOperations,
        .fields = kFields,
        .events = kEvents,
        .handlers = kHandlers,
    });
    return kDefinition;
}

}  // namespace tavrik::tour
