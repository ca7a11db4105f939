#include "bench/startup/screen.h"

#include <xcb/damage.h>

#include <cstdlib>
#include <stdexcept>

namespace tavrik::bench {
namespace {

struct Free {
    void operator()(void* block) const { std::free(block); }
};

template <class Message>
using Received = std::unique_ptr<Message, Free>;

// The event's type without the mark of events that a client sent.
std::uint8_t type_of(const xcb_generic_event_t& event) { return event.response_type & 0x7F; }

}  // namespace

Screen::Screen() : connection_(xcb_connect(nullptr, nullptr)) {
    xcb_connection_t* const connection = connection_.get();
    if (xcb_connection_has_error(connection) != 0) throw std::runtime_error("the X display can't be opened");
    const xcb_query_extension_reply_t* const extension = xcb_get_extension_data(connection, &xcb_damage_id);
    if (extension == nullptr || extension->present == 0) throw std::runtime_error("the X server reports no damage");
    damage_notify_ = static_cast<std::uint8_t>(extension->first_event + XCB_DAMAGE_NOTIFY);

    // The server expects to be asked for the version before anything else.
    const Received<xcb_damage_query_version_reply_t> version(
        xcb_damage_query_version_reply(connection, xcb_damage_query_version(connection, 1, 1), nullptr));
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection);
}

void Screen::wait_for_painted_window() {
    while (const Received<xcb_generic_event_t> event{xcb_wait_for_event(connection_.get())}) {
        // A window that isn't on the screen takes no damage.
        if (type_of(*event) == damage_notify_) return;
        if (type_of(*event) != XCB_CREATE_NOTIFY) continue;
        report_first_damage_of(reinterpret_cast<const xcb_create_notify_event_t&>(*event).window);
    }
    throw std::runtime_error("the X server has gone");
}

void Screen::report_first_damage_of(xcb_window_t window) {
    const xcb_damage_damage_t damage = xcb_generate_id(connection_.get());
    xcb_damage_create(connection_.get(), damage, window, XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    xcb_flush(connection_.get());
}

}  // namespace tavrik::bench
