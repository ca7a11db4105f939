#pragma once

#include "runtime/class.h"

#include <tavrik/application.h>
#include <tavrik/thread.h>

namespace tavrik {

struct Dictionary;
struct DockItem;
struct FolderItem;
struct MDIWindow;
struct MenuBar;
struct MenuItem;
struct MouseCursor;
struct Picture;
struct ResourceFork;
struct Sound;
struct Thread;
struct TrayItem;
struct _Pollable;

// The one object that stands for the running program.
struct Application : Class<Application> {
    static const ClassDefinition& definition();

    void NewDocument() { dispatch<&Application::NewDocument>(this); }
    void OpenDocument(Arg<FolderItem> item) { dispatch<&Application::OpenDocument>(this, item); }
    // Dispatches what has happened, and waits up to so long for the first thing. Below 0: only lets threads run.
    void DoEvents(std::int32_t milliseconds) { dispatch<&Application::DoEvents>(this, milliseconds); }
    void _AddMenuHandler(const String& item, Function handler) {
        dispatch<&Application::_AddMenuHandler>(this, item, handler);
    }
    void _AddPollableObject(Arg<_Pollable> object) { dispatch<&Application::_AddPollableObject>(this, object); }
    void _RemovePollableObject(Arg<_Pollable> object) { dispatch<&Application::_RemovePollableObject>(this, object); }
    void AddTrayItem(Arg<TrayItem> item) { dispatch<&Application::AddTrayItem>(this, item); }
    void RemoveTrayItem(Arg<TrayItem> item) { dispatch<&Application::RemoveTrayItem>(this, item); }
    // Act on the thread whose code runs.
    void YieldToNextThread() { dispatch<&Application::YieldToNextThread>(this); }
    void SleepCurrentThread(std::int32_t milliseconds) {
        dispatch<&Application::SleepCurrentThread>(this, milliseconds);
    }
    // One turn of the event loop.
    void _DoSingleEvent(bool wait) { dispatch<&Application::_DoSingleEvent>(this, wait); }
    // Raises EnableMenuItems, then enables the items that have a handler here. Turns nothing off.
    void _EnableMenuItems(Arg<ArrayOf<MenuItem>> items) { dispatch<&Application::_EnableMenuItems>(this, items); }
    void _CallOpen() { dispatch<&Application::_CallOpen>(this); }
    bool _HandleMenuCommand(Arg<MenuItem> item) { return dispatch<&Application::_HandleMenuCommand>(this, item); }
    // What lies under that name in the folder "Resources" of the program's bundle; the sound's name gets ".wav".
    Ref<Picture> _LoadPictureFromBundle(const String& name) {
        return dispatch<&Application::_LoadPictureFromBundle>(this, name);
    }
    Ref<Sound> _LoadBundleSound(const String& name) { return dispatch<&Application::_LoadBundleSound>(this, name); }
    void __DependencyList() { dispatch<&Application::__DependencyList>(this); }

    // The cursor over all of the program; nil leaves it to its windows and controls.
    Ref<tavrik::MouseCursor> MouseCursor() { return mMouseCursor; }
    void set_MouseCursor(Arg<tavrik::MouseCursor> cursor);
    Ref<tavrik::ResourceFork> ResourceFork() {
        return static_ref<tavrik::ResourceFork>(appResourceForkGetter(this, 0));
    }
    Ref<tavrik::MDIWindow> MDIWindow() { return mMDIWindow; }
    void set_MDIWindow(Arg<tavrik::MDIWindow> window) { mMDIWindow = window; }
    // Whether help tags show.
    bool BalloonHelpVisible() { return mBalloonHelpVisible; }
    void set_BalloonHelpVisible(bool visible);
    std::int32_t MajorVersion() { return AppIntegerVersionStuffGetter(this, 0); }
    std::int32_t MinorVersion() { return AppIntegerVersionStuffGetter(this, 1); }
    std::int32_t BugVersion() { return AppIntegerVersionStuffGetter(this, 2); }
    std::int32_t StageCode() { return AppIntegerVersionStuffGetter(this, 3); }
    std::int32_t NonReleaseVersion() { return AppIntegerVersionStuffGetter(this, 4); }
    std::int32_t RegionCode() { return AppIntegerVersionStuffGetter(this, 5); }
    String ShortVersion() { return AppStringVersionStuffGetter(this, 0); }
    String LongVersion() { return AppStringVersionStuffGetter(this, 1); }
    String PackageInfo() { return AppStringVersionStuffGetter(this, 2); }
    Ref<tavrik::MenuBar> MenuBar() { return static_ref<tavrik::MenuBar>(AppMenuBarGetter(this, 0)); }
    void set_MenuBar(Arg<tavrik::MenuBar> bar) { AppMenuBarSetter(this, 0, bar.object()); }
    Ref<tavrik::DockItem> DockItem() { return static_ref<tavrik::DockItem>(AppDockItemGetter(this, 0)); }
    // Whether closing the last window quits.
    bool AutoQuit() { return AppAutoCloseGetter(this, 0); }
    void set_AutoQuit(bool automatic) { AppAutoCloseSetter(this, 0, automatic); }

    // The program's file.
    Ref<FolderItem> ExecutableFile() { return static_ref<FolderItem>(AppFolderItemGetter(this, 0)); }
    // nil on the main one.
    Ref<Thread> CurrentThread() { return static_ref<Thread>(TAVRIKGetCurrentThread(this, 0)); }
    // In 60ths of a second since the system started, of the event that is being handled.
    std::int32_t _CurrentEventTime() { return AppGetCurrentEventTime(this, 0); }

    struct Events {
        static inline constinit Event<void()> Open, Close, EnableMenuItems, NewDocument, Activate, Deactivate;
        static inline constinit Event<void(Arg<Object>)> OpenDocument, HandleAppleEvent;
        static inline constinit Event<bool(Arg<Object>)> UnhandledException;
        static inline constinit Event<bool(bool)> CancelClose;
    };

    Field<tavrik::MenuBar> _mMenuBar;
    Field<Dictionary> _mMenuHandlers;
    Field<tavrik::MouseCursor> mMouseCursor;
    Field<tavrik::MDIWindow> mMDIWindow;
    bool mBalloonHelpVisible;
};

}  // namespace tavrik
