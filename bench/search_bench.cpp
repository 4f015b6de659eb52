// Measures the search in a native build: search_bench GREP_MILLISECONDS, the time that `grep -i` takes for the
// database. search_bench database BYTES writes the database.

#include <cstring>
#include <iostream>

#include "bench.h"
#include "database/catalogue.h"
#include "support/western_text.h"

int main(int count, char** arguments) {
    using namespace quillomat;
    if (count == 3) {
        std::cout << bench::database(std::stoul(arguments[2]));
        return 0;
    }
    Catalogue catalogue(upper_case);
    catalogue.load(widened(bench::database(3'000'000)), [](std::wstring_view) {});
    std::wstring all;
    for (int number = 0; number < bench::game_count; ++number) all += catalogue.cheats(number);
    std::size_t checksum = 0;
    const auto search = [&](std::wstring_view keyword) {
        catalogue.search(SearchScope::Cheats, keyword, bench::game_count, [&](int number) { checksum += number; });
    };
    search(L"");  // the first search converts the texts
    std::vector<double> worst{0, 1};
    // No character contains this byte, so memchr reads to the end.
    const auto scan = [&] { checksum += std::memchr(all.data(), 0x7F, all.size() * sizeof(wchar_t)) == nullptr; };
    for (const wchar_t* keyword : {L"ZQX", L"#", L"ES T", L"THE LEVELS", L"ETERNAL", L"E#", L"HOLD ALL THE MONEYS"}) {
        const auto times = bench::medians({[&] { search(keyword); }, scan});
        if (times[0] > worst[0]) worst = times;
    }
    bench::print("search 3 MB, worst keyword", worst[0], "ms", "memchr", worst[1], 5);
    bench::print("search 3 MB, worst keyword", worst[0], "ms", "grep -i", std::stod(arguments[1]), 1);
    std::cerr << "(checksum " << checksum << ")\n";
}
