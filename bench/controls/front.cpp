#include "bench/controls/front.h"

#include "maptool/app.h"
#include "maptool/initialize.h"
#include "runtime/tavrik_module.h"
#include "ui/window.h"

#include <tavrik/runtime.h>

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <cstdlib>
#include <stdexcept>

namespace tavrik::bench {
namespace {

class Painting final : public QObject {
public:
    explicit Painting(QWidget& window) : window_(window) { window_.installEventFilter(this); }

    bool is_done() const { return done_; }

protected:
    // What lies in a window is painted within the same event as the window.
    bool eventFilter(QObject*, QEvent* event) override {
        done_ = done_ || event->type() == QEvent::Paint;
        return false;
    }

private:
    QWidget& window_;
    bool done_ = false;
};

}  // namespace

void start() {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    RuntimeInit();
    initialize();
    const Ref<App> app = make<App>();
    app->set_AutoQuit(false);
    Tavrik::_RuntimeRegisterAppObject(app);
    // The front begins with the first window.
    const Ref<Window> window = make<Window>();
    window->Window_();
    window->Show();
    window->Close();
    settle();
    if (!qApp) throw std::runtime_error("the Qt front can't be opened");
}

int finish() {
    finalize();
    return RuntimeExit();
}

void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void wait_until_painted(QWidget& window) {
    const Painting painting(window);
    while (!painting.is_done()) QCoreApplication::processEvents();
}

QWidget& shown_window() {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible()) return *widget;
    }
    throw std::runtime_error("no window is shown");
}

}  // namespace tavrik::bench
