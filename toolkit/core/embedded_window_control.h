#pragma once

#include "toolkit/core/canvas.h"

#include <vector>

namespace tavrik::core {

// The control that stands in for a container.
class HostState final : public CanvasState {
public:
    using CanvasState::CanvasState;

    Object* container = nullptr;  // holds the host, and takes itself out at its end
    Ref<Object> wanted_parent;    // until the container is embedded
    bool ending = false;          // takes the container with it

    void leave() override;
    void enable_menu_items(Object* items) override;
    bool handle_menu_command(Object* item) override;

protected:
    bool hears_presses() const override;
    void describe_canvas(front::CanvasDescription& canvas) const override;
    void attach_contents() override;
    void detach_contents() override;
    void state_changed() override;

private:
    bool is_in_place() const;
};

HostState& host_state(Object* host);

// The containers that lie in a window, those in other containers left out.
std::vector<Ref<Object>> containers_in(Object* window);
// Tells the windows around a container that the focus has come into it, or left it.
void tell_focus_around(Object* container, bool has_focus);

}  // namespace tavrik::core
