#include "toolkit/core/mouse_cursor.h"

#include "toolkit/core/cursor_file.h"
#include "toolkit/core/failure.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/reflection.h"

#include <tavrik/exception.h>
#include <tavrik/folder_item.h>
#include <tavrik/mouse_cursor.h>
#include <tavrik/runtime.h>

#include <array>
#include <cerrno>
#include <utility>

namespace tavrik {
namespace core {
namespace {

constinit SharedOperation<Ref<Object>(Object*)> cursor_with_imp{"MouseCursor", "_CursorWithImp",
                                                                "%o<MouseCursor>%o<_MouseCursorImp>"};
constinit ObjectField imp_field{"MouseCursor", "_mImp"};

struct CursorState final : NativeState {
    explicit CursorState(front::Cursor shown) : cursor(std::move(shown)) {}
    front::Cursor cursor;
};

// A cursor's file is a few kilobytes; what is longer than any is something else.
constexpr std::size_t kLongestFile = std::size_t{16} << 20;

// The system's error number; EFBIG for what can't be a cursor.
int read_all(ByteStore& store, std::string& bytes) {
    std::array<char, 8192> block;
    while (bytes.size() <= kLongestFile) {
        int error = 0;
        const std::size_t count = store.read(bytes.size(), block, error);
        if (count == 0) return error;
        bytes.append(block.data(), count);
    }
    return EFBIG;
}

}  // namespace

Ref<Object> make_mouse_cursor(front::Cursor cursor) {
    const Ref<Object> imp = RuntimeNewObject(need_class("_MouseCursorImp"));
    imp.object()->native = new CursorState(std::move(cursor));
    return cursor_with_imp(imp.object());
}

std::optional<front::Cursor> cursor_of(Object* mouse_cursor) {
    if (mouse_cursor == nullptr) return std::nullopt;
    const Ref<Object> imp = imp_field.get(mouse_cursor);
    if (!imp || imp.object()->native == nullptr) return std::nullopt;
    return native<CursorState>(imp.object())->cursor;
}

}  // namespace core

// The native cursor lies in the _MouseCursorImp, which may be shared and ends by itself.
void mouseCursorDestructor(Object*) {}

Ref<Object> RuntimeStandardCursor(std::int32_t shape) {
    if (shape < 0 || shape > static_cast<std::int32_t>(front::CursorShape::kBlank))
        RuntimeRaise("OutOfBoundsException", "no standard cursor has the number " + std::to_string(shape));
    return core::make_mouse_cursor({.shape = static_cast<front::CursorShape>(shape), .image = nullptr});
}

Ref<Object> FolderItemOpenAsCursor(Object* item) {
    core::ItemState& state = core::item_state(item);
    core::OpenedStore opened = state.files->open(state.path, core::Opening::kRead);
    if (!state.done("opened", opened.error, opened.reason)) return nullptr;
    std::string bytes;
    if (!state.done("read", core::read_all(*opened.store, bytes))) return nullptr;
    std::string reason;
    auto image = core::read_cursor_file(bytes, reason);
    if (!image) RuntimeRaise("UnsupportedFormatException", core::describe_failure(state.path, "read", reason));
    return core::make_mouse_cursor({.image = std::make_shared<const front::CursorImage>(*std::move(image))});
}

}  // namespace tavrik
