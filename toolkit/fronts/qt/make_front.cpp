#include "toolkit/fronts/qt/display_probe.h"
#include "toolkit/fronts/qt/qt_front.h"

#include <type_traits>

extern "C" Q_DECL_EXPORT tavrik::front::Front* tavrik_make_front(const tavrik::front::Start& start,
                                                                 std::string& reason) {
    if (auto missing = tavrik::front::qt::missing_display()) {
        reason = std::move(*missing);
        return nullptr;
    }
    return new tavrik::front::qt::QtFront(start);
}

static_assert(std::is_same_v<decltype(&tavrik_make_front), tavrik::front::MakeFront>);
