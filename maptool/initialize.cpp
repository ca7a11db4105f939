#include "maptool/initialize.h"

#include "maptool/app.h"
#include "maptool/menu_bar1.h"
#include "maptool/window1.h"
#include "ui/class_layer.h"

namespace tavrik {

void initialize() {
    initialize_class_layer();
    build_classes<App, Window1::Window1, MenuBar1::MenuBar1>();
}

void finalize() {
    finalize_class_layer();
    MenuBar1::_implicitInstance__Exit();
}

}  // namespace tavrik
