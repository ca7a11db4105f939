#pragma once

#include "toolkit/fronts/qt/control_faces.h"
#include "toolkit/fronts/qt/window.h"

namespace tavrik::front::qt {

class QtWindowFace final : public Holding<WindowFace> {
public:
    explicit QtWindowFace(WindowListener& listener);

    void apply(const WindowDescription& window) override;
    void apply_menus(std::span<const MenuDescription> menus) override;
    void bring_to_front() override;
    void clear_focus() override;
    void refresh(const Rect* part) override;
    void update_now() override;
    std::optional<Point> pointer() override;
    std::uintptr_t handle() override;
    void set_owner(WindowFace* owner) override;

    Window& window() { return *window_; }

protected:
    Container& container() override;

private:
    struct Retire {
        void operator()(Window* window) const { window->retire(); }
    };

    std::unique_ptr<Window, Retire> window_;
};

}  // namespace tavrik::front::qt
