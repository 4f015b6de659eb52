#include "text/export_text.h"

#include "text/line_end.h"

namespace quillomat {

std::wstring export_text(std::wstring_view name, std::wstring_view cheats) {
    return std::wstring(name).append(line_end).append(line_end).append(cheats);
}

}  // namespace quillomat
