#include "runtime/tavrik_module.h"

#include <tavrik/dialogs.h>
#include <tavrik/runtime.h>
#include <tavrik/window.h>

namespace tavrik::Tavrik {
namespace {

void* plugin_entrypoints = nullptr;

}  // namespace

Object* _mImplicitWindowList = nullptr;

void MsgBox(const String& text) { RuntimeMsgBox(text); }
Ref<FolderItem> GetOpenFolderItem(const String& filter) {
    return static_ref<FolderItem>(RuntimeGetOpenFolderItem(filter));
}
void EnableMenuItems() { enableMenuItems(0); }

String Left(const String& text, std::int32_t count) { return StringDBCSLeft(text, count); }
String Mid(const String& text, std::int32_t start) { return StringDBCSMid2(text, start); }
String Mid(const String& text, std::int32_t start, std::int32_t length) { return StringDBCSMid3(text, start, length); }
std::int32_t Len(const String& text) { return StringDBCSLen(text); }
std::int32_t InStr(std::int32_t start, const String& text, const String& sought) {
    return StringInStr(start, text, sought);
}
std::int32_t CountFields(const String& text, const String& separator) { return StringCountFields(text, separator); }
String NthField(const String& text, const String& separator, std::int32_t field) {
    return StringNthField(text, separator, field);
}
double Val(const String& text) { return StringVal(text); }

double Cos(double angle) { return RuntimeCos(angle); }
double Sin(double angle) { return RuntimeSin(angle); }

Ref<Window> _GetImplicitWindow(const String& class_name) {
    return static_ref<Window>(RuntimeGetImplicitWindow(class_name));
}
void _SetProperties(Arg<Object> object, const String& packed) { RuntimeMassPropertySetter(object.object(), packed); }
void _InstallInstanceEventHandler(Arg<Object> object, const String& event, Function handler) {
    RuntimeInstallInstanceEventHandler(object.object(), event, handler);
}
void _UnhandledException(Arg<RuntimeException> exception) { RuntimeUnhandledException(exception.object()); }
void _RuntimeRun() { RuntimeRun(); }
void _RuntimeRegisterAppObject(Arg<Application> app) { RuntimeRegisterAppObject(app.object()); }
void _RuntimeInitExternalClasses() { RuntimeInitExternalClasses(); }
void _InitPluginEntrypoints() { plugin_entrypoints = RuntimeAllocatePluginEntrypointsTable(0); }
Ref<Object> _GetAppObject() { return getAppObject(); }

void _mImplicitWindowList__Exit() { RuntimeLockUnlockObjects(nullptr, std::exchange(_mImplicitWindowList, nullptr)); }

}  // namespace tavrik::Tavrik
