#pragma once

#include "ui/rect_control.h"

#include <tavrik/page_panel.h>

namespace tavrik {

// Pages that lie over each other: a control in it is seen while the page of its TabPanelIndex is in front.
struct PagePanel : Class<PagePanel, RectControl> {
    static const ClassDefinition& definition();

    void Event_CreatePane() { dispatch<&PagePanel::Event_CreatePane>(this); }
    void Append() { dispatch<&PagePanel::Append>(this); }
    // The new page takes the number, and those from there on move up with what stands on them.
    void Insert(std::int32_t page) { dispatch<&PagePanel::Insert>(this, page); }
    // Closes what stands on the page.
    void Remove(std::int32_t page) { dispatch<&PagePanel::Remove>(this, page); }
    void _CallChange() { dispatch<&PagePanel::_CallChange>(this); }

    bool Enabled() { return controlEnabledGetter(this, 0); }
    void set_Enabled(bool enabled) { controlEnabledSetter(this, 0, enabled); }
    // The page in front, from 0. Raises OutOfBoundsException for a page that isn't there.
    std::int32_t Value() { return PagePanelValueGetter(this, 0); }
    void set_Value(std::int32_t page) { PagePanelValueSetter(this, 0, page); }
    // Written, it takes effect by the end of the event. Pages that go that way take nothing with them: it is there
    // again when they come back.
    std::int32_t PanelCount();
    void set_PanelCount(std::int32_t pages) { mPanelCount = pages; }

    struct Events {
        // Another page has come to the front, by whatever means.
        static inline constinit Event<void()> Change;
    };

    std::int32_t mPanelCount;
};

}  // namespace tavrik
