#include "toolkit/fronts/qt/qt_front.h"

#include "toolkit/fronts/qt/canvas.h"
#include "toolkit/fronts/qt/cursor.h"
#include "toolkit/fronts/qt/file_dialog.h"
#include "toolkit/fronts/qt/message_box.h"
#include "toolkit/fronts/qt/pop_up.h"
#include "toolkit/fronts/qt/text.h"
#include "toolkit/fronts/qt/window_face.h"

#include <QAccessible>
#include <QEventLoop>
#include <QScreen>

#include <clocale>
#include <utility>

namespace tavrik::front::qt {
namespace {

// A dialog over a window that nobody sees would be nowhere.
QWidget* visible_window_of(WindowFace* face) {
    if (!face) return nullptr;
    Window& window = static_cast<QtWindowFace*>(face)->window();
    return window.isVisible() ? &window : nullptr;
}

}  // namespace

QtFront::Arguments::Arguments(std::string program_name)
    : program(std::move(program_name)), values{program.data(), nullptr} {}

QtFront::QtFront(const Start& start)
    : arguments_(start.program_name),
      application_(arguments_.count, arguments_.values.data()),
      quit_requests_(start.application),
      reports_(start.application) {
    // QApplication takes the person's locale for all of the C library; numbers in files have a point in any locale.
    std::setlocale(LC_NUMERIC, "C");
    QCoreApplication::setApplicationName(to_qt(start.program_name));
    QCoreApplication::setQuitLockEnabled(false);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // QApplication::exec() would do this.
    QAccessible::setRootObject(&application_);
    QAccessible::installFactory(&Canvas::make_reader);
    wake_up_.setSingleShot(true);
    QObject::connect(&wake_up_, &QTimer::timeout, &wake_up_, [&listener = start.application] { listener.woken(); });
}

QtFront::~QtFront() {
    // What is to be deleted later would outlive QApplication.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtFront::run() {
    if (!quitting_) {
        QEventLoop loop;
        loops_.push_back(&loop);
        loop.exec();
        loops_.pop_back();
    }
    if (!loops_.empty()) return;
    QCoreApplication::removePostedEvents(&posted_calls_);
    quitting_ = false;
}

void QtFront::quit() {
    quitting_ = true;
    dialogs_.cancel_all();
    for (QEventLoop* const loop : loops_) loop->quit();
}

bool QtFront::pump(bool wait) {
    if (quitting_) return false;
    QCoreApplication::processEvents(wait ? QEventLoop::WaitForMoreEvents : QEventLoop::AllEvents);
    return !quitting_;
}

void QtFront::post(std::function<void()> call) {
    const auto run_unless_quitting = [this, call = std::move(call)] {
        if (!quitting_) call();
    };
    QMetaObject::invokeMethod(&posted_calls_, run_unless_quitting, Qt::QueuedConnection);
}

void QtFront::set_cursor(std::optional<Cursor> cursor) {
    // Qt stacks them, and wants each one back.
    while (QGuiApplication::overrideCursor() != nullptr) QGuiApplication::restoreOverrideCursor();
    if (cursor) QGuiApplication::setOverrideCursor(to_qt(*cursor));
}

std::unique_ptr<WindowFace> QtFront::make_window(WindowListener& listener) {
    return std::make_unique<QtWindowFace>(listener);
}

Rect QtFront::available_area() {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (!screen) return {};
    const QRect area = screen->availableGeometry();
    return {area.left(), area.top(), area.width(), area.height()};
}

std::size_t QtFront::show_message(const MessageDescription& message, WindowFace* over) {
    if (quitting_) return message.cancel_button;
    return qt::show_message(dialogs_, message, visible_window_of(over));
}

std::optional<MenuId> QtFront::pop_up(const MenuDescription& menu, std::optional<Point> at, WindowFace* over) {
    if (quitting_) return std::nullopt;
    return qt::pop_up(dialogs_, menu, at, visible_window_of(over));
}

std::optional<std::string> QtFront::choose_file(const FileChoice& choice, WindowFace* over) {
    if (quitting_) return std::nullopt;
    return qt::choose_file(dialogs_, choice, visible_window_of(over));
}

}  // namespace tavrik::front::qt
