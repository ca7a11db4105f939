#include "toolkit/fronts/qt/fitting.h"

#include <algorithm>

namespace tavrik::front::qt {
namespace {

// Right and bottom as the first pixel outside, which QRect's own aren't.
int right_of(const QRect& rect) { return rect.left() + rect.width(); }
int bottom_of(const QRect& rect) { return rect.top() + rect.height(); }

bool share_columns(const QRect& a, const QRect& b) { return a.left() < right_of(b) && b.left() < right_of(a); }
bool share_rows(const QRect& a, const QRect& b) { return a.top() < bottom_of(b) && b.top() < bottom_of(a); }

int half_of(int gap) { return std::max(0, (gap - kLeastGap) / 2); }

}  // namespace

QRect fit_height(const std::vector<QRect>& rects, std::size_t which, int height, int content_height) {
    const QRect& bounds = rects[which];
    const int need = height - bounds.height();
    if (need <= 0) return bounds;

    int above = std::max(0, bounds.top());
    int below = std::max(0, content_height - bottom_of(bounds));
    for (const QRect& other : rects) {
        if (&other == &bounds) continue;
        if (!share_columns(bounds, other)) continue;
        if (bottom_of(other) <= bounds.top()) above = std::min(above, half_of(bounds.top() - bottom_of(other)));
        if (other.top() >= bottom_of(bounds)) below = std::min(below, half_of(other.top() - bottom_of(bounds)));
    }

    const int up_at_first = std::min(need / 2, above);
    const int down = std::min(need - up_at_first, below);
    const int up = std::min(need - down, above);
    return bounds.adjusted(0, -up, 0, down);
}

QRect fit_width(const std::vector<QRect>& rects, std::size_t which, int width, int content_width) {
    const QRect& bounds = rects[which];
    const int need = width - bounds.width();
    if (need <= 0) return bounds;

    int room = content_width - right_of(bounds);
    for (const QRect& other : rects) {
        if (&other == &bounds) continue;
        const bool in_the_way = share_rows(bounds, other) && other.left() >= right_of(bounds);
        if (in_the_way) room = std::min(room, other.left() - kLeastGap - right_of(bounds));
    }
    return need <= room ? bounds.adjusted(0, 0, need, 0) : bounds;
}

}  // namespace tavrik::front::qt
