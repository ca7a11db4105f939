#pragma once

#include <tavrik/object.h>

// Pages count from 0, and OutOfBoundsException is raised for one that isn't there. What stands on a page are the
// controls whose parent is the panel and whose TabPanelIndex is the page's number; one below 0 is on all of them.
namespace tavrik {

// Gives the panel its pane.
TAVRIK_API void PagePanelCreatePane(Object* panel);
TAVRIK_API void PagePanelAppendPage(Object* panel);
// The new page takes the number; those from there on move up, with what stands on them.
TAVRIK_API void PagePanelInsertPage(Object* panel, std::int32_t page);
// Closes what stands on the page. If it was in front, the next one comes there, or the last.
TAVRIK_API void PagePanelRemovePage(Object* panel, std::int32_t page);

// The page in front; 0 where there is none.
TAVRIK_API std::int32_t PagePanelValueGetter(Object* panel, std::int32_t);
// Raises "Change" if another page comes to the front. While the panel's window is made any number is taken, and is held
// within the pages.
TAVRIK_API void PagePanelValueSetter(Object* panel, std::int32_t, std::int32_t page);
// How many pages there are: what is stored at the field, as far as it is a count.
TAVRIK_API std::int32_t PagePanelCountGetter(Object* panel, std::int32_t field);

}  // namespace tavrik
