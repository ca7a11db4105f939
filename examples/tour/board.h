#pragma once

#include "ui/container_control.h"

namespace tavrik::tour {

// An area with a coloured marker that follows the pointer and the arrow keys. A contextual menu has its colours.
struct Board : Class<Board, ContainerControl> {
    static const ClassDefinition& definition();

    void CreateControls() { dispatch<&Board::CreateControls>(this); }
    // Puts the middle of the marker there.
    void Point(std::int32_t x, std::int32_t y) { dispatch<&Board::Point>(this, x, y); }

    struct Events {
        static inline constinit Event<void(std::int32_t, std::int32_t)> Pointed;
    };

    Field<ContainerControl> mMarker;
    std::int32_t mX, mY;
};

}  // namespace tavrik::tour
