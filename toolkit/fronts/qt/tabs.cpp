#include "toolkit/fronts/qt/tabs.h"

#include "toolkit/fronts/qt/text.h"
#include "toolkit/fronts/qt/text_font.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QTabBar>
#include <QWheelEvent>

namespace tavrik::front::qt {
namespace {

constexpr double kSmallFont = 0.85;

QTabWidget::TabPosition position_of(TabSide side) {
    switch (side) {
        case TabSide::kTop:
            break;
        case TabSide::kBottom:
            return QTabWidget::South;
        case TabSide::kRight:
            return QTabWidget::East;
        case TabSide::kLeft:
            return QTabWidget::West;
    }
    return QTabWidget::North;
}

}  // namespace

class Tabs::Bar final : public QTabBar {
public:
    explicit Bar(Tabs& tabs) : QTabBar(&tabs), tabs_(&tabs) {
        // Otherwise the control would hear of them twice.
        setAttribute(Qt::WA_NoMousePropagation);
        setMouseTracking(true);
    }

    // Qt deletes the bar, and sends it events, when the tabs aren't what they were any more.
    void stop() { tabs_ = nullptr; }

protected:
    bool event(QEvent* event) override { return (tabs_ && tabs_->report_of_bar(*event)) || QTabBar::event(event); }

private:
    Tabs* tabs_;
};

Tabs::Tabs(Container& outer, ControlListener& control, TabsListener& tabs) : ControlWidget(outer, control) {
    setTabBar(new Bar(*this));
    // The mouse reaches the control itself there.
    findChild<QStackedWidget*>()->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(this, &QTabWidget::currentChanged, this, [this, &tabs](int tab) {
        if (reports() && !applying_ && tab >= 0) tabs.tab_chosen(tab);
    });
}

Tabs::~Tabs() { static_cast<Bar*>(tabBar())->stop(); }

void Tabs::apply(const TabsDescription& tabs) {
    const QScopedValueRollback applying(applying_, true);
    Control::apply(tabs);
    setToolTip(as_plain_tool_tip(to_qt(tabs.help)));
    tabBar()->setAccessibleDescription(to_qt(tabs.help));
    if (tabPosition() != position_of(tabs.side)) setTabPosition(position_of(tabs.side));
    apply_font(tabs);
    apply_captions(tabs.captions);
    setCurrentIndex(tabs.chosen);
}

int Tabs::tab_at(QPoint at) const {
    const QPoint in_bar = tabBar()->mapFrom(this, at);
    return tabBar()->rect().contains(in_bar) ? tabBar()->tabAt(in_bar) : -1;
}

bool Tabs::event(QEvent* event) {
    // The bar has told of the key, or what lies in the control has.
    if (event->type() != QEvent::KeyPress) return ControlWidget::event(event);
    return switch_by(static_cast<QKeyEvent&>(*event)) || QTabWidget::event(event);
}

bool Tabs::report_of_bar(QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease: {
            const auto& mouse = static_cast<QMouseEvent&>(event);
            QMouseEvent mapped(mouse.type(), tabBar()->mapTo(this, mouse.position()), mouse.globalPosition(),
                               mouse.button(), mouse.buttons(), mouse.modifiers());
            return report(mapped);
        }
        case QEvent::Wheel: {
            const auto& wheel = static_cast<QWheelEvent&>(event);
            QWheelEvent mapped(tabBar()->mapTo(this, wheel.position()), wheel.globalPosition(), wheel.pixelDelta(),
                               wheel.angleDelta(), wheel.buttons(), wheel.modifiers(), wheel.phase(), wheel.inverted());
            return report(mapped);
        }
        case QEvent::ContextMenu: {
            const auto& menu = static_cast<QContextMenuEvent&>(event);
            QContextMenuEvent mapped(menu.reason(), tabBar()->mapTo(this, menu.pos()), menu.globalPos(),
                                     menu.modifiers());
            return report(mapped);
        }
        case QEvent::KeyPress:
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            return report(event);
        default:
            return false;
    }
}

// Ctrl+Tab is QTabWidget's own.
bool Tabs::switch_by(const QKeyEvent& event) {
    const bool forward = event.key() == Qt::Key_PageDown;
    if (event.modifiers() != Qt::ControlModifier || count() == 0) return false;
    if (!forward && event.key() != Qt::Key_PageUp) return false;
    setCurrentIndex((currentIndex() + (forward ? 1 : count() - 1)) % count());
    return true;
}

void Tabs::apply_captions(const std::vector<std::string>& captions) {
    const int wanted = static_cast<int>(captions.size());
    while (count() > wanted) {
        QWidget* const page = QTabWidget::widget(count() - 1);
        removeTab(count() - 1);
        delete page;
    }
    for (int tab = 0; tab < wanted; ++tab) {
        const QString caption = to_qt(captions[static_cast<std::size_t>(tab)]);
        if (tab == count()) {
            addTab(new QWidget, caption);
        } else if (tabText(tab) != caption) {
            setTabText(tab, caption);
        }
    }
}

void Tabs::apply_font(const TabsDescription& tabs) {
    if (tabs.style == style_ && tabs.small == small_) return;
    style_ = tabs.style;
    small_ = tabs.small;
    tabBar()->setAttribute(Qt::WA_MacSmallSize, small_);
    QFont font = QApplication::font(tabBar());
    if (small_) font.setPointSizeF(font.pointSizeF() * kSmallFont);
    tabBar()->setFont(styled(font, style_));
}

}  // namespace tavrik::front::qt
