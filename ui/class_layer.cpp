#include "ui/class_layer.h"

#include "data/application.h"
#include "data/binary_stream.h"
#include "data/date.h"
#include "data/dictionary.h"
#include "data/file_type.h"
#include "data/folder_item.h"
#include "data/folder_item_dialog.h"
#include "data/memory_block.h"
#include "data/open_dialog.h"
#include "data/pair.h"
#include "data/permissions.h"
#include "data/pollable.h"
#include "data/streams.h"
#include "data/text_encoding.h"
#include "data/text_input_stream.h"
#include "data/text_output_stream.h"
#include "data/thread.h"
#include "data/variants.h"
#include "data/virtual_volume.h"
#include "introspection/array_info.h"
#include "introspection/attribute_info.h"
#include "introspection/class_info.h"
#include "introspection/constructor_info.h"
#include "introspection/leaf_types.h"
#include "introspection/method_info.h"
#include "introspection/parameter_info.h"
#include "introspection/property_info.h"
#include "runtime/exceptions.h"
#include "runtime/tavrik_module.h"
#include "ui/apple_menu_item.h"
#include "ui/canvas.h"
#include "ui/container_control.h"
#include "ui/control.h"
#include "ui/embedded_window_control.h"
#include "ui/input_interfaces.h"
#include "ui/mdi_window.h"
#include "ui/menu_bar.h"
#include "ui/message_dialog.h"
#include "ui/mouse_cursor.h"
#include "ui/page_panel.h"
#include "ui/pane.h"
#include "ui/prefs_menu_item.h"
#include "ui/push_button.h"
#include "ui/quit_menu_item.h"
#include "ui/rect_control.h"
#include "ui/tab_panel.h"
#include "ui/window.h"
#include "ui/window_support.h"

namespace tavrik {

void initialize_class_layer() {
    build_classes<Window>();
    _WindowSupport::Windows__Init();
    build_classes<_CancelButton, _AlternateActionButton, _ActionButton, MessageDialogButton, MessageDialog,

                  Pair, MemoryBlock, Date, Dictionary,

                  Introspection::ArrayInfo, Introspection::MemberInfo, Introspection::TypeInfo,
                  Introspection::ValueTypeInfo, Introspection::ClassInfo, Introspection::PrimitiveTypeInfo,
                  Introspection::PointerTypeInfo, Introspection::StructureInfo, Introspection::EnumInfo,
                  Introspection::VariantInfo, Introspection::StringInfo, Introspection::PropertyInfo,
                  Introspection::PropertyInfoImp, Introspection::MethodBase, Introspection::MethodInfo,
                  Introspection::MethodInfoImp, Introspection::ParameterInfo, Introspection::ParameterInfoImp,
                  Introspection::ConstructorInfo, Introspection::ConstructorInfoImp, Introspection::AttributeInfo,

                  _MenuBarInstaller, MenuBar, MenuItem, PrefsMenuItem, AppleMenuItem, QuitMenuItem,

                  EndException, FunctionNotFoundException, TypeMismatchException, KeyNotFoundException,
                  OutOfBoundsException, OutOfMemoryException, ServiceNotAvailableException, StackOverflowException,
                  UnsupportedFormatException, ThreadEndException, ThreadAlreadyRunningException, RuntimeException,
                  NilObjectException, IllegalCastException, InvalidParentException,

                  actionSource, actionNotificationReceiver,

                  Thread, FolderItem, Permissions, VirtualVolume, Writeable, TextOutputStream, TextInputStream,
                  Readable, BinaryStream, MDIWindow, TextEncoding, _Pollable, Application, OpenDialog, FolderItemDialog,
                  EmbeddedWindowControl, RectControl, ContainerControl, Control, _MouseCursorImp, MouseCursor,

                  _MouseEvents, _FocusEvents, _PaneChild, _Pane, PushButton, Canvas, PagePanel, TabPanel,

                  _VariantOSType, _VariantWindowPtr, _VariantCFStringRef, _VariantPString, _VariantWString,
                  _VariantCString, _VariantPtr, _VariantStructure, _VariantCurrency, _VariantColor, _VariantBoolean,
                  _VariantDouble, _VariantSingle, _VariantString, _VariantUInt64, _VariantInt64, _VariantInt32,
                  _VariantUInt32, FileType>();
}

void finalize_class_layer() {
    Tavrik::_mImplicitWindowList__Exit();
    _WindowSupport::mDirtyWindows__Exit();
    _WindowSupport::Windows__Exit();
    Introspection::ArrayInfo::mArrayMap__Exit();
    Introspection::ClassInfo::sClassRefMap__Exit();
    Introspection::ClassInfo::sClassFQNToRefMap__Exit();
}

}  // namespace tavrik
