// The streams that an item opens.
#include "toolkit/core/binary_stream.h"
#include "toolkit/core/file_type.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/mac_metadata.h"
#include "toolkit/core/text_streams.h"

#include <tavrik/folder_item.h>

#include <utility>

namespace tavrik {
namespace {

using core::Opening;

// nil, with a note of why, if it couldn't be opened.
Ref<Object> stream_over(Object* item, Opening opening, std::string_view not_done,
                        Ref<Object> (*make)(std::unique_ptr<core::ByteStore>)) {
    core::ItemState& state = core::item_state(item);
    core::OpenedStore opened = state.files->open(state.path, opening);
    if (!state.done(not_done, opened.error, opened.reason)) return nullptr;
    return make(std::move(opened.store));
}

}  // namespace

Ref<Object> FolderItemOpenBinaryFile(Object* item, bool write) {
    return stream_over(item, write ? Opening::kWrite : Opening::kRead, write ? "opened for writing" : "opened",
                       core::make_binary_stream);
}

Ref<Object> FolderItemCreateBinaryFile(Object* item, const String& type) {
    Ref<Object> stream = stream_over(item, Opening::kCreate, "created", core::make_binary_stream);
    const auto codes = core::mac_codes_of_type(type.view());
    if (!stream || !codes || core::item_state(item).is_inside()) return stream;
    const std::string& path = core::item_state(item).path;
    // A file that keeps no codes is a file all the same.
    core::write_mac_code(path, core::MacCode::kType, codes->type);
    core::write_mac_code(path, core::MacCode::kCreator, codes->creator);
    return stream;
}

Ref<Object> FolderItemOpenTextFile(Object* item) {
    return stream_over(item, Opening::kRead, "opened", core::make_text_input_stream);
}

Ref<Object> FolderItemAppendTextFile(Object* item) {
    return stream_over(item, Opening::kAppend, "opened for writing", core::make_text_output_stream);
}

Ref<Object> FolderItemCreateTextFile(Object* item) {
    return stream_over(item, Opening::kCreate, "created", core::make_text_output_stream);
}

}  // namespace tavrik
