#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

// The free functions: each forwards to one function of the toolkit.
namespace tavrik {

struct Application;
struct FolderItem;
struct RuntimeException;
struct Window;

namespace Tavrik {

void MsgBox(const String& text);
// The file chosen in a modal dialog, or nil on cancel. The filter comes from FileType.
Ref<FolderItem> GetOpenFolderItem(const String& filter);
void EnableMenuItems();

// Texts count in characters, from 1 on.
String Left(const String& text, std::int32_t count);
String Mid(const String& text, std::int32_t start);
String Mid(const String& text, std::int32_t start, std::int32_t length);
std::int32_t Len(const String& text);
std::int32_t InStr(std::int32_t start, const String& text, const String& sought);
std::int32_t CountFields(const String& text, const String& separator);
String NthField(const String& text, const String& separator, std::int32_t field);
double Val(const String& text);

double Cos(double angle);
double Sin(double angle);

Ref<Window> _GetImplicitWindow(const String& class_name);
void _SetProperties(Arg<Object> object, const String& packed);
void _InstallInstanceEventHandler(Arg<Object> object, const String& event, Function handler);
void _UnhandledException(Arg<RuntimeException> exception);
void _RuntimeRun();
void _RuntimeRegisterAppObject(Arg<Application> app);
void _RuntimeInitExternalClasses();
void _InitPluginEntrypoints();
Ref<Object> _GetAppObject();

// The implicit windows by class name, where something has made such a list.
extern Object* _mImplicitWindowList;
void _mImplicitWindowList__Exit();

}  // namespace Tavrik
}  // namespace tavrik
