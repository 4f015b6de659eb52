// The memory that a database takes, beside the size of its file: memory_bench FILE
// It is what the system says of the whole process, with whatever the allocator keeps.

#include <filesystem>
#include <string>

#include "database/search_texts.h"
#include "measure.h"
#include "win/api.h"
#include "win/database_file.h"
#include "win/upper_case.h"
// Needs the above.
#include <psapi.h>

namespace quillomat::bench {
namespace {

double megabytes_in_use() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.WorkingSetSize) / 1e6;
}

void run(const std::wstring& path) {
    const double file = static_cast<double>(std::filesystem::file_size(path)) / 1e6;
    const double before = megabytes_in_use();
    TextFileSlot slot;
    Catalogue catalogue;
    int games = 0;
    load_catalogue(slot, path, catalogue, [&games](std::wstring_view) { ++games; });
    const double loaded = megabytes_in_use() - before;
    SearchTexts texts(catalogue, upper_case);
    int found = 0;
    for (const SearchScope scope : {SearchScope::Names, SearchScope::Cheats}) {
        texts.find(scope, L"", games, [&found](int) { ++found; });
    }
    const double searched = megabytes_in_use() - before;
    const std::string what = "memory of " + std::to_string(games) + " games, ";
    print({what + "loaded", loaded, "MB", "the file", file, 2.5 * file});
    print({what + "with search texts", searched, "MB", "the file", file, 5 * file});
}

}  // namespace
}  // namespace quillomat::bench

int wmain(int count, wchar_t** arguments) {
    if (count != 2) return 2;
    quillomat::bench::run(arguments[1]);
    return 0;
}
