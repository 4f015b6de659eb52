#include "soak/outside_counts.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace quillomat::soak {
namespace {

// Wine: gives out all free handles before it makes its table longer. With more menus than there can be free handles,
// every handle up to the highest is in use, and all that are not these menus' belong to some process.
int count_all_user_objects() {
    constexpr std::size_t more_than_free = 0x1000;
    constexpr std::uintptr_t first_handle = 0x20;
    std::vector<HMENU> menus(more_than_free);
    std::uintptr_t highest = 0;
    for (HMENU& menu : menus) {
        menu = CreateMenu();
        highest = std::max(highest, reinterpret_cast<std::uintptr_t>(menu) & 0xFFFF);
    }
    for (const HMENU menu : menus) DestroyMenu(menu);
    const auto handles = static_cast<int>((highest - first_handle) / 2 + 1);
    return handles - static_cast<int>(menus.size());
}

}  // namespace

ObjectCounts count_objects_of(HANDLE process) {
    const ObjectCounts counted{static_cast<int>(GetGuiResources(process, GR_GDIOBJECTS)),
                               static_cast<int>(GetGuiResources(process, GR_USEROBJECTS))};
    // Wine: answers 0, and tells nothing of another process's GDI objects.
    if (counted.gdi) return counted;
    return {.user = count_all_user_objects()};
}

}  // namespace quillomat::soak
