#include "toolkit/fronts/qt/path_bytes.h"

#include "toolkit/fronts/qt/text.h"

#include <filesystem>
#include <optional>

namespace tavrik::front::qt {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

bool may_lack_bytes(const fs::path& path) { return path.native().find(kReplacement) != std::string::npos; }

// The one entry of `folder` that reads as `name` does; nothing if there are none or several.
std::optional<fs::path> entry_that_reads_as(const fs::path& name, const fs::path& folder) {
    const QString wanted = to_qt(name.native());
    std::optional<fs::path> found;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (to_qt(entry->path().filename().native()) != wanted) continue;
        if (found) return std::nullopt;
        found = entry->path();
    }
    return found;
}

fs::path with_bytes_restored(const fs::path& path) {
    fs::path restored;
    for (const fs::path& part : path) {
        const auto entry = may_lack_bytes(part) ? entry_that_reads_as(part, restored) : std::nullopt;
        if (entry) {
            restored = *entry;
        } else {
            restored /= part;
        }
    }
    return restored;
}

}  // namespace

QUrl to_url(std::string_view path) {
    const QByteArray bytes(path.data(), static_cast<qsizetype>(path.size()));
    return QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/"));
}

std::string to_path(const QUrl& url) {
    const QByteArray encoded = url.path(QUrl::FullyEncoded).toLatin1();
    const fs::path path(QByteArray::fromPercentEncoding(encoded).toStdString());
    std::error_code error;
    if (!may_lack_bytes(path) || fs::exists(path, error)) return path.native();
    return with_bytes_restored(path).native();
}

}  // namespace tavrik::front::qt
