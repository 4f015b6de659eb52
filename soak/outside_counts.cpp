#include "soak/outside_counts.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace quillomat::soak {
namespace {

// Wine: the server hands out all free handles before it enlarges its table of handles. While more menus exist than
// there can be free handles, every handle up to the highest one is in use; those that are not these menus' are counted.
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
    // Wine: GetGuiResources returns 0 for another process, and nothing tells the number of its GDI objects.
    if (counted.gdi) return counted;
    return {.user = count_all_user_objects()};
}

}  // namespace quillomat::soak
