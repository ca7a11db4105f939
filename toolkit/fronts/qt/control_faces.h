#pragma once

#include "toolkit/front/front.h"
#include "toolkit/fronts/qt/container.h"

#include <QPointer>
#include <QWidget>

#include <memory>

namespace tavrik::front::qt {

std::unique_ptr<ButtonFace> make_button_in(Container& container, ControlListener& control, ButtonListener& button);
std::unique_ptr<CanvasFace> make_canvas_in(Container& container, ControlListener& control);
std::unique_ptr<PanelFace> make_panel_in(Container& container, ControlListener& control);
std::unique_ptr<TabsFace> make_tabs_in(Container& container, ControlListener& control, TabsListener& tabs);

// The part of a face that lets controls lie in what it shows.
template <class Face>
class Holding : public Face {
public:
    std::unique_ptr<ButtonFace> make_button(ControlListener& control, ButtonListener& button) override {
        return make_button_in(container(), control, button);
    }
    std::unique_ptr<CanvasFace> make_canvas(ControlListener& control) override {
        return make_canvas_in(container(), control);
    }
    std::unique_ptr<PanelFace> make_panel(ControlListener& control) override {
        return make_panel_in(container(), control);
    }
    std::unique_ptr<TabsFace> make_tabs(ControlListener& control, TabsListener& tabs) override {
        return make_tabs_in(container(), control, tabs);
    }

protected:
    virtual Container& container() = 0;
};

// The part of a widget that is to be drawn anew.
void update_part(QWidget& widget, const Rect* part);

template <class Face, class Widget, class Description>
class ControlFaceOf : public Holding<Face> {
public:
    explicit ControlFaceOf(Widget* widget) : widget_(widget) {}
    ControlFaceOf(const ControlFaceOf&) = delete;
    ControlFaceOf& operator=(const ControlFaceOf&) = delete;
    ~ControlFaceOf() override {
        if (widget_) widget_->retire();
    }

    void apply(const Description& description) override {
        if (!widget_) return;
        widget_->apply(description);
        widget_->arrange_later();
    }
    void set_focus() override {
        if (widget_) widget_->setFocus(Qt::OtherFocusReason);
    }
    void refresh(const Rect* part) override {
        if (widget_) update_part(*widget_, part);
    }
    std::uintptr_t handle() override { return widget_ ? widget_->effectiveWinId() : 0; }

protected:
    Container& container() override { return widget_->container(); }
    // nullptr once its window has ended.
    Widget* widget() const { return widget_; }

private:
    QPointer<Widget> widget_;  // goes with the window, which may end before its controls
};

}  // namespace tavrik::front::qt
