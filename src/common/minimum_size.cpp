#include "common/minimum_size.h"

#include "forms/form.h"

namespace quillomat {

bool restore_minimum_size(Form& form, const WindowSize& minimum) {
    const double twips_per_pixel = to_twips(1, form.dpi());
    const WindowSize size{form.width(), form.height()};
    WindowSize wanted = size;
    while (const auto corrected = corrected_size(wanted, minimum, twips_per_pixel)) {
        form.set_size(corrected->width, corrected->height);
        if (WindowSize{form.width(), form.height()} != size) return true;
        wanted = *corrected;
    }
    return false;
}

}  // namespace quillomat
