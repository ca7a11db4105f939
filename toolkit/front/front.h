#pragma once

#include "toolkit/front/descriptions.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>

// What the core asks of whatever shows it to a person. Everything runs on the main thread, except post().
//
// A face shows one thing and holds no truth: apply() takes the whole state each time, so that a face made late,
// or made anew, shows the same as one that was there from the start. Listeners outlive their faces, and are
// boundaries: nothing thrown leaves them. A listener may destroy the very face that reports to it.
namespace tavrik::front {

// Positions are relative to what listens.
class InputListener {
public:
    // True: the press is taken over, so that drags and the release follow, and what the desktop would do with it is
    // left out.
    virtual bool mouse_down(Point at, MouseButton button) = 0;
    virtual void mouse_dragged(Point at) = 0;
    virtual void mouse_up(Point at) = 0;
    // How far in lines. False leaves it to what lies below.
    virtual bool mouse_wheel(Point at, int delta_x, int delta_y) = 0;
    // True: the key is used up.
    virtual bool key_down(const Key& key) = 0;
    // A contextual menu was asked for, by mouse or by key. False leaves it to what lies below.
    virtual bool menu_requested(Point at) = 0;

protected:
    ~InputListener() = default;
};

class ControlListener : public InputListener {
public:
    virtual void focus_changed(bool has_focus) = 0;

protected:
    ~ControlListener() = default;
};

class ButtonListener {
public:
    virtual void pressed() = 0;

protected:
    ~ButtonListener() = default;
};

class TabsListener {
public:
    // The person chose another tab; the face shows it by now.
    virtual void tab_chosen(int tab) = 0;

protected:
    ~TabsListener() = default;
};

class ButtonFace;
class CanvasFace;
class PanelFace;
class TabsFace;

// What controls lie in: a window, or another control. A face ends before what it lies in does.
class ContainerFace {
public:
    virtual ~ContainerFace() = default;
    virtual std::unique_ptr<ButtonFace> make_button(ControlListener& control, ButtonListener& button) = 0;
    virtual std::unique_ptr<CanvasFace> make_canvas(ControlListener& control) = 0;
    virtual std::unique_ptr<PanelFace> make_panel(ControlListener& control) = 0;
    virtual std::unique_ptr<TabsFace> make_tabs(ControlListener& control, TabsListener& tabs) = 0;
};

class ControlFace : public ContainerFace {
public:
    virtual void set_focus() = 0;
    // Has it drawn anew, or a part of it.
    virtual void refresh(const Rect* part) = 0;
    // The window system's identifier; 0 if it has none.
    virtual std::uintptr_t handle() = 0;
};

class ButtonFace : public ControlFace {
public:
    virtual void apply(const ButtonDescription& button) = 0;
};

class CanvasFace : public ControlFace {
public:
    virtual void apply(const CanvasDescription& canvas) = 0;
};

// Shows nothing of its own.
class PanelFace : public ControlFace {
public:
    virtual void apply(const ControlDescription& panel) = 0;
};

// Tabs at one side of an area. What lies in the area stands where the control tells it, from the corner of the whole.
class TabsFace : public ControlFace {
public:
    virtual void apply(const TabsDescription& tabs) = 0;
    // The tab at a place of the control; -1: none.
    virtual int tab_at(Point at) = 0;
};

// kUnderWay while the person drags, kDone at the end of that and for any other change.
enum class ResizePhase { kUnderWay, kDone };

// Input is what no control has taken.
class WindowListener : public InputListener {
public:
    // Every move inside of the content, whatever lies there; and that the pointer has left it.
    virtual void mouse_moved(Point at) = 0;
    virtual void mouse_left() = 0;
    // The person asked to close the window; the core decides, and destroys the face if it agrees.
    virtual void close_requested() = 0;
    virtual void activated(bool active) = 0;
    virtual void moved(int left, int top) = 0;
    virtual void resized(int width, int height, ResizePhase phase) = 0;
    virtual void size_state_changed(WindowSize now) = 0;
    // The menus are about to be looked at: the core may apply them anew before it returns.
    virtual void menus_opening() = 0;
    virtual void menu_chosen(MenuId chosen) = 0;

protected:
    ~WindowListener() = default;
};

class WindowFace : public ContainerFace {
public:
    virtual void apply(const WindowDescription& window) = 0;
    virtual void apply_menus(std::span<const MenuDescription> menus) = 0;
    virtual void bring_to_front() = 0;
    virtual void clear_focus() = 0;
    // A part of the content, or all of it for nullptr, is to be painted anew.
    virtual void refresh(const Rect* part) = 0;
    // Paints what waits for it, at once.
    virtual void update_now() = 0;
    // The pointer's place in the content; nothing if there is none.
    virtual std::optional<Point> pointer() = 0;
    // What the window system knows the window by; 0 where there is nothing.
    virtual std::uintptr_t handle() = 0;
    // The window that this one stays above, or nullptr. Told before the owner's face goes.
    virtual void set_owner(WindowFace* owner) = 0;
};

class ApplicationListener {
public:
    // The desktop asks the whole program to end (the session ends, or a signal says so).
    virtual void quit_requested() = 0;
    // It is time for what Front::wake_in() was told. Returns within a moment, as any report does.
    virtual void woken() = 0;
    // The program as a whole has come to the front of the desktop, or has left it.
    virtual void activated(bool active) = 0;
    // The desktop hands over files, as paths.
    virtual void open_documents(std::span<const std::string> paths) = 0;

protected:
    ~ApplicationListener() = default;
};

class Front {
public:
    virtual ~Front() = default;

    // Dispatches what happens until quit() is called, however deep inside.
    virtual void run() = 0;
    virtual void quit() = 0;
    // Makes one turn of run(): dispatches what has happened by now, and waits for the first thing to happen if told to.
    // False: the front has quit, and nothing will happen any more.
    virtual bool pump(bool wait) = 0;
    // Runs `call` on the main thread, inside run() or pump(). The one member that any thread may call.
    virtual void post(std::function<void()> call) = 0;
    // Calls ApplicationListener::woken() once, from run(), pump() or a dialog, when so much time has passed and
    // what has happened by then is dispatched. Takes the place of what it was told before.
    virtual void wake_in(std::chrono::milliseconds delay) = 0;

    // Over the whole program, before what windows and controls have; nothing leaves it to them.
    virtual void set_cursor(std::optional<Cursor> cursor) = 0;
    // Whether what is pointed at shows its help. It does at first.
    virtual void set_help_visible(bool visible) = 0;

    virtual std::unique_ptr<WindowFace> make_window(WindowListener& listener) = 0;
    // The part of the main screen that windows may cover; empty without a screen.
    virtual Rect available_area() = 0;

    // Modal over `over`, or over the whole program if that is nullptr. Returns the index of the button pressed;
    // closing the box counts as its cancel button, and so does the end of the program.
    virtual std::size_t show_message(const MessageDescription& message, WindowFace* over) = 0;
    // Shows the entries of a menu at a place of the screen, or at the pointer, and waits. Nothing if the person chose
    // nothing.
    virtual std::optional<MenuId> pop_up(const MenuDescription& menu, std::optional<Point> at, WindowFace* over) = 0;
    // The chosen path, as the bytes the file system has, or nothing if the person cancelled.
    virtual std::optional<std::string> choose_file(const FileChoice& choice, WindowFace* over) = 0;
};

// What a front is started with.
struct Start {
    std::string program_name;  // shown where a window has no title
    ApplicationListener& application;
};

// A front module exports this under the name kMakeFrontSymbol. nullptr: there is nothing to show on, and `reason`
// says why.
using MakeFront = Front* (*)(const Start& start, std::string& reason);
inline constexpr const char* kMakeFrontSymbol = "tavrik_make_front";

}  // namespace tavrik::front
