#pragma once

#include "toolkit/front/front.h"
#include "toolkit/fronts/terminal/control.h"

#include <memory>
#include <utility>

namespace tavrik::front::terminal {

// Where a control stands.
struct Place {
    std::shared_ptr<ControlList> controls = std::make_shared<ControlList>();
    std::shared_ptr<Focus> focus = std::make_shared<Focus>();

    // Inside of what stands here.
    Place inner() const { return {std::make_shared<ControlList>(), focus}; }
};

std::unique_ptr<ButtonFace> make_button_at(const Place& place, ControlListener& control, ButtonListener& button);
std::unique_ptr<CanvasFace> make_canvas_at(const Place& place, ControlListener& control);
std::unique_ptr<PanelFace> make_panel_at(const Place& place, ControlListener& control);
std::unique_ptr<TabsFace> make_tabs_at(const Place& place, ControlListener& control, TabsListener& tabs);

// The part of a face that lets controls lie in what it shows.
template <class Face>
class Holding : public Face {
public:
    std::unique_ptr<ButtonFace> make_button(ControlListener& control, ButtonListener& button) override {
        return make_button_at(place(), control, button);
    }
    std::unique_ptr<CanvasFace> make_canvas(ControlListener& control) override {
        return make_canvas_at(place(), control);
    }
    std::unique_ptr<PanelFace> make_panel(ControlListener& control) override { return make_panel_at(place(), control); }
    std::unique_ptr<TabsFace> make_tabs(ControlListener& control, TabsListener& tabs) override {
        return make_tabs_at(place(), control, tabs);
    }

protected:
    virtual const Place& place() const = 0;
};

// What the faces of all kinds of control have in common.
template <class Face, class Description>
class TerminalControl : public Holding<Face>, public Control {
public:
    TerminalControl(Place outer, ControlListener& listener)
        : listener_(listener), outer_(std::move(outer)), inner_(outer_.inner()) {
        outer_.controls->add(*this);
    }
    TerminalControl(const TerminalControl&) = delete;
    TerminalControl& operator=(const TerminalControl&) = delete;
    ~TerminalControl() override {
        outer_.controls->remove(*this);
        outer_.focus->forget(*this);
    }

    void apply(const Description& description) override { shown_ = description; }
    void set_focus() override {
        if (!shown_.visible || !shown_.enabled) return;
        const std::shared_ptr<Focus> focus = outer_.focus;  // the reports may destroy this control
        focus->set(*this);
    }
    void refresh(const Rect*) override {}
    std::uintptr_t handle() override { return 0; }

    bool visible() const override { return shown_.visible; }
    int tab_index() const override { return shown_.tab_index; }
    const ControlList& inside() const override { return *inner_.controls; }
    bool open_menu() override { return listener_.menu_requested(middle()); }
    void report_focus(bool has_focus) override { listener_.focus_changed(has_focus); }

protected:
    const Place& place() const override { return inner_; }
    const Description& shown() const { return shown_; }
    ControlListener& listener() const { return listener_; }
    Point middle() const { return {shown_.bounds.width / 2, shown_.bounds.height / 2}; }

private:
    ControlListener& listener_;
    Place outer_;
    Place inner_;
    Description shown_;
};

}  // namespace tavrik::front::terminal
