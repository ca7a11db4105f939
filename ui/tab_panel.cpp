#include "ui/tab_panel.h"

#include "runtime/frame.h"
#include "ui/input_interfaces.h"

namespace tavrik {
namespace {

template <auto Member>
std::int32_t offset_of() {
    return detail::FieldEntry<Member>::offset();
}

}  // namespace

void TabPanel::set_TextFont(const String& font) {
    tabPanelTextFontSetter(this, offset_of<&TabPanel::mTextFont>(), font);
}
void TabPanel::set_TextSize(std::int32_t size) {
    tabPanelTextSizeSetter(this, offset_of<&TabPanel::mTextSize>(), size);
}
void TabPanel::set_Bold(bool bold) { tabPanelBoldSetter(this, offset_of<&TabPanel::mBold>(), bold); }
void TabPanel::set_Italic(bool italic) { tabPanelItalicSetter(this, offset_of<&TabPanel::mItalic>(), italic); }
void TabPanel::set_Underline(bool underline) {
    tabPanelUnderlineSetter(this, offset_of<&TabPanel::mUnderline>(), underline);
}

namespace {

bool mouse_down(TabPanel* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    return TabPanel::Events::MouseDown.raise(self, x, y);
}

void mouse_drag(TabPanel* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    TabPanel::Events::MouseDrag.raise(self, x, y);
}

void mouse_up(TabPanel* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    TabPanel::Events::MouseUp.raise(self, x, y);
}

void got_focus(TabPanel* self) {
    const Frame frame(self);
    TabPanel::Events::GotFocus.raise(self);
}

void lost_focus(TabPanel* self) {
    const Frame frame(self);
    TabPanel::Events::LostFocus.raise(self);
}

constexpr OperationRow kOperations[] = {
    operation<&TabPanel::Caption, tabPanelCaptionGetter>("Caption"),
    operation<pick<void(const String&)>(&TabPanel::Append), TabPanelAppendTab>("Append"),
    operation<pick<void(std::int32_t, const String&)>(&TabPanel::Insert), TabPanelInsertTab>("Insert"),
    operation<&TabPanel::_TabClickedOn, TabPanelTabClickedOn>("_TabClickedOn"),
    operation<&TabPanel::set_Caption, tabPanelCaptionSetter>("=Caption"),
    operation<&TabPanel::_MouseDown, mouse_down>("_MouseDown"),
    operation<&TabPanel::_MouseDrag, mouse_drag>("_MouseDrag"),
    operation<&TabPanel::_MouseUp, mouse_up>("_MouseUp"),
    operation<&TabPanel::_GotFocus, got_focus>("_GotFocus"),
    operation<&TabPanel::_LostFocus, lost_focus>("_LostFocus"),
    overrides<TabPanel, &PagePanel::Remove, TabPanelRemoveTab>("Remove"),
    overrides<TabPanel, &RectControl::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr PropertyRow kProperties[] = {
    property<&TabPanel::Enabled, &TabPanel::set_Enabled>("Enabled"),
    stored_write_only<&TabPanel::mTabDefinition>("TabDefinition"),
    property<&TabPanel::Value, &TabPanel::set_Value>("Value"),
    stored<&TabPanel::mFacing>("Facing"),
    stored<&TabPanel::mSmallTabs>("SmallTabs"),
    stored<&TabPanel::mTextFont, tabPanelTextFontSetter>("TextFont"),
    stored<&TabPanel::mTextSize, tabPanelTextSizeSetter>("TextSize"),
    stored<&TabPanel::mBold, tabPanelBoldSetter>("Bold"),
    stored<&TabPanel::mItalic, tabPanelItalicSetter>("Italic"),
    stored<&TabPanel::mUnderline, tabPanelUnderlineSetter>("Underline"),
};

constexpr EventRow kEvents[] = {
    event("GotFocus", TabPanel::Events::GotFocus),   event("LostFocus", TabPanel::Events::LostFocus),
    event("MouseDown", TabPanel::Events::MouseDown), event("MouseDrag", TabPanel::Events::MouseDrag),
    event("MouseUp", TabPanel::Events::MouseUp),
};

constexpr InterfaceRow kInterfaces[] = {
    implements<_MouseEvents, &TabPanel::_MouseDown, &TabPanel::_MouseDrag, &TabPanel::_MouseUp>(),
    implements<_FocusEvents, &TabPanel::_GotFocus, &TabPanel::_LostFocus>(),
};

}  // namespace

const ClassDefinition& TabPanel::definition() {
    static constexpr ClassDefinition kDefinition = define<TabPanel>({
        .exit = exit_forwards_to<TabPanel, tabPanelDestructor>,
        .operations = kOperations,
        .properties = kProperties,
        .events = kEvents,
        .interfaces = kInterfaces,
    });
    return kDefinition;
}

}  // namespace tavrik
