#pragma once

#include "toolkit/front/descriptions.h"

#include <QStringList>

#include <span>

namespace tavrik::front::qt {

// As QFileDialog takes them, with all files last.
QStringList to_name_filters(std::span<const FileFilter> filters);

}  // namespace tavrik::front::qt
