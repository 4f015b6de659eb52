#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

#include "support/reference_loader.h"
#include "support/upper_case.h"

/// The catalogue's loader and plain reading by lines must take any bytes for the same games.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Made once: clearing it for each input is part of loading.
    static quillomat::Catalogue catalogue{quillomat::upper_case};
    const std::wstring text(data, data + size);
    if (const std::optional<std::string> difference = quillomat::difference_from_reference(text, catalogue)) {
        std::fprintf(stderr, "catalogue and reference differ: %s\n", difference->c_str());
        std::abort();
    }
    return 0;
}
