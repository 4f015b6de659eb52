#include "common/select_all_text.h"

#include "controls/text_box.h"

namespace quillomat {

void SelectAllText(TextBox& box) {
    box.set_focus();
    box.select(0, box.text().size());
}

}  // namespace quillomat
