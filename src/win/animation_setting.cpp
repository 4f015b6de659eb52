#include "win/animation_setting.h"

#include "win/api.h"

namespace quillomat {

bool animations_wanted() {
    BOOL wanted = TRUE;
    SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &wanted, 0);
    return wanted;
}

}  // namespace quillomat
