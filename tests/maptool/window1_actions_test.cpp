#include "maptool/window1_actions.h"

#include "data/binary_stream.h"
#include "data/folder_item.h"
#include "maptool/window1.h"
#include "tests/maptool/map_file.h"
#include "tests/maptool/run_tool.h"
#include "toolkit/core/file_type.h"

namespace tavrik {
namespace {

using Messages = std::vector<std::string>;

class ToolActions : public ToolTest {
protected:
    MapFile intact_{kIntactState};
    MapFile nulled_{kNulledState};
};

// The buttons that can be pressed besides "Load Map".
std::string usable(const ScriptedFront& front) {
    EXPECT_TRUE(front.button("Load Map").description.enabled);
    return std::string(front.button("Null BSP").description.enabled ? "null" : "") +
           (front.button("Un-do Null").description.enabled ? "undo" : "");
}

std::int64_t live_streams() { return RuntimeLiveObjects(BinaryStream::__Lookup()); }

TEST_F(ToolActions, Only_4666_in_the_state_field_means_intact) {
    for (const auto state : {kIntactState, kNulledState, "\x3B\x12\0\0"sv, "\x3A\x12\1\0"sv, "\0\0\x12\x3A"sv}) {
        const MapFile map(state);
        run_tool([&](ScriptedFront& front) {
            EXPECT_EQ(usable(front), "");
            front.load(map.path);
            EXPECT_EQ(usable(front), state == kIntactState ? "null" : "undo");
            EXPECT_EQ(front.messages, Messages{});
        });
        EXPECT_EQ(map.bytes(), map.original);
    }
}

TEST_F(ToolActions, Nulling_and_restoring_write_the_constants_and_swap_the_buttons_behind_the_box) {
    run_tool([&](ScriptedFront& front) {
        front.load(intact_.path);
        front.when_message = [&] {
            EXPECT_EQ(intact_.bytes(), nulled(intact_.original));
            EXPECT_EQ(usable(front), "null");
        };
        front.press("Null BSP");
        EXPECT_EQ(usable(front), "undo");
        front.when_message = [&] {
            EXPECT_EQ(intact_.bytes(), restored(intact_.original));
            EXPECT_EQ(usable(front), "undo");
        };
        front.press("Un-do Null");
        EXPECT_EQ(usable(front), "null");
        EXPECT_EQ(front.messages, (Messages{"BSP Nulled.", "BSP Un-Nulled."}));
    });
}

TEST_F(ToolActions, A_button_that_is_off_does_nothing) {
    run_tool([&](ScriptedFront& front) {
        front.press("Null BSP");
        front.load(intact_.path);
        front.press("Un-do Null");
        EXPECT_EQ(intact_.bytes(), intact_.original);
        EXPECT_EQ(front.messages, Messages{});
    });
}

TEST_F(ToolActions, Loads_in_a_row_disable_nothing_and_the_last_file_is_the_one_until_the_window_goes) {
    run_tool([&](ScriptedFront& front) {
        front.load(intact_.path);
        front.load(nulled_.path);
        EXPECT_EQ(usable(front), "nullundo");
        EXPECT_EQ(live_streams(), 1);
        front.press("Null BSP");
        EXPECT_EQ(live_streams(), 1);
        front.window->choose(0, 0);
        EXPECT_EQ(live_streams(), 0);
    });
    EXPECT_EQ(intact_.bytes(), intact_.original);
    EXPECT_EQ(nulled_.bytes(), nulled(nulled_.original));
}

TEST_F(ToolActions, The_file_type_is_registered_while_the_dialog_is_open) {
    int choices = 0;
    run_tool([&](ScriptedFront& front) {
        front.when_choice = [&](const front::FileChoice& choice) {
            ++choices;
            EXPECT_EQ(core::filters_for("map").size(), 1U);
            ASSERT_EQ(choice.filters.size(), 1U);
            EXPECT_EQ(choice.filters[0].label, "map");
            EXPECT_EQ(choice.filters[0].extensions, std::vector<std::string>{"map"});
        };
        for (const auto& answer : {std::optional(intact_.path), std::optional<std::string>()}) {
            front.load(answer);
            EXPECT_EQ(core::filters_for("map").size(), 0U);
            EXPECT_EQ(live_streams(), 1) << "a cancelled dialog keeps it";
        }
        EXPECT_FALSE(Window1::Window1_()->f);
        EXPECT_EQ(front.messages, Messages{});
    });
    EXPECT_EQ(choices, 2);
}

TEST_F(ToolActions, A_failed_load_is_told_and_a_press_after_it_raises_before_anything_is_written) {
    run_tool([&](ScriptedFront& front) {
        front.load(intact_.path);
        front.load("/dev");
        front.load("/dev/null");
        front.load("/nowhere/gone.map");
        EXPECT_EQ(front.messages, (Messages{"dev could not be opened for writing: it is a folder",
                                            "null could not be opened for writing: it is a device, not a file",
                                            "gone.map could not be opened for writing: No such file or directory"}));
        EXPECT_EQ(live_streams(), 0);
        front.press("Null BSP");
        EXPECT_EQ(usable(front), "null");
        EXPECT_EQ(front.messages.size(), 4U);
    });
    EXPECT_EQ(intact_.bytes(), intact_.original);
}

}  // namespace
}  // namespace tavrik
