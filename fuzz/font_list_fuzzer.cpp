#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "text/font_list.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

// For any file: the names that are read can be listed in a menu, and are read back the same after writing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillomat;
    const std::wstring text(data, data + size);
    const std::vector<std::wstring> names = font_names(text);
    require(names.size() <= most_listed_fonts);
    std::size_t searched_from = 0;
    for (const std::wstring& name : names) {
        require(!name.empty() && name.size() <= longest_font_name);
        require(std::all_of(name.begin(), name.end(), [](wchar_t c) { return c >= L' '; }));
        const std::size_t found = text.find(name, searched_from);
        require(found != std::wstring::npos);
        searched_from = found + name.size();
    }
    require(font_names(font_list_text(names)) == names);
    return 0;
}
