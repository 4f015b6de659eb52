#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "database/catalogue.h"
#include "database/record.h"
#include "support/western_text.h"
#include "text/error.h"

namespace {

using quillomat::Catalogue;

std::vector<std::wstring> load(Catalogue& catalogue, const std::wstring& text) {
    std::vector<std::wstring> listed;
    try {
        catalogue.load(text, [&](std::wstring_view name) { listed.emplace_back(name); });
    } catch (const quillomat::Error&) {
        // The games read before the error stay in the catalogue.
    }
    return listed;
}

}  // namespace

// For any file: games that are read and written to a new file are read back as the same games.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Created only once, because loading clears them.
    static Catalogue first{quillomat::upper_case};
    static Catalogue second{quillomat::upper_case};
    const std::vector<std::wstring> names = load(first, std::wstring(data, data + size));
    std::wstring text;
    for (std::size_t number = 0; number < names.size(); ++number) {
        text += quillomat::record_text(names[number], first.cheats(static_cast<int>(number)));
    }
    if (load(second, text) != names) std::abort();
    for (int number = 0; number < static_cast<int>(names.size()); ++number) {
        if (first.cheats(number) != second.cheats(number)) std::abort();
    }
    return 0;
}
