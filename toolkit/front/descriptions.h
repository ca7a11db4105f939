#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// The state that the core tells a front, as plain values. Texts are UTF-8, lengths are pixels at scale 1, and
// positions are relative to the content of the window unless told otherwise.
namespace tavrik::front {

struct Point {
    int left = 0;
    int top = 0;

    bool operator==(const Point&) const = default;
};

struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Rect&) const = default;
};

enum class CursorShape {
    kArrow,
    kIBeam,
    kCross,
    kWait,
    kPointingHand,
    kOpenHand,
    kClosedHand,
    kResizeHorizontal,
    kResizeVertical,
    kResizeUpLeft,
    kResizeUpRight,
    kResizeAll,
    kForbidden,
    kBlank,
};

struct CursorImage {
    int width = 0;
    int height = 0;
    Point hot_spot;
    std::vector<std::uint32_t> pixels;  // 0xAARRGGBB, not premultiplied, row by row
};

struct Cursor {
    CursorShape shape = CursorShape::kArrow;
    std::shared_ptr<const CursorImage> image;  // in place of the shape

    bool operator==(const Cursor&) const = default;
};

enum class Placement { kDefault, kParent, kMainScreen, kParentScreen, kStagger, kWhereTold };

enum class WindowFrame {
    kDocument,
    kMovableModal,
    kModal,
    kFloating,
    kPlain,
    kShadowed,
    kRounded,
    kGlobalFloating,
    kSheet,
    kMetal,
};

enum class WindowSize { kNormal, kMinimized, kMaximized };

// Which windows take no input while this one is shown.
enum class Modality { kNone, kWindow, kProgram };

struct WindowDescription {
    std::string title;
    WindowFrame frame = WindowFrame::kDocument;
    WindowSize size_state = WindowSize::kNormal;
    Modality modality = Modality::kNone;  // kWindow: the owner and what it lies over
    Rect content;  // on the screen, while it is of its normal size; left and top count with Placement::kWhereTold
    Placement placement = Placement::kDefault;
    int min_width = 0;
    int min_height = 0;
    int max_width = std::numeric_limits<std::int16_t>::max();
    int max_height = std::numeric_limits<std::int16_t>::max();
    bool visible = false;
    bool resizable = false;
    bool close_button = true;
    bool minimize_button = true;
    bool maximize_button = false;
    bool full_screen = false;
    bool menu_bar_visible = true;
    bool live_resize = true;
    std::optional<std::uint32_t> background;  // 0xRRGGBB; the desktop's own without one
    std::string help;
    std::optional<Cursor> cursor;
};

struct TextStyle {
    std::string font;  // "" and "System": the font of the desktop
    int size = 0;      // points; 0: the size of the desktop
    bool bold = false;
    bool italic = false;
    bool underline = false;

    bool operator==(const TextStyle&) const = default;
};

enum class MouseButton { kPrimary, kSecondary, kMiddle };

// A key that was pressed, or that repeats itself.
struct Key {
    std::string text;   // what it types, or one control character for a key that types nothing (see keys.h)
    int code = 0;       // the desktop's own number of the key
    int modifiers = 0;  // 1 Shift, 2 the platform's command key, 4 Alt, 8 the fourth one
};

// What controls of all kinds have in common.
struct ControlDescription {
    std::string name;  // for who drives the program from outside
    Rect bounds;       // relative to what the control lies in
    int tab_index = 0;
    bool visible = true;
    bool enabled = true;
    bool looks_inactive_with_window = true;
    std::string help;
    std::optional<Cursor> cursor;
};

struct ButtonDescription : ControlDescription {
    std::string caption;  // may hold "&" before a mnemonic letter; "&&" is a plain one
    bool is_default = false;
    bool is_cancel = false;
    TextStyle style;
};

struct CanvasDescription : ControlDescription {
    bool hears_presses = false;  // of any button: something may come of them
    bool accepts_focus = false;
    bool accepts_tabs = false;  // the Tab key is typed into it like any other
    bool focus_ring = true;
    bool erases_background = true;
    std::optional<std::uint32_t> background;  // 0xRRGGBB
};

enum class TabSide { kTop, kBottom, kRight, kLeft };

struct TabsDescription : ControlDescription {
    std::vector<std::string> captions;  // each may hold "&" before a mnemonic letter; "&&" is a plain one
    int chosen = 0;                     // counts while there are tabs
    TabSide side = TabSide::kTop;
    bool small = false;
    TextStyle style;
};

using MenuId = std::uint64_t;

enum class MenuRole { kPlain, kQuit, kPreferences, kAbout };

struct MenuDescription {
    MenuId id = 0;
    MenuRole role = MenuRole::kPlain;
    std::string text;      // "&" before the mnemonic letter
    std::string shortcut;  // "Cmd+Shift+Q"; Cmd is the platform's own command key
    bool separator = false;
    bool enabled = true;
    bool checked = false;
    bool visible = true;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    std::string help;
    std::vector<MenuDescription> children;
};

enum class MessageIcon { kNone, kNote, kCaution, kStop, kQuestion };

struct MessageDescription {
    std::string title;
    std::string text;
    std::string explanation;
    MessageIcon icon = MessageIcon::kNone;
    std::vector<std::string> buttons{"OK"};  // captions, the one that acts first
    std::size_t default_button = 0;          // one that isn't there: none is
    std::size_t cancel_button = 0;           // one that isn't there: the box is left by its buttons only
};

struct FileFilter {
    std::string label;                    // what the kind of file is called
    std::vector<std::string> extensions;  // without a dot; any letter case matches
};

struct FileChoice {
    std::string title;
    std::string prompt;          // what is asked, beside the title
    std::string action_caption;  // "" : the platform's own word
    std::string cancel_caption;
    std::string suggested_name;       // of a file, as bytes; "" for none
    std::string initial_folder;       // path as bytes; "" : where the platform begins
    std::vector<FileFilter> filters;  // offered in order; a front adds "All files" behind them
    std::optional<Point> position;    // on the screen; the platform's choice without one
};

}  // namespace tavrik::front
