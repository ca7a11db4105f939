#include "toolkit/fronts/qt/text_font.h"

#include "toolkit/fronts/qt/text.h"

namespace tavrik::front::qt {

QFont styled(QFont base, const TextStyle& style) {
    if (!style.font.empty() && style.font != "System") base.setFamily(to_qt(style.font));
    if (style.size > 0) base.setPointSize(style.size);
    if (style.bold) base.setBold(true);
    if (style.italic) base.setItalic(true);
    if (style.underline) base.setUnderline(true);
    return base;
}

}  // namespace tavrik::front::qt
