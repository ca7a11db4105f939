#include <tavrik/application.h>
#include <tavrik/control.h>
#include <tavrik/exception.h>
#include <tavrik/folder_item.h>
#include <tavrik/window.h>

#include <string>

// The doors to classes that the program doesn't have.
namespace tavrik {
namespace {

[[noreturn]] void raise_missing(const char* class_name) {
    RuntimeRaise("ServiceNotAvailableException", std::string("this program has no ") + class_name);
}

}  // namespace

void RuntimeControlDrawInto(Object*, Object*, std::int32_t, std::int32_t) { raise_missing("Graphics"); }
Ref<Object> controlNewDragItem(Object*, std::int32_t, std::int32_t, std::int32_t, std::int32_t) {
    raise_missing("DragItem");
}

Ref<Object> folderOpenResourceFork(Object*) { raise_missing("ResourceFork"); }
Ref<Object> folderCreateResourceFork(Object*, const String&) { raise_missing("ResourceFork"); }
Ref<Object> FolderItemOpenAsIcons(Object*) { raise_missing("Picture"); }
Ref<Object> FolderItemOpenImage(Object*) { raise_missing("Picture"); }
Ref<Object> FolderItemOpenVectorImage(Object*) { raise_missing("Picture"); }
Ref<Object> FolderItemOpenSound(Object*) { raise_missing("Sound"); }
Ref<Object> FolderItemOpenMovie(Object*) { raise_missing("Movie"); }
Ref<Object> FolderItemOpenResourceMovie(Object*, std::int32_t) { raise_missing("Movie"); }
void FolderItemOpenStyledEditField(Object*, Object*) { raise_missing("EditField"); }
void FolderItemSaveStyledEditField(Object*, Object*) { raise_missing("EditField"); }
void FolderItemSaveAsPicture(Object*, Object*, std::int32_t) { raise_missing("Picture"); }
void FolderItemSaveAsJPEG(Object*, Object*) { raise_missing("Picture"); }

void formDrawInto(Object*, Object*, std::int32_t, std::int32_t, bool) { raise_missing("Graphics"); }
void formDrawBackground(Object*, Object*, std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                        std::int32_t) {
    raise_missing("Graphics");
}
Ref<Object> formNewDragItem(Object*, std::int32_t, std::int32_t, std::int32_t, std::int32_t) {
    raise_missing("DragItem");
}
Ref<Object> windowGraphicsGetter(Object*, std::int32_t) { return nullptr; }
Ref<Object> WindowDockItemGetter(Object*, std::int32_t) { return nullptr; }
void AddTrayItem(Object*, Object*) { raise_missing("TrayItem"); }
void RemoveTrayItem(Object*, Object*) { raise_missing("TrayItem"); }
Ref<Object> appResourceForkGetter(Object*, std::int32_t) { return nullptr; }
Ref<Object> AppDockItemGetter(Object*, std::int32_t) { return nullptr; }

}  // namespace tavrik
