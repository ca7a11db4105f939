#pragma once

#include <tavrik/object.h>

namespace tavrik {

TAVRIK_API void RuntimeCanvasInitializer(Object* canvas);
TAVRIK_API void RuntimeCanvasDestructor(Object* canvas);
// Gives the canvas its pane.
TAVRIK_API void CanvasCreatePane(Object* canvas);
// Has a part of the canvas drawn anew, whose content has moved by so much; with `controls`, what lies in that part
// moves too.
TAVRIK_API void canvasScroll(Object* canvas, std::int32_t delta_x, std::int32_t delta_y, std::int32_t left,
                             std::int32_t top, std::int32_t width, std::int32_t height, bool controls);
// nil while the program has no Graphics.
TAVRIK_API Ref<Object> canvasGraphicsGetter(Object* canvas, std::int32_t);
TAVRIK_API void canvasBackdropSetter(Object* canvas, std::int32_t field, Object* picture);

}  // namespace tavrik
