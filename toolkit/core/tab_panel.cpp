#include "toolkit/core/event_scope.h"
#include "toolkit/core/page_panel.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"

#include <tavrik/fields.h>
#include <tavrik/tab_panel.h>

#include <string>
#include <tuple>
#include <vector>

namespace tavrik {
namespace core {
namespace {

constinit Property<std::int32_t> facing{"TabPanel", "Facing"};
constinit Property<bool> small_tabs{"TabPanel", "SmallTabs"};
constinit Property<String> text_font{"TabPanel", "TextFont"};
constinit Property<std::int32_t> text_size{"TabPanel", "TextSize"};
constinit Property<bool> bold{"TabPanel", "Bold"};
constinit Property<bool> italic{"TabPanel", "Italic"};
constinit Property<bool> underline{"TabPanel", "Underline"};

// The property can't be read: its record tells where the value lies.
String definition_of(Object* panel) {
    static const std::int32_t field = need_property("TabPanel", "TabDefinition").parameter;
    return stringGetter(panel, field);
}

// One line each; a line end of any system. The last one may have its own.
std::vector<std::string> lines_of(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\r\n");
        lines.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
    }
    return lines;
}

front::TabSide side_of(std::int32_t facing_number) {
    switch (facing_number) {
        case 1:
            return front::TabSide::kBottom;
        case 2:
            return front::TabSide::kRight;
        case 3:
            return front::TabSide::kLeft;
        default:
            return front::TabSide::kTop;
    }
}

class TabPanelState final : public PagePanelState, private front::TabsListener {
public:
    using PagePanelState::PagePanelState;

    std::string caption(std::int32_t tab) {
        need_page(tab);
        return captions()[static_cast<std::size_t>(tab)];
    }
    void set_caption(std::int32_t tab, std::string_view caption) {
        need_page(tab);
        captions()[static_cast<std::size_t>(tab)] = caption;
        changed();
    }
    std::int32_t tab_at(front::Point at) const {
        if (face() == nullptr) return -1;
        return on_main_stack([&] { return static_cast<front::TabsFace*>(face())->tab_at(at); });
    }

    void take_stored_pages() override {
        const String definition = definition_of(self());
        if (definition.view() == definition_) return;
        definition_ = definition.view();
        captions_ = lines_of(definition_);
        captions_are_new_ = true;
        store_count(static_cast<std::int32_t>(captions_.size()));
    }

protected:
    std::unique_ptr<front::ControlFace> make_face(front::ContainerFace& container,
                                                  front::ControlListener& listener) override {
        return container.make_tabs(listener, *this);
    }
    void apply_to(front::ControlFace& face) override {
        front::TabsDescription tabs;
        describe(tabs);
        tabs.captions = captions();
        tabs.chosen = value();
        captions_are_new_ = false;
        told_ = stored_looks();
        tabs.side = side_of(std::get<0>(told_));
        tabs.small = std::get<1>(told_);
        tabs.style = {.font = std::string(text_font.get(self()).view()),
                      .size = text_size.get(self()),
                      .bold = bold.get(self()),
                      .italic = italic.get(self()),
                      .underline = underline.get(self())};
        static_cast<front::TabsFace&>(face).apply(tabs);
    }
    bool has_new_looks() const override { return captions_are_new_ || stored_looks() != told_; }
    void page_inserted(std::int32_t page, std::string_view caption) override {
        captions().emplace(captions_.begin() + page, caption);
    }
    void page_removed(std::int32_t page) override { captions().erase(captions_.begin() + page); }

private:
    using Looks = std::tuple<std::int32_t, bool>;

    void tab_chosen(int tab) override {
        deliver([=, this] {
            const Ref<Object> kept(self());
            // What isn't followed is shown as it was.
            enabled_throughout() && tab >= 0 && tab < count() ? bring_to_front(tab) : changed();
        });
    }

    // One for each page.
    std::vector<std::string>& captions() {
        captions_.resize(static_cast<std::size_t>(count()));
        return captions_;
    }
    Looks stored_looks() const { return {facing.get(self()), small_tabs.get(self())}; }

    std::string definition_;  // as it was taken
    std::vector<std::string> captions_;
    bool captions_are_new_ = false;
    Looks told_;
};

TabPanelState& state_of(Object* panel) { return static_cast<TabPanelState&>(control_state(panel)); }

}  // namespace

std::unique_ptr<ControlState> make_tab_panel_state(Object* panel) { return std::make_unique<TabPanelState>(panel); }

}  // namespace core

using core::state_of;

void tabPanelDestructor(Object* panel) { state_of(panel).detach(); }

String tabPanelCaptionGetter(Object* panel, std::int32_t tab) {
    return String(std::string_view(state_of(panel).caption(tab)));
}
void tabPanelCaptionSetter(Object* panel, std::int32_t tab, const String& caption) {
    state_of(panel).set_caption(tab, caption.view());
}
void TabPanelAppendTab(Object* panel, const String& caption) { state_of(panel).append_page(caption.view()); }
void TabPanelInsertTab(Object* panel, std::int32_t tab, const String& caption) {
    state_of(panel).insert_page(tab, caption.view());
}
void TabPanelRemoveTab(Object* panel, std::int32_t tab) { state_of(panel).remove_page(tab); }
std::int32_t TabPanelTabClickedOn(Object* panel, std::int32_t x, std::int32_t y) {
    return state_of(panel).tab_at({x, y});
}

std::int32_t tabPanelValueGetter(Object* panel, std::int32_t) { return state_of(panel).value(); }
void tabPanelValueSetter(Object* panel, std::int32_t, std::int32_t tab) { state_of(panel).set_value(tab); }

void tabPanelTextFontSetter(Object* panel, std::int32_t field, const String& font) {
    stringSetter(panel, field, font);
    state_of(panel).changed();
}
void tabPanelTextSizeSetter(Object* panel, std::int32_t field, std::int32_t size) {
    shortSetter(panel, field, size);
    state_of(panel).changed();
}
void tabPanelBoldSetter(Object* panel, std::int32_t field, bool is_bold) {
    boolSetter(panel, field, is_bold);
    state_of(panel).changed();
}
void tabPanelItalicSetter(Object* panel, std::int32_t field, bool is_italic) {
    boolSetter(panel, field, is_italic);
    state_of(panel).changed();
}
void tabPanelUnderlineSetter(Object* panel, std::int32_t field, bool is_underlined) {
    boolSetter(panel, field, is_underlined);
    state_of(panel).changed();
}

}  // namespace tavrik
