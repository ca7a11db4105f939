#include "ui/mouse_cursor.h"

#include "runtime/frame.h"

namespace tavrik {

Ref<MouseCursor> MouseCursor::_CursorWithImp(Arg<_MouseCursorImp> imp) {
    const Frame frame(imp);
    Ref<MouseCursor> cursor = make<MouseCursor>();
    cursor->_mImp = imp;
    return cursor;
}

namespace {

constexpr OperationRow kOperations[] = {
    shared<&MouseCursor::_CursorWithImp>("_CursorWithImp"),
};

constexpr FieldRow kFields[] = {
    field<&MouseCursor::_mImp>("_mImp"),
};

}  // namespace

const ClassDefinition& _MouseCursorImp::definition() {
    static constexpr ClassDefinition kDefinition = define<_MouseCursorImp>({});
    return kDefinition;
}

const ClassDefinition& MouseCursor::definition() {
    static constexpr ClassDefinition kDefinition = define<MouseCursor>({
        .exit = exit_forwards_to<MouseCursor, mouseCursorDestructor>,
        .operations = kOperations,
        .fields = kFields,
    });
    return kDefinition;
}

}  // namespace tavrik
