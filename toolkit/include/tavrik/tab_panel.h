#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

// A tab panel is a page panel whose pages have captions. OutOfBoundsException is raised for a tab that isn't there.
namespace tavrik {

TAVRIK_API void tabPanelDestructor(Object* panel);

TAVRIK_API String tabPanelCaptionGetter(Object* panel, std::int32_t tab);
TAVRIK_API void tabPanelCaptionSetter(Object* panel, std::int32_t tab, const String& caption);
TAVRIK_API void TabPanelAppendTab(Object* panel, const String& caption);
TAVRIK_API void TabPanelInsertTab(Object* panel, std::int32_t tab, const String& caption);
TAVRIK_API void TabPanelRemoveTab(Object* panel, std::int32_t tab);
// The tab at a place of the control; -1 if there is none, or the panel isn't on a screen.
TAVRIK_API std::int32_t TabPanelTabClickedOn(Object* panel, std::int32_t x, std::int32_t y);

TAVRIK_API std::int32_t tabPanelValueGetter(Object* panel, std::int32_t);
TAVRIK_API void tabPanelValueSetter(Object* panel, std::int32_t, std::int32_t tab);
// These store the value at the field.
TAVRIK_API void tabPanelTextFontSetter(Object* panel, std::int32_t field, const String& font);
TAVRIK_API void tabPanelTextSizeSetter(Object* panel, std::int32_t field, std::int32_t size);
TAVRIK_API void tabPanelBoldSetter(Object* panel, std::int32_t field, bool bold);
TAVRIK_API void tabPanelItalicSetter(Object* panel, std::int32_t field, bool italic);
TAVRIK_API void tabPanelUnderlineSetter(Object* panel, std::int32_t field, bool underline);

}  // namespace tavrik
