// Loading and searching without a window, each against the least that any program would have to do.

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "database/catalogue.h"
#include "database/search_texts.h"
#include "measure.h"
#include "support/decoded_text.h"
#include "synthetic_database.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace quillomat::bench {
namespace {

constexpr std::size_t rounds = 41;
constexpr const wchar_t* words_for_grep = L"PLAYER KEY FILE MAP";

/// What a measured routine found: printed at the end, so that no compiler may leave the work out.
std::size_t checksum = 0;

/// Gives freed memory back to the system. A database is loaded once in a run, into memory that was never used before;
/// a C library that keeps freed blocks would make it look otherwise from the second round on.
void return_freed_memory() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

/// A file that lasts as long as the object.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::string& bytes)
        : path_(std::filesystem::temp_directory_path() / "quillomat_core_bench.dat") {
        std::ofstream(path_, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

    DecodedText read_and_decode() const {
        const auto size = static_cast<std::size_t>(std::filesystem::file_size(path_));
        const auto bytes = std::make_unique_for_overwrite<char[]>(size);
        std::ifstream(path_, std::ios::binary).read(bytes.get(), static_cast<std::streamsize>(size));
        return widened({bytes.get(), size});
    }

  private:
    std::filesystem::path path_;
};

std::string megabytes(std::size_t bytes) {
    return std::to_string(bytes / 1'000'000) + " MB";
}

void bench_loading(std::size_t bytes) {
    const TemporaryFile file(synthetic_database(Catalogue::slot_count, bytes));
    DecodedText decoded;
    std::optional<Catalogue> catalogue;
    const auto read_and_decode = [&] { decoded = file.read_and_decode(); };
    const auto load = [&] {
        catalogue.emplace();
        catalogue->load(file.read_and_decode(), [](std::wstring_view name) { checksum += name.size(); });
    };
    const auto forget = [&] {
        decoded = {};
        catalogue.reset();
        return_freed_memory();
    };
    const std::vector<double> seconds = medians(rounds, {{read_and_decode, forget}, {load, forget}});
    print({"load " + std::to_string(Catalogue::slot_count) + " games, " + megabytes(bytes), seconds[1] * 1e3, "ms",
           "read, decode", seconds[0] * 1e3, 1.3 * seconds[0] * 1e3});
}

void upper_case(wchar_t* characters, std::size_t length) {
    for (std::size_t i = 0; i < length; ++i) {
        if (characters[i] >= L'a' && characters[i] <= L'z') characters[i] = static_cast<wchar_t>(characters[i] - 0x20);
    }
}

/// `grep_milliseconds` is what `grep -i` takes for the words of `words_for_grep` in a file of the same games.
void bench_searching(std::size_t bytes, std::optional<double> grep_milliseconds) {
    Catalogue catalogue;
    catalogue.load(widened(synthetic_database(Catalogue::slot_count, bytes)), [](std::wstring_view) {});
    std::wstring all;
    for (int number = 0; number < Catalogue::slot_count; ++number) all += catalogue.cheats(number);
    const std::size_t byte_count = all.size() * sizeof(wchar_t);

    SearchTexts texts(catalogue, upper_case);
    const auto find = [&](std::wstring_view keyword) {
        texts.find(SearchScope::Cheats, keyword, Catalogue::slot_count,
                   [](int number) { checksum += static_cast<std::size_t>(number); });
    };
    find(L"");  // the first search makes the texts

    const std::pair<const char*, const wchar_t*> keywords[] = {
        {"rare letters, nowhere", L"ZQX"},
        {"one letter, nowhere", L"#"},
        {"common letters, nowhere", L"ETERNAL"},
        {"two common letters, nowhere", L"ES T"},
        {"words in every game", L"THE LEVEL"},
        {"words in few games", words_for_grep},
        {"a long sentence, nowhere", L"HOLD THE MENU AND THE GAME TO GET ALL THE MONEYS"},
    };
    for (const auto& [what, keyword] : keywords) {
        const std::vector<double> seconds =
            medians(rounds, {{.run =
                                  [&] {
                                      // No character has this byte, so the pass goes to the end.
                                      checksum += std::memchr(all.data(), 0x7F, byte_count) != nullptr ? 1 : 0;
                                  }},
                             {.run = [&, keyword = keyword] { find(keyword); }}});
        print({"search " + megabytes(bytes) + ", " + what, seconds[1] * 1e3, "ms", "memchr", seconds[0] * 1e3,
               3 * seconds[0] * 1e3});
        if (grep_milliseconds && keyword == words_for_grep) {
            print({"search " + megabytes(bytes) + ", " + what, seconds[1] * 1e3, "ms", "grep -i", *grep_milliseconds,
                   *grep_milliseconds});
        }
    }
}

}  // namespace
}  // namespace quillomat::bench

// Argument: the milliseconds that grep takes, if that is to be compared.
int main(int count, char** arguments) {
    using namespace quillomat::bench;
    try {
        bench_loading(3'000'000);
        bench_loading(20'000'000);
        bench_searching(3'000'000, count > 1 ? std::optional(std::stod(arguments[1])) : std::nullopt);
        std::printf("(checksum %zu)\n", checksum);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "core_bench: %s\n", error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
