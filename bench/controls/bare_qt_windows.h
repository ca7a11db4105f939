#pragma once

#include "bench/controls/places.h"

#include <QWidget>

#include <memory>

// The same windows, written on Qt alone.
namespace tavrik::bench {

std::unique_ptr<QWidget> make_bare_window();
std::unique_ptr<QWidget> make_bare_window_with_buttons(int count, ButtonHeight height);
std::unique_ptr<QWidget> make_bare_window_with_widgets(Tree tree);

}  // namespace tavrik::bench
