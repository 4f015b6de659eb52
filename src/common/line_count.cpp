#include "common/line_count.h"

#include <string>
#include <utility>

#include "common/clsTextBox.h"
#include "controls/text_box.h"

namespace quillomat {

void show_line_count(const clsTextBox& lines) {
    lines.TextBox().set_tool_tip(L"Total - " + std::to_wstring(lines.LineCount()) + L" lines.");
}

void keep_line_count(const clsTextBox& lines, std::function<void()> on_change) {
    TextBox& box = lines.TextBox();
    box.on_change = [&lines, changed = std::move(on_change)] {
        show_line_count(lines);
        changed();
    };
    box.on_click = [&lines] { show_line_count(lines); };
    box.on_key_press = [&lines](CharacterEvent&) { show_line_count(lines); };
    box.on_mouse_move = [&lines](const MouseEvent&) { show_line_count(lines); };
}

}  // namespace quillomat
