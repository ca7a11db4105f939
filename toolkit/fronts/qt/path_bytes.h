#pragma once

#include <QUrl>

#include <string>
#include <string_view>

// File names are bytes, and not always UTF-8: these conversions lose none.
namespace tavrik::front::qt {

QUrl to_url(std::string_view path);

// The path that a URL of a local file names. A dialog that put U+FFFD in place of bytes that aren't UTF-8 is seen
// through where one file alone can be meant.
std::string to_path(const QUrl& url);

}  // namespace tavrik::front::qt
