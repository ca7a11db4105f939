#pragma once

#include "toolkit/front/front.h"
#include "toolkit/fronts/qt/content.h"
#include "toolkit/fronts/qt/menu_tree.h"

#include <QMenuBar>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace tavrik::front::qt {

// A top-level window: a menu bar and, below it, content of exactly the size that is asked for.
class Window final : public QWidget {
public:
    explicit Window(WindowListener& listener);

    void apply(const WindowDescription& window);
    void apply_menus(std::span<const MenuDescription> menus);
    void bring_to_front();
    void clear_focus();
    void set_owner(Window* owner);
    Content& content() { return *content_; }

    // Reports nothing any more, disappears, and is deleted when no event of its own is under way.
    void retire();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void apply_menu_bar();
    void apply_size();
    void apply_position();
    void apply_limits();
    void apply_looks();
    void apply_modality();
    void apply_owner();
    void apply_states();
    void apply_visibility();
    void place_content(QPoint position);
    int menu_bar_height() const;
    Rect content_on_screen() const;
    bool fills_screen() const;
    WindowSize size_state() const;
    void report_changes(ResizePhase phase);
    void report_size_state();
    void end_live_resize();
    void come_back();

    WindowListener* listener_;
    QMenuBar* menu_bar_;
    Content* content_;
    MenuTree menus_;
    WindowDescription description_;
    Rect known_;  // where the listener knows the content to be
    QPointer<Window> owner_;
    QTimer live_resize_;  // runs while the person drags, and a moment longer
    QTimer coming_back_;  // runs while it comes from another state than the normal one
    bool was_shown_ = false;
    bool applying_ = false;
};

}  // namespace tavrik::front::qt
