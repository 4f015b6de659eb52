// Ends a program at random moments of its writing, and looks each time at what it has left.
//
//   durability_tests kill append|replace KILLS            ends a writing copy of itself that often
//   durability_tests full FOLDER                         fills the disk of a folder, which must be a small one

#include <process.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>

#include "database/catalogue.h"
#include "database/record.h"
#include "support/files.h"
#include "text/error.h"
#include "win/code_page.h"
#include "win/errors.h"
#include "win/handle.h"
#include "win/program_folder.h"
#include "win/text_file.h"

namespace {

using namespace quillomat;

/// Games the file begins with, and the size from which on it begins again.
constexpr int first_games = 3;
constexpr std::uintmax_t largest_file = 6 << 20;

/// The record that the writer adds as number `number`: most are short, some have a megabyte.
std::wstring record(int number) {
    const std::size_t lines = number % 5 == 0 ? 20'000 : static_cast<std::size_t>(number % 5) * 40;
    std::wstring cheats = L"Game " + std::to_wstring(number);
    for (std::size_t line = 0; line < lines; ++line) cheats += L"\r\nPress every button, then run for your life: 1-UP";
    return record_text(L"Game number " + std::to_wstring(number), cheats);
}

std::wstring first_content() {
    std::wstring text;
    for (int number = 0; number < first_games; ++number) text += record(number + 1);
    return text;
}

/// A way of writing; the other one than replacing is appending.
using Way = void (TextFileSlot::*)(const std::wstring&, std::wstring_view);

/// What the file is once `count` writings have succeeded since it was `start`.
std::string expected_content(Way way, const std::string& start, int count) {
    if (count == 0) return start;
    if (way == &TextFileSlot::replace) return encode(record(count));
    std::string bytes = start;
    for (int number = 1; number <= count; ++number) bytes += encode(record(number));
    return bytes;
}

/// How many writings to a file are finished, in memory that a writer and the one who ends it share.
volatile LONG& shared_count(const std::filesystem::path& file) {
    const std::wstring name = file.parent_path().filename();
    const HANDLE memory =
        CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(LONG), name.c_str());
    void* const view = MapViewOfFile(memory, FILE_MAP_WRITE, 0, 0, 0);
    if (!view) throw_last_error();
    return *static_cast<volatile LONG*>(view);
}

/// Writes far longer than it takes to be ended, and yet not for ever when nobody is left to do it.
int write_on_and_on(Way way, const std::wstring& path) {
    volatile LONG& finished = shared_count(path);
    TextFileSlot slot;
    for (int number = 1; number <= 1000; ++number) {
        (slot.*way)(path, record(number));
        finished = number;
    }
    return 0;
}

/// A copy of this program that writes until it is ended.
FileHandle start_writer(Way way, const std::wstring& path) {
    const std::wstring program = program_folder() + L"\\durability_tests.exe";
    FileHandle writer(reinterpret_cast<HANDLE>(_wspawnl(_P_NOWAIT, program.c_str(), L"durability_tests", L"write",
                                                        way == &TextFileSlot::append ? L"append" : L"replace",
                                                        (L"\"" + path + L"\"").c_str(), nullptr)));
    // What is returned instead of a handle stands for this process in the calls that wait for one and end it.
    if (!writer) throw_last_error();
    return writer;
}

/// Waits without giving up the processor: the system's own waiting is coarser than one writing is long.
void wait(std::chrono::microseconds time) {
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end) continue;
}

/// Ends a writer in the middle of its work: whether the file is as after its last writing, or as after one more.
bool survives_kill(Way way, const std::wstring& path, volatile LONG& count, std::mt19937& random) {
    const std::string start = bytes_of(path);
    count = 0;
    const FileHandle writer = start_writer(way, path);
    while (count == 0 && WaitForSingleObject(writer.get(), 1) == WAIT_TIMEOUT) continue;
    wait(std::chrono::microseconds(std::uniform_int_distribution(0, 30'000)(random)));
    const bool was_running = TerminateProcess(writer.get(), 0);
    WaitForSingleObject(writer.get(), INFINITE);
    const int finished = count;
    if (!was_running || finished == 0) {
        std::printf("the writer ended by itself\n");
        return false;
    }
    const std::string left = bytes_of(path);
    if (left != expected_content(way, start, finished) && left != expected_content(way, start, finished + 1)) {
        std::printf("torn: %zu bytes after %d writings on %zu bytes\n", left.size(), finished, start.size());
        return false;
    }
    Catalogue().load(decode(left), [](std::wstring_view) {});  // throws when it does not load
    return true;
}

int kill_often(Way way, int kills) {
    const TemporaryFolder folder;
    const std::wstring path = (folder.path() / L"Cheats.dat").wstring();
    const std::filesystem::path remains = folder.path() / L"~quillomat.tmp";
    volatile LONG& count = shared_count(path);
    TextFileSlot slot;
    slot.replace(path, first_content());
    const unsigned seed = std::random_device{}();
    std::mt19937 random(seed);
    bool intact = true;
    int remaining = 0;  // kills that left an unfinished file beside the whole one
    for (int kill = 0; kill < kills && intact; ++kill) {
        intact = survives_kill(way, path, count, random);
        remaining += std::filesystem::exists(remains) ? 1 : 0;
        if (std::filesystem::file_size(path) > largest_file) slot.replace(path, first_content());
    }
    std::printf("%d kills (seed %u), %d unfinished files: %s\n", kills, seed, remaining, intact ? "intact" : "TORN");
    // The next writing works and tidies up, whatever was left.
    slot.append(path, record(1));
    if (std::filesystem::exists(remains)) {
        std::printf("an unfinished file stays\n");
        intact = false;
    }
    return intact ? 0 : 1;
}

/// Appends until the disk is full; then the file must be as it was, and work again as soon as there is room.
int fill_disk(const std::filesystem::path& folder) {
    const std::wstring path = (folder / L"Cheats.dat").wstring();
    TextFileSlot slot;
    std::string before = encode(first_content());
    slot.replace(path, first_content());
    for (int number = 1; number < 10'000; ++number) {
        try {
            slot.append(path, record(number));
            before += encode(record(number));
        } catch (const Error& error) {
            const bool unchanged = bytes_of(path) == before;
            const bool tidy = std::distance(std::filesystem::directory_iterator(folder), {}) == 1;
            std::printf("record %d refused with error %d (61 is a full disk), %s, %s\n", number,
                        static_cast<int>(error.code()), unchanged ? "unchanged" : "CHANGED", tidy ? "tidy" : "UNTIDY");
            return error.code() == ErrorCode::DiskFull && unchanged && tidy ? 0 : 1;
        }
    }
    std::printf("the disk was never full\n");
    return 1;
}

int run(const std::vector<std::wstring>& arguments) {
    if (arguments.size() == 2 && arguments[0] == L"full") return fill_disk(arguments[1]);
    if (arguments.size() == 3) {
        const Way way = arguments[1] == L"replace" ? &TextFileSlot::replace : &TextFileSlot::append;
        if (arguments[0] == L"write") return write_on_and_on(way, arguments[2]);
        if (arguments[0] == L"kill") return kill_often(way, std::stoi(arguments[2]));
    }
    std::printf("usage: durability_tests kill append|replace KILLS\n       durability_tests full FOLDER\n");
    return 2;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    try {
        return run({arguments + std::min(count, 1), arguments + count});
    } catch (const quillomat::Error& error) {
        std::printf("failed: error %d\n", static_cast<int>(error.code()));
        return 1;
    }
}
