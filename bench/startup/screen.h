#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>

namespace tavrik::bench {

// Watches the screen of an X display that has no other windows, and no window manager.
class Screen {
public:
    Screen();

    // Returns once a window that has been made since the last call shows its first pixels.
    void wait_for_painted_window();

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    void report_first_damage_of(xcb_window_t window);

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    std::uint8_t damage_notify_ = 0;
};

}  // namespace tavrik::bench
