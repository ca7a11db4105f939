#include "data/application.h"

#include "data/dictionary.h"
#include "data/folder_item.h"
#include "data/pollable.h"
#include "runtime/frame.h"
#include "runtime/tavrik_module.h"
#include "ui/menu_item.h"

#include <string>

namespace tavrik {

void Application::set_MouseCursor(Arg<tavrik::MouseCursor> cursor) {
    appMouseCursorSetter(this, detail::FieldEntry<&Application::mMouseCursor>::offset(), cursor.object());
}

void Application::set_BalloonHelpVisible(bool visible) {
    AppBalloonHelpVisibleSetter(this, detail::FieldEntry<&Application::mBalloonHelpVisible>::offset(), visible);
}

namespace {

void enable_menu_items(Application* self, Arg<ArrayOf<MenuItem>> items) {
    const Frame frame(self, items);
    Application::Events::EnableMenuItems.raise(self);
    enable_handled(items, self->_mMenuHandlers);
}

void call_open(Application* self) {
    const Frame frame(self);
    Application::Events::Open.raise(self);
}

bool handle_menu_command(Application* self, Arg<MenuItem> item) {
    const Frame frame(self, item);
    return false;
}

// The executable lies two levels inside of the bundle.
Ref<FolderItem> resource(const String& name) {
    const Ref<Application> app = check_cast<Application>(Tavrik::_GetAppObject());
    return app->ExecutableFile()->Parent()->Parent()->Child("Resources"_s)->Child(name);
}

Ref<Picture> load_picture(Application* self, const String& name) {
    const Frame frame(self, name);
    return resource(name)->OpenAsPicture();
}

Ref<Sound> load_sound(Application* self, const String& name) {
    const Frame frame(self, name);
    return resource(String(std::string(name.view()) + ".wav"))->OpenAsSound();
}

constexpr OperationRow kOperations[] = {
    operation<&Application::NewDocument, ApplicationNewDocument>("NewDocument"),
    operation<&Application::OpenDocument, ApplicationOpenDocument>("OpenDocument"),
    operation<&Application::DoEvents, RuntimeDoEvents>("DoEvents"),
    operation<&Application::_AddMenuHandler, ApplicationAddMenuHandler>("_AddMenuHandler"),
    operation<&Application::_AddPollableObject, ApplicationAddPollableObject>("_AddPollableObject"),
    operation<&Application::_RemovePollableObject, ApplicationRemovePollableObject>("_RemovePollableObject"),
    operation<&Application::AddTrayItem, AddTrayItem>("AddTrayItem"),
    operation<&Application::RemoveTrayItem, RemoveTrayItem>("RemoveTrayItem"),
    operation<&Application::YieldToNextThread, YieldToNextThread>("YieldToNextThread"),
    operation<&Application::SleepCurrentThread, AppSleepCurrentThread>("SleepCurrentThread"),
    operation<&Application::_DoSingleEvent, ApplicationDoSingleEvent>("_DoSingleEvent"),
    operation<&Application::_EnableMenuItems, enable_menu_items>("_EnableMenuItems"),
    operation<&Application::_CallOpen, call_open>("_CallOpen"),
    operation<&Application::_HandleMenuCommand, handle_menu_command>("_HandleMenuCommand"),
    operation<&Application::_LoadPictureFromBundle, load_picture>("_LoadPictureFromBundle"),
    operation<&Application::_LoadBundleSound, load_sound>("_LoadBundleSound"),
    operation<&Application::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr FieldRow kFields[] = {
    field<&Application::_mMenuBar>("_mMenuBar"),
    field<&Application::_mMenuHandlers>("_mMenuHandlers"),
};

constexpr PropertyRow kProperties[] = {
    stored<&Application::mMouseCursor, appMouseCursorSetter>("MouseCursor"),
    property<&Application::ResourceFork, ignored>("ResourceFork"),
    stored<&Application::mMDIWindow>("MDIWindow"),
    stored<&Application::mBalloonHelpVisible, AppBalloonHelpVisibleSetter, AppBalloonHelpVisibleGetter>(
        "BalloonHelpVisible"),
    property<&Application::MajorVersion>("MajorVersion"),
    property<&Application::MinorVersion>("MinorVersion"),
    property<&Application::BugVersion>("BugVersion"),
    property<&Application::StageCode>("StageCode"),
    property<&Application::NonReleaseVersion>("NonReleaseVersion"),
    property<&Application::RegionCode>("RegionCode"),
    property<&Application::ShortVersion>("ShortVersion"),
    property<&Application::LongVersion>("LongVersion"),
    property<&Application::PackageInfo>("PackageInfo"),
    property<&Application::MenuBar, &Application::set_MenuBar>("MenuBar"),
    property<&Application::DockItem, ignored>("DockItem"),
    property<&Application::AutoQuit, &Application::set_AutoQuit>("AutoQuit"),
    property<&Application::ExecutableFile, ignored>("ExecutableFile"),
    property<&Application::CurrentThread, ignored>("CurrentThread"),
    property<&Application::_CurrentEventTime>("_CurrentEventTime"),
};

constexpr EventRow kEvents[] = {
    event("Open", Application::Events::Open),
    event("Close", Application::Events::Close),
    event("EnableMenuItems", Application::Events::EnableMenuItems),
    event("NewDocument", Application::Events::NewDocument),
    event("OpenDocument", Application::Events::OpenDocument),
    event("HandleAppleEvent", Application::Events::HandleAppleEvent),
    event("Activate", Application::Events::Activate),
    event("Deactivate", Application::Events::Deactivate),
    event("UnhandledException", Application::Events::UnhandledException),
    event("CancelClose", Application::Events::CancelClose),
};

}  // namespace

const ClassDefinition& Application::definition() {
    static constexpr ClassDefinition kDefinition = define<Application>({
        .init = init_forwards_to<Application, ApplicationInitializer>,
        .exit = exit_forwards_to<Application, ApplicationFinalizer>,
        .operations = kOperations,
        .fields = kFields,
        .properties = kProperties,
        .events = kEvents,
    });
    return kDefinition;
}

}  // namespace tavrik
