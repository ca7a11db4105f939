#pragma once

#include "runtime/class.h"

#include <tavrik/application.h>

namespace tavrik {

struct Dictionary;
struct MenuBar;
struct MenuItem;

// The one object that stands for the running program.
struct Application : Class<Application> {
    static const ClassDefinition& definition();

    void _AddMenuHandler(const String& item, Function handler) {
        dispatch<&Application::_AddMenuHandler>(this, item, handler);
    }
    // Raises EnableMenuItems, then enables the items that have a handler here. Turns nothing off.
    void _EnableMenuItems(Arg<ArrayOf<MenuItem>> items) { dispatch<&Application::_EnableMenuItems>(this, items); }
    void _CallOpen() { dispatch<&Application::_CallOpen>(this); }
    bool _HandleMenuCommand(Arg<MenuItem> item) { return dispatch<&Application::_HandleMenuCommand>(this, item); }
    void __DependencyList() { dispatch<&Application::__DependencyList>(this); }

    Ref<tavrik::MenuBar> MenuBar() { return static_ref<tavrik::MenuBar>(AppMenuBarGetter(this, 0)); }
    void set_MenuBar(Arg<tavrik::MenuBar> bar) { AppMenuBarSetter(this, 0, bar.object()); }
    // Whether closing the last window quits.
    bool AutoQuit() { return AppAutoCloseGetter(this, 0); }
    void set_AutoQuit(bool automatic) { AppAutoCloseSetter(this, 0, automatic); }

    struct Events {
        static inline constinit Event<void()> Open, Close, EnableMenuItems, NewDocument, Activate, Deactivate;
        static inline constinit Event<void(Arg<Object>)> OpenDocument, HandleAppleEvent;
        static inline constinit Event<bool(Arg<Object>)> UnhandledException;
        static inline constinit Event<bool(bool)> CancelClose;
    };

    Field<tavrik::MenuBar> _mMenuBar;
    Field<Dictionary> _mMenuHandlers;
};

}  // namespace tavrik
