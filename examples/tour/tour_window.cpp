#include "examples/tour/tour_window.h"

#include "examples/tour/ask_window.h"
#include "examples/tour/board.h"
#include "examples/tour/controls.h"
#include "examples/tour/counter.h"
#include "runtime/frame.h"
#include "ui/message_dialog.h"
#include "ui/push_button.h"
#include "ui/tab_panel.h"

namespace tavrik::tour {

void open_window(const String& name) {
    const Ref<TourWindow> window = make<TourWindow>();
    window->Window_();
    window->mName = name;
    window->set_Title(name);
    window->Show();
}

namespace {

enum Page : std::int32_t { kCanvas, kContainers, kDialogs };

void lay_out(TourWindow* self) {
    const Frame frame(self);
    constexpr std::int32_t kMiddleOfMainScreen = 2;
    self->set_Placement(kMiddleOfMainScreen);
    self->set_Width(420);
    self->set_Height(260);
    self->set_MinWidth(420);
    self->set_MinHeight(260);
    self->set_Resizeable(true);
}

void pointed(Object* board, std::int32_t x, std::int32_t y) {
    const Frame frame(board);
    const Ref<TourWindow> self = check_cast<TourWindow>(static_cast<Board*>(board)->Window());
    self->set_Title(
        text(std::string(String(self->mName).view()) + ": " + std::to_string(x) + ", " + std::to_string(y)));
}

void start_over(Object* button) {
    const Frame frame(button);
    const Ref<TourWindow> self = window_of<TourWindow>(button);
    if (!ask(self, "Set both counters to 0?"_s)) return;
    self->mApples->Count("Apples"_s, 0);
    self->mPears->Count("Pears"_s, 0);
}

void tell(Object* button) {
    const Frame frame(button);
    const Ref<TourWindow> self = window_of<TourWindow>(button);
    const Ref<MessageDialog> dialog = make<MessageDialog>();
    dialog->set_Message("This is a message."_s);
    dialog->set_Explanation("The button says afterwards which answer was given."_s);
    dialog->ActionButton()->set_Caption("&Fine"_s);
    dialog->CancelButton()->set_Visible(true);
    const Ref<MessageDialogButton> answer = dialog->ShowModalWithin(self);
    static_cast<PushButton*>(button)->set_Caption(answer == dialog->ActionButton() ? "Fine"_s : "Cancelled"_s);
}

Ref<Counter> add_counter(const Ref<TabPanel>& tabs, const String& what, Color color, std::int32_t left) {
    const Ref<Counter> counter = make<Counter>();
    counter->Window_();
    counter->set_HasBackColor(true);
    counter->set_BackColor(color);
    counter->Count(what, 0);
    counter->EmbedWithinPanel(tabs, kContainers, left, 60, 180, 80);
    return counter;
}

Ref<PushButton> add_button(TourWindow* self, const Ref<TabPanel>& tabs, const String& caption, std::int32_t top) {
    const Ref<PushButton> button = add<PushButton>(self, caption, {24, top, 200, 28});
    button->set_Parent(tabs);
    button->set_TabPanelIndex(kDialogs);
    button->set_Caption(caption);
    lock_edges(button, true, true, false, false);
    return button;
}

void create_controls(TourWindow* self) {
    const Frame frame(self);
    const Ref<TabPanel> tabs = add<TabPanel>(self, "Pages"_s, {8, 8, 404, 244});
    tabs->set_TabDefinition("&Canvas\nC&ontainers\n&Dialogs"_s);
    lock_edges(tabs, true, true, true, true);

    const Ref<Board> board = make<Board>();
    board->Window_();
    board->EmbedWithinPanel(tabs, kCanvas, 24, 52, 372, 184);
    lock_edges(board, true, true, true, true);
    on(board, "Pointed"_s, pointed);

    self->mApples = add_counter(tabs, "Apples"_s, rgb(214, 234, 214), 24);
    lock_edges(self->mApples, true, true, false, false);
    self->mPears = add_counter(tabs, "Pears"_s, rgb(250, 236, 200), 216);
    lock_edges(self->mPears, true, true, true, false);

    on(add_button(self, tabs, "Start Over..."_s, 60), "Action"_s, start_over);
    on(add_button(self, tabs, "Message..."_s, 100), "Action"_s, tell);
}

bool next_page(Object* window) {
    const Frame frame(window);
    const Ref<TabPanel> tabs = check_cast<TabPanel>(static_cast<TourWindow*>(window)->_GetControl("Pages"_s));
    tabs->set_Value((tabs->Value() + 1) % tabs->PanelCount());
    return true;
}

void add_menu_handlers(TourWindow* self, Arg<Window> window) {
    const Frame frame(self, window);
    self->_AddMenuHandler("FileNextPage"_s, reinterpret_cast<Function>(next_page));
}

constexpr OperationRow kOperations[] = {
    operation<&TourWindow::Layout, lay_out>("Layout"),
    operation<&TourWindow::CreateControls, create_controls>("CreateControls"),
    operation<&TourWindow::AddMenuHandlers, add_menu_handlers>("AddMenuHandlers"),
};

constexpr FieldRow kFields[] = {
    field<&TourWindow::mName>("mName"),
    field<&TourWindow::mApples>("mApples"),
    field<&TourWindow::mPears>("mPears"),
};

constexpr HandlerRow kHandlers[] = {
    handles<&TourWindow::Layout>("Layout", Window::Events::Layout),
    handles<&TourWindow::CreateControls>("CreateControls", Window::Events::CreateControls),
    handles<&TourWindow::AddMenuHandlers>("AddMenuHandlers", Window::Events::AddMenuHandlers),
};

}  // namespace

const ClassDefinition& TourWindow::definition() {
    static constexpr ClassDefinition kDefinition = define<TourWindow>({
        .layer = Layer::kApplication,
        .operations = kOperations,
        .fields = kFields,
        .handlers = kHandlers,
    });
    return kDefinition;
}

}  // namespace tavrik::tour
