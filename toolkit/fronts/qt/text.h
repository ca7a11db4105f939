#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace tavrik::front::qt {

QString to_qt(std::string_view utf8);
std::string from_qt(const QString& text);

// The text as a person reads it: "&Load" is "Load", "Null && Void" is "Null & Void".
QString without_mnemonic(const QString& text);

// For a tool tip, which takes what looks like markup for markup.
QString as_plain_tool_tip(const QString& text);

}  // namespace tavrik::front::qt
