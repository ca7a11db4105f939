#include "ui/page_panel.h"

#include "runtime/frame.h"

namespace tavrik {

std::int32_t PagePanel::PanelCount() {
    return PagePanelCountGetter(this, detail::FieldEntry<&PagePanel::mPanelCount>::offset());
}

namespace {

void call_change(PagePanel* self) {
    const Frame frame(self);
    PagePanel::Events::Change.raise(self);
}

constexpr OperationRow kOperations[] = {
    operation<&PagePanel::Event_CreatePane, PagePanelCreatePane>("Event_CreatePane"),
    operation<&PagePanel::Append, PagePanelAppendPage>("Append"),
    operation<&PagePanel::Insert, PagePanelInsertPage>("Insert"),
    operation<&PagePanel::Remove, PagePanelRemovePage>("Remove"),
    operation<&PagePanel::_CallChange, call_change>("_CallChange"),
    overrides<PagePanel, &RectControl::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr PropertyRow kProperties[] = {
    property<&PagePanel::Enabled, &PagePanel::set_Enabled>("Enabled"),
    property<&PagePanel::Value, &PagePanel::set_Value>("Value"),
    stored<&PagePanel::mPanelCount, intSetter, PagePanelCountGetter>("PanelCount"),
};

constexpr EventRow kEvents[] = {event("Change", PagePanel::Events::Change)};

constexpr HandlerRow kHandlers[] = {
    handles<&PagePanel::Event_CreatePane>("CreatePane", Control::Events::CreatePane),
};

}  // namespace

const ClassDefinition& PagePanel::definition() {
    static constexpr ClassDefinition kDefinition = define<PagePanel>({
        .operations = kOperations,
        .properties = kProperties,
        .events = kEvents,
        .handlers = kHandlers,
    });
    return kDefinition;
}

}  // namespace tavrik
