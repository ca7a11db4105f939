#pragma once

#include "toolkit/core/control.h"

namespace tavrik::core {

class CanvasState : public ControlState {
public:
    using ControlState::ControlState;

protected:
    std::unique_ptr<front::ControlFace> make_face(front::ContainerFace& container,
                                                  front::ControlListener& listener) override;
    void apply_to(front::ControlFace& face) override;
    virtual bool hears_presses() const;
    virtual void describe_canvas(front::CanvasDescription& canvas) const;
    bool has_stored_looks() const override { return true; }
    void look_at_stored_properties() override;

private:
    struct Looks {
        bool hears_presses = false;
        bool accepts_focus = false;
        bool accepts_tabs = false;
        bool focus_ring = false;
        bool erases_background = false;

        bool operator==(const Looks&) const = default;
    };
    Looks stored_looks() const;

    Looks told_;
};

}  // namespace tavrik::core
