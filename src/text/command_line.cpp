#include "text/command_line.h"

namespace quillomat {

std::wstring command_line_query(std::wstring_view arguments) {
    std::wstring query;
    bool between_words = false;
    for (const wchar_t character : arguments) {
        if (character == L'"') continue;
        if (std::wstring_view(L" \t\r\n").find(character) != std::wstring_view::npos) {
            between_words = true;
            continue;
        }
        if (between_words && !query.empty()) query += L' ';
        between_words = false;
        query += character;
    }
    return query;
}

}  // namespace quillomat
