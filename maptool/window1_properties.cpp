#include "maptool/window1_properties.h"

#include "maptool/packed_properties.h"

#include <limits>

namespace tavrik::Window1 {
namespace {

using maptool::entry;
using maptool::packed;
using maptool::packed_bytes;

constexpr std::array kWindow{
    entry("Placement", 0),
    entry("Width", 290),
    entry("Height", 119),
    entry("MinWidth", 64),
    entry("MinHeight", 64),
    entry("MaxWidth", 32000),
    entry("MaxHeight", 32000),
    entry("Frame", 0),
    entry("Composite", false),
    entry("HasBackColor", false),
    entry("BackColor", rgb(255, 255, 255)),
    entry("Title", ""),
    entry("Visible", true),
    entry("FullScreen", false),
    entry("MenuBarVisible", true),
    entry("CloseButton", true),
    entry("Resizeable", false),
    entry("LiveResize", true),
    entry("MaximizeButton", false),
    entry("MinimizeButton", true),
    entry("BalloonHelp", ""),
    entry("MacProcID", 0),
};

// What sets one button apart from the others.
struct Button {
    const char* name;
    const char* caption;
    std::int32_t top;
    std::int32_t width;
    std::int32_t tab_index;
    bool enabled;
};

consteval auto button_entries(Button button) {
    constexpr std::int32_t kOutsideOfAnyArray = std::numeric_limits<std::int32_t>::min();
    return std::array{
        entry("Name", button.name),
        entry("Index", kOutsideOfAnyArray),
        entry("Left", 20),
        entry("Top", button.top),
        entry("Width", button.width),
        entry("Height", 20),
        entry("LockLeft", false),
        entry("LockTop", false),
        entry("LockRight", false),
        entry("LockBottom", false),
        entry("TabPanelIndex", 0),
        entry("TabIndex", button.tab_index),
        entry("Caption", button.caption),
        entry("Default", false),
        entry("Cancel", false),
        entry("Enabled", button.enabled),
        entry("Visible", true),
        entry("HelpTag", ""),
        entry("AutoDeactivate", true),
        entry("TextFont", "System"),
        entry("TextSize", 0),
        entry("Bold", false),
        entry("Italic", false),
        entry("Underline", false),
        entry("InitialParent", ""),
    };
}

constexpr auto kLoadMap = button_entries(
    {.name = "PushButton1", .caption = "Load Map", .top = 14, .width = 80, .tab_index = 0, .enabled = true});
constexpr auto kNullBSP = button_entries(
    {.name = "NullBSP", .caption = "Null BSP", .top = 46, .width = 250, .tab_index = 1, .enabled = false});
constexpr auto kUndo = button_entries(
    {.name = "Undo", .caption = "Un-do Null", .top = 78, .width = 250, .tab_index = 2, .enabled = false});

// What the strings' lengths have to come to.
static_assert(packed_bytes<kWindow>.size() == 283);
static_assert(packed_bytes<kLoadMap>.size() == 299);
static_assert(packed_bytes<kNullBSP>.size() == 295);
static_assert(packed_bytes<kUndo>.size() == 294);

}  // namespace

const String& window_properties() { return packed<kWindow>.string(); }
const String& load_map_properties() { return packed<kLoadMap>.string(); }
const String& null_bsp_properties() { return packed<kNullBSP>.string(); }
const String& undo_null_properties() { return packed<kUndo>.string(); }

}  // namespace tavrik::Window1
