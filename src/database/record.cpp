#include "database/record.h"

#include "text/line_end.h"

namespace quillomat {

std::wstring record_text(std::wstring_view name, std::wstring_view cheats) {
    std::wstring text;
    text.reserve(cheats.size() + line_end.size() + record_marker_length + 1 + name.size() + line_end.size());
    text.append(cheats).append(line_end);
    text.append(record_marker_length, record_marker_character).append(L" ").append(name).append(line_end);
    return text;
}

}  // namespace quillomat
