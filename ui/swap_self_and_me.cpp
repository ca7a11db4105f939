#include "ui/control.h"
#include "ui/input_interfaces.h"
#include "ui/window.h"

namespace tavrik {
namespace {

Ref<Object> window_of_pane_child(Object* child) {
    constexpr int kWindow = 1;
    using Entry = Ref<Object> (*)(Object*);
    const Function* const operations = RuntimeLookupInterfaceVtable(child, _PaneChild::__Lookup());
    return reinterpret_cast<Entry>(operations[kWindow])(child);
}

}  // namespace

void RuntimeSwapSelfAndMe(Ref<Object>& self, Ref<Object>& me) {
    me = self;
    if (is_a<Control>(me)) {
        self = check_cast<Control>(me)->Window();
    } else if (is_a<_PaneChild>(me)) {
        self = window_of_pane_child(me.object());
    }
}

}  // namespace tavrik
