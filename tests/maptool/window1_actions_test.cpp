#include "maptool/window1_actions.h"

#include "data/binary_stream.h"
#include "data/folder_item.h"
#include "maptool/window1.h"
#include "tests/maptool/map_file.h"
#include "tests/maptool/run_tool.h"
#include "toolkit/core/file_type.h"

#include <ostream>

namespace tavrik {
namespace {

using Messages = std::vector<std::string>;

class ToolActions : public ToolTest {
protected:
    MapFile intact_{MapFile::kIntact};
    MapFile nulled_{0};
};

struct Usable {
    bool null_bsp;
    bool undo_null;

    bool operator==(const Usable&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Usable& usable) {
        return out << "Null BSP " << usable.null_bsp << ", Un-do Null " << usable.undo_null;
    }
};

constexpr Usable kNone{false, false};
constexpr Usable kNullOnly{true, false};
constexpr Usable kUndoOnly{false, true};
constexpr Usable kBoth{true, true};

Usable usable(const ScriptedFront& front) {
    EXPECT_TRUE(front.can_press("Load Map"));
    return {front.can_press("Null BSP"), front.can_press("Un-do Null")};
}

std::int64_t live_streams() { return RuntimeLiveObjects(BinaryStream::__Lookup()); }

TEST_F(ToolActions, Only_4666_in_the_state_field_means_intact) {
    for (const std::int32_t state : {0, 1, -1, 4665, 4667, 5503, 13221, 0x3A120000, 4666 | 0x10000}) {
        const MapFile map(state);
        run_tool([&](ScriptedFront& front) {
            EXPECT_EQ(usable(front), kNone);
            front.load(map.path());
            EXPECT_EQ(usable(front), kUndoOnly) << state;
        });
    }
    run_tool([&](ScriptedFront& front) {
        front.load(intact_.path());
        EXPECT_EQ(usable(front), kNullOnly);
        EXPECT_EQ(front.messages, Messages{});
    });
    EXPECT_EQ(intact_.bytes(), intact_.original());
}

TEST_F(ToolActions, Nulling_and_restoring_write_the_constants_and_swap_the_buttons) {
    run_tool([&](ScriptedFront& front) {
        front.load(intact_.path());
        front.press("Null BSP");
        EXPECT_EQ(intact_.bytes(), nulled(intact_.original()));
        EXPECT_EQ(usable(front), kUndoOnly);
        front.press("Un-do Null");
        EXPECT_EQ(intact_.bytes(), restored(intact_.original()));
        EXPECT_EQ(usable(front), kNullOnly);
        EXPECT_EQ(front.messages, (Messages{"BSP Nulled.", "BSP Un-Nulled."}));
    });
}

TEST_F(ToolActions, While_the_box_is_open_the_file_is_done_and_the_buttons_wait) {
    run_tool([&](ScriptedFront& front) {
        front.load(intact_.path());
        front.when_message = [&] {
            EXPECT_EQ(intact_.bytes(), nulled(intact_.original()));
            EXPECT_EQ(usable(front), kNullOnly);
        };
        front.press("Null BSP");
        front.when_message = [&] {
            EXPECT_EQ(intact_.bytes(), restored(intact_.original()));
            EXPECT_EQ(usable(front), kUndoOnly);
        };
        front.press("Un-do Null");
        EXPECT_EQ(front.messages.size(), 2U);
    });
}

TEST_F(ToolActions, A_button_that_is_off_does_nothing) {
    run_tool([&](ScriptedFront& front) {
        front.press("Null BSP");
        front.press("Un-do Null");
        front.load(intact_.path());
        front.press("Un-do Null");
        EXPECT_EQ(intact_.bytes(), intact_.original());
        front.press("Null BSP");
        front.press("Null BSP");
        EXPECT_EQ(front.messages, Messages{"BSP Nulled."});
    });
}

TEST_F(ToolActions, Loads_in_a_row_disable_nothing_and_the_last_file_is_the_one) {
    run_tool([&](ScriptedFront& front) {
        front.load(intact_.path());
        front.load(nulled_.path());
        EXPECT_EQ(usable(front), kBoth);
        front.press("Null BSP");
        EXPECT_EQ(usable(front), kUndoOnly);
    });
    EXPECT_EQ(intact_.bytes(), intact_.original());
    EXPECT_EQ(nulled_.bytes(), nulled(nulled_.original()));
}

TEST_F(ToolActions, A_later_load_replaces_the_stream) {
    run_tool([&](ScriptedFront& front) {
        front.load(intact_.path());
        const Object* const first = Window1::Window1_()->br.object();
        front.load(intact_.path());
        EXPECT_NE(Window1::Window1_()->br.object(), first);
        EXPECT_EQ(live_streams(), 1);
    });
}

TEST_F(ToolActions, The_stream_stays_open_until_the_window_goes) {
    run_tool([&](ScriptedFront& front) {
        front.load(intact_.path());
        front.press("Null BSP");
        EXPECT_EQ(live_streams(), 1);
        front.window().choose("&File", "&Quit");
        EXPECT_EQ(live_streams(), 0);
    });
}

TEST_F(ToolActions, The_file_type_is_registered_while_the_dialog_is_open) {
    run_tool([&](ScriptedFront& front) {
        front.when_choice = [] { EXPECT_EQ(core::filters_for("map").size(), 1U); };
        EXPECT_EQ(core::filters_for("map").size(), 0U);
        front.load(intact_.path());
        EXPECT_EQ(core::filters_for("map").size(), 0U);
        front.load_and_cancel();
        EXPECT_EQ(core::filters_for("map").size(), 0U);

        ASSERT_EQ(front.choices.size(), 2U);
        ASSERT_EQ(front.choices[0].filters.size(), 1U);
        EXPECT_EQ(front.choices[0].filters[0].label, "map");
        EXPECT_EQ(front.choices[0].filters[0].extensions, std::vector<std::string>{"map"});
    });
}

TEST_F(ToolActions, A_cancelled_dialog_is_silent_and_keeps_the_stream) {
    run_tool([&](ScriptedFront& front) {
        front.load_and_cancel();
        EXPECT_EQ(usable(front), kNone);
        front.load(intact_.path());
        front.load_and_cancel();
        EXPECT_FALSE(Window1::Window1_()->f);
        EXPECT_EQ(usable(front), kNullOnly);
        EXPECT_EQ(front.messages, Messages{});
        front.press("Null BSP");
    });
    EXPECT_EQ(intact_.bytes(), nulled(intact_.original()));
}

TEST_F(ToolActions, A_file_that_cannot_be_opened_is_told_once_with_its_name_and_the_reason) {
    run_tool([&](ScriptedFront& front) {
        front.load("/nowhere/gone.map");
        front.load("/dev");
        front.load("/dev/null");
        EXPECT_EQ(usable(front), kNone);
        EXPECT_EQ(front.messages, (Messages{"gone.map could not be opened for writing: No such file or directory",
                                            "dev could not be opened for writing: it is a folder",
                                            "null could not be opened for writing: it is a device, not a file"}));
    });
}

TEST_F(ToolActions, A_press_after_a_failed_load_raises_before_anything_is_written) {
    run_tool([&](ScriptedFront& front) {
        front.load(intact_.path());
        front.load("/nowhere/gone.map");
        EXPECT_FALSE(Window1::Window1_()->br);
        EXPECT_EQ(live_streams(), 0);
        EXPECT_EQ(usable(front), kNullOnly);
        front.press("Null BSP");
        EXPECT_EQ(usable(front), kNullOnly);
        EXPECT_EQ(front.messages.size(), 2U);
    });
    EXPECT_EQ(intact_.bytes(), intact_.original());
}

TEST_F(ToolActions, A_short_file_counts_as_nulled_and_is_told) {
    for (const std::size_t size : {std::size_t{0}, std::size_t{100}, std::size_t{2952}, std::size_t{2955}}) {
        const MapFile map(0, size);
        run_tool([&](ScriptedFront& front) {
            front.load(map.path());
            EXPECT_EQ(usable(front), kUndoOnly) << size;
            ASSERT_EQ(front.messages.size(), 1U) << size;
            EXPECT_TRUE(front.messages[0].starts_with("valley.map could not be read")) << front.messages[0];
            front.press("Un-do Null");
        });
        EXPECT_EQ(map.bytes(), restored(map.original())) << size;
    }
}

}  // namespace
}  // namespace tavrik
