// The streams that an item opens.
#include "toolkit/core/binary_stream.h"
#include "toolkit/core/file_store.h"
#include "toolkit/core/file_type.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/mac_metadata.h"
#include "toolkit/core/text_streams.h"

#include <tavrik/folder_item.h>

#include <cerrno>
#include <utility>

namespace tavrik {
namespace {

using core::OpenedFile;

// nil, with a note of why, if it couldn't be opened.
Ref<Object> stream_over(Object* item, OpenedFile opened, std::string_view not_done,
                        Ref<Object> (*make)(core::FileStore)) {
    // A file that is no file has no number of the system's own; this one comes closest.
    const int error = opened.file ? 0 : opened.error == 0 ? EINVAL : opened.error;
    if (!core::item_state(item).done(not_done, error, opened.reason)) return nullptr;
    return make(std::move(*opened.file));
}

}  // namespace

Ref<Object> FolderItemOpenBinaryFile(Object* item, bool write) {
    const std::string& path = core::item_state(item).path;
    return stream_over(item, core::FileStore::open(path, write), write ? "opened for writing" : "opened",
                       core::make_binary_stream);
}

Ref<Object> FolderItemCreateBinaryFile(Object* item, const String& type) {
    const std::string& path = core::item_state(item).path;
    Ref<Object> stream = stream_over(item, core::FileStore::create(path), "created", core::make_binary_stream);
    const auto codes = core::mac_codes_of_type(type.view());
    if (!stream || !codes) return stream;
    // A file that keeps no codes is a file all the same.
    core::write_mac_code(path, core::MacCode::kType, codes->type);
    core::write_mac_code(path, core::MacCode::kCreator, codes->creator);
    return stream;
}

Ref<Object> FolderItemOpenTextFile(Object* item) {
    return stream_over(item, core::FileStore::open(core::item_state(item).path, false), "opened",
                       core::make_text_input_stream);
}

Ref<Object> FolderItemAppendTextFile(Object* item) {
    return stream_over(item, core::FileStore::append(core::item_state(item).path), "opened for writing",
                       core::make_text_output_stream);
}

Ref<Object> FolderItemCreateTextFile(Object* item) {
    return stream_over(item, core::FileStore::create(core::item_state(item).path), "created",
                       core::make_text_output_stream);
}

}  // namespace tavrik
