#pragma once

#include "ui/page_panel.h"

#include <tavrik/tab_panel.h>

namespace tavrik {

// Pages with a tab for each of them.
struct TabPanel : Class<TabPanel, PagePanel> {
    static const ClassDefinition& definition();

    using PagePanel::Append;
    using PagePanel::Insert;
    // Tabs count from 0; OutOfBoundsException is raised for one that isn't there. "&" stands before a mnemonic letter.
    String Caption(std::int32_t tab) { return dispatch<&TabPanel::Caption>(this, tab); }
    void Append(const String& caption) { dispatch<pick<void(const String&)>(&TabPanel::Append)>(this, caption); }
    void Insert(std::int32_t tab, const String& caption) {
        dispatch<pick<void(std::int32_t, const String&)>(&TabPanel::Insert)>(this, tab, caption);
    }
    // The tab at a place of the control, or -1.
    std::int32_t _TabClickedOn(std::int32_t x, std::int32_t y) {
        return dispatch<&TabPanel::_TabClickedOn>(this, x, y);
    }
    void set_Caption(std::int32_t tab, const String& caption) { dispatch<&TabPanel::set_Caption>(this, tab, caption); }
    bool _MouseDown(std::int32_t x, std::int32_t y) { return dispatch<&TabPanel::_MouseDown>(this, x, y); }
    void _MouseDrag(std::int32_t x, std::int32_t y) { dispatch<&TabPanel::_MouseDrag>(this, x, y); }
    void _MouseUp(std::int32_t x, std::int32_t y) { dispatch<&TabPanel::_MouseUp>(this, x, y); }
    void _GotFocus() { dispatch<&TabPanel::_GotFocus>(this); }
    void _LostFocus() { dispatch<&TabPanel::_LostFocus>(this); }

    bool Enabled() { return controlEnabledGetter(this, 0); }
    void set_Enabled(bool enabled) { controlEnabledSetter(this, 0, enabled); }
    // The captions of all tabs, one in a line. A new text takes effect when the tabs are asked for, and by the end of
    // the event.
    void set_TabDefinition(const String& captions) { mTabDefinition = captions; }
    std::int32_t Value() { return tabPanelValueGetter(this, 0); }
    void set_Value(std::int32_t tab) { tabPanelValueSetter(this, 0, tab); }
    // The side of the tabs: 0 top, 1 bottom, 2 right, 3 left. It and the size take effect by the end of the event.
    std::int32_t Facing() { return mFacing; }
    void set_Facing(std::int32_t side) { mFacing = side; }
    bool SmallTabs() { return mSmallTabs; }
    void set_SmallTabs(bool small) { mSmallTabs = small; }
    // "System" is the font of the desktop, and 0 its size in points.
    String TextFont() { return mTextFont; }
    void set_TextFont(const String& font);
    std::int32_t TextSize() { return mTextSize; }
    void set_TextSize(std::int32_t size);
    bool Bold() { return mBold; }
    void set_Bold(bool bold);
    bool Italic() { return mItalic; }
    void set_Italic(bool italic);
    bool Underline() { return mUnderline; }
    void set_Underline(bool underline);

    struct Events {
        static inline constinit Event<void()> GotFocus, LostFocus;
        static inline constinit Event<bool(std::int32_t, std::int32_t)> MouseDown;
        static inline constinit Event<void(std::int32_t, std::int32_t)> MouseDrag, MouseUp;
    };

    StringField mTabDefinition, mTextFont;
    std::int32_t mFacing;
    std::int16_t mTextSize;
    bool mSmallTabs, mBold, mItalic, mUnderline;
};

}  // namespace tavrik
