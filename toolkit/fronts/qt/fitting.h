#pragma once

#include <QRect>

#include <cstddef>
#include <vector>

// How a control that wants more room than its bounds give finds it. Bounds may be drawn closer than a desktop's own
// controls are tall, so a control takes at most its half of the gap to a neighbour that may do the same.
namespace tavrik::front::qt {

inline constexpr int kLeastGap = 2;

// One of the rectangles made up to `height` tall where there is room above and below, around the same middle if
// possible.
QRect fit_height(const std::vector<QRect>& rects, std::size_t which, int height, int content_height);

// One of the rectangles made `width` wide, to the right, or left alone where that much room isn't there.
QRect fit_width(const std::vector<QRect>& rects, std::size_t which, int width, int content_width);

}  // namespace tavrik::front::qt
