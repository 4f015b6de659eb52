#include "database/search_texts.h"

#include <algorithm>
#include <utility>

#include "text/line_end.h"

namespace quillomat {

SearchTexts::SearchTexts(const Catalogue& catalogue, UpperCase upper_case)
    : catalogue_(catalogue), upper_case_(std::move(upper_case)) {}

void SearchTexts::find(SearchScope scope, std::wstring_view keyword, int game_count,
                       const std::function<void(int number)>& on_match) {
    Texts& texts = texts_[static_cast<std::size_t>(scope)];
    extend(texts, scope, game_count);
    const KeywordFinder finder(keyword, texts.frequencies);
    for (int number = 0; number < game_count; ++number) {
        if (finder.occurs_in(texts.by_number[static_cast<std::size_t>(number)])) on_match(number);
    }
}

void SearchTexts::extend(Texts& texts, SearchScope scope, int game_count) {
    const int first = static_cast<int>(texts.by_number.size());
    if (game_count <= first) return;

    std::size_t length = 0;
    for (int number = first; number < game_count; ++number) {
        length += line_end.size() + source(scope, number).size();
    }
    // One block for all the new texts, so that they take hardly more memory than their characters.
    auto block = std::make_unique_for_overwrite<wchar_t[]>(length + KeywordFinder::readable_beyond);
    wchar_t* end = block.get();
    std::vector<std::wstring_view> added;
    for (int number = first; number < game_count; ++number) {
        const wchar_t* begin = end;
        const std::wstring_view text = source(scope, number);
        end = std::copy(line_end.begin(), line_end.end(), end);
        end = std::copy(text.begin(), text.end(), end);
        added.emplace_back(begin, line_end.size() + text.size());
    }
    std::fill_n(end, KeywordFinder::readable_beyond, L'\0');
    upper_case_(block.get(), length);

    texts.frequencies.add({block.get(), length});
    texts.blocks.push_back(std::move(block));
    texts.by_number.insert(texts.by_number.end(), added.begin(), added.end());
}

std::wstring_view SearchTexts::source(SearchScope scope, int number) const {
    return scope == SearchScope::Names ? catalogue_.name(number) : catalogue_.cheats(number);
}

}  // namespace quillomat
