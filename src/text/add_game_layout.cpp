#include "text/add_game_layout.h"

#include <algorithm>

namespace quillomat {

AddGameLayout add_game_layout(const WindowSize& outer, const WindowSize& inner) {
    AddGameLayout layout{
        .box_width = outer.width - 360,
        .cheats_height = outer.height - 1905,
        .add_left = outer.width - 1455,
        .cancel_left = outer.width - 2775,
        .button_top = outer.height - 840,
    };
    layout.margin = (inner.width - layout.box_width) / 2;
    // The right edges of the Add button and of the boxes are in line.
    layout.button_width = layout.margin + layout.box_width - layout.add_left;

    // These positions follow the outer size and assume a thin frame. With a thicker one, the cheats box shrinks and the
    // buttons move up, so that they remain visible.
    constexpr double room_below = 45;
    const double hidden = layout.button_top + add_game_button_height + room_below - inner.height;
    layout.button_top -= std::max(0.0, hidden);
    layout.cheats_height -= std::max(0.0, hidden);
    return layout;
}

}  // namespace quillomat
