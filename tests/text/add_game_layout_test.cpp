#include "text/add_game_layout.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(AddGameLayout, FollowsTheOuterSizeUnderASlimFrame) {
    const AddGameLayout layout = add_game_layout({6000, 5000}, {5880, 4595});
    EXPECT_EQ(layout.box_width, 5640);
    EXPECT_EQ(layout.cheats_height, 3095);
    EXPECT_EQ(layout.add_left, 4545);
    EXPECT_EQ(layout.cancel_left, 3225);
    EXPECT_EQ(layout.button_top, 4160);
}

TEST(AddGameLayout, NothingIsCutOffUnderAnyFrame) {
    for (const double frame : {90.0, 120.0, 240.0, 330.0}) {
        for (const double title : {405.0, 585.0, 700.0}) {
            const WindowSize outer = add_game_minimum_size;
            const WindowSize inner{outer.width - frame, outer.height - title};
            const AddGameLayout layout = add_game_layout(outer, inner);
            EXPECT_GT(layout.margin, 0);
            EXPECT_LT(layout.margin + layout.box_width, inner.width);
            EXPECT_EQ(layout.add_left + layout.button_width, layout.margin + layout.box_width) << "right edges in line";
            EXPECT_GT(layout.add_left, layout.cancel_left + layout.button_width);
            EXPECT_LT(layout.button_top + add_game_button_height, inner.height);
            EXPECT_EQ(layout.button_top - layout.cheats_height, 1065);
        }
    }
}

}  // namespace
}  // namespace quillomat
