#include "text/printout.h"

#include "text/export_text.h"
#include "text/line_end.h"
#include "text/product.h"

namespace quillomat {
namespace {

std::wstring footer() {
    return std::wstring(L"Made with Quillomat - ") + product::web_site;
}

}  // namespace

std::wstring cheats_printout(std::wstring_view name, std::wstring_view cheats) {
    return export_text(name, cheats).append(line_end).append(line_end).append(line_end) + footer();
}

std::wstring game_list_printout(std::span<const std::wstring> names) {
    std::wstring text(line_end);
    for (const std::wstring& name : names) text.append(name).append(line_end);
    return text.append(line_end) + footer();
}

std::vector<std::wstring> all_game_names(int count, const ItemText& item_text) {
    std::vector<std::wstring> names = game_names_in_range(1, count, item_text);
    names.emplace_back();
    return names;
}

std::vector<std::wstring> game_names_in_range(int first, int last, const ItemText& item_text) {
    std::vector<std::wstring> names;
    for (int number = first; number <= last; ++number) names.push_back(item_text(number - 1));
    return names;
}

}  // namespace quillomat
