#include "bench/controls/bare_qt_windows.h"

#include <QMouseEvent>
#include <QPushButton>

namespace tavrik::bench {
namespace {

void place(QWidget& widget, const Place& place) {
    widget.setGeometry(place.left, place.top, place.width, place.height);
}

// Hears of the pointer, and wants nothing of it.
class Square final : public QWidget {
public:
    Square(QWidget* parent, const Place& place) : QWidget(parent) {
        setMouseTracking(true);
        bench::place(*this, place);
    }

protected:
    void mouseMoveEvent(QMouseEvent* event) override { event->accept(); }
};

}  // namespace

std::unique_ptr<QWidget> make_bare_window() {
    auto window = std::make_unique<QWidget>();
    window->setFixedSize(kWindowWidth, kWindowHeight);
    return window;
}

std::unique_ptr<QWidget> make_bare_window_with_buttons(int count, ButtonHeight height) {
    std::unique_ptr<QWidget> window = make_bare_window();
    for (int i = 0; i < count; ++i) {
        auto* const button = new QPushButton(QString::fromStdString(caption_of_button(i)), window.get());
        place(*button, place_of_button(i, height));
    }
    return window;
}

std::unique_ptr<QWidget> make_bare_window_with_widgets(Tree tree) {
    std::unique_ptr<QWidget> window = make_bare_window();
    const Squares& squares = tree == Tree::kFlat ? kAllSquares : kOuterSquares;
    for (int i = 0; i < squares.count(); ++i) {
        auto* const square = new Square(window.get(), squares[i]);
        if (tree == Tree::kFlat) continue;
        for (int j = 0; j < kInnerSquares.count(); ++j) new Square(square, kInnerSquares[j]);
    }
    return window;
}

}  // namespace tavrik::bench
