#include "text/question.h"

namespace quillomat {

std::wstring question_of(std::wstring_view arguments) {
    std::wstring question;
    bool between_words = false;
    for (const wchar_t character : arguments) {
        if (character == L'"') continue;
        if (std::wstring_view(L" \t\r\n").find(character) != std::wstring_view::npos) {
            between_words = true;
            continue;
        }
        if (between_words && !question.empty()) question += L' ';
        between_words = false;
        question += character;
    }
    return question;
}

}  // namespace quillomat
