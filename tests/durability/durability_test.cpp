// Ends programs at random moments of their writing, and looks each time at what they have left.
//
//   durability_tests kill KILLS    ends two writing copies of itself that often
//   durability_tests full FILE     appends until the disk is full

#include <process.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <random>

#include "database/record.h"
#include "support/files.h"
#include "support/wait.h"
#include "text/error.h"
#include "win/code_page.h"
#include "win/errors.h"
#include "win/handle.h"
#include "win/program_folder.h"
#include "win/text_file.h"

namespace {

using namespace quillomat;

// Record `number` of a writer: most are short, some have a megabyte.
std::wstring record(std::size_t writer, int number) {
    const std::size_t lines = number % 5 == 0 ? 20'000 : static_cast<std::size_t>(number % 5) * 40;
    const std::wstring name = L"Game " + std::to_wstring(number) + L" of writer " + std::to_wstring(writer);
    std::wstring cheats = name;
    for (std::size_t line = 0; line < lines; ++line) cheats += L"\r\nPress every button, then run for your life: 1-UP";
    return record_text(name, cheats);
}

// Writes far longer than it takes to be ended, and yet not for ever when nobody is left to do it.
int write_on_and_on(const std::wstring& path, std::size_t writer) {
    TextFileSlot slot;
    for (int number = 1; number <= 1000;) {
        try {
            slot.append(path, record(writer, number));
            ++number;
        } catch (const Error& error) {
            // The other writer was faster all the time.
            if (error.code() != ErrorCode::PermissionDenied) throw;
        }
    }
    return 0;
}

// A copy of this program that writes until it is ended.
FileHandle start_writer(const std::wstring& path, std::size_t writer) {
    const std::wstring program = program_folder() + L"\\durability_tests.exe";
    const std::wstring quoted_path = L"\"" + path + L"\"";
    FileHandle process(
        reinterpret_cast<HANDLE>(_wspawnl(_P_NOWAIT, program.c_str(), L"durability_tests", L"write",
                                          quoted_path.c_str(), std::to_wstring(writer).c_str(), nullptr)));
    if (!process) throw_last_error();
    return process;
}

// Counts the whole records of the two writers in a file, each writer's in their order, and returns what is left over.
// What either wrote over or cut off of the other's is left over from there on.
std::string take_records(const std::wstring& path, std::array<int, 2>& found) {
    std::string rest = bytes_of(path);
    std::size_t taken = 0;
    found = {};
    for (std::size_t writer = 0; writer < 2; ++writer) {
        for (std::string next;
             rest.compare(taken, (next = encode(record(writer, found[writer] + 1))).size(), next) == 0; writer = 0) {
            taken += next.size();
            ++found[writer];
        }
    }
    return rest.erase(0, taken);
}

// Ends two writers in the middle of their work, and says whether the file is whole.
bool survives_kill(std::mt19937& random) {
    const TemporaryFolder folder;
    const std::wstring path = (folder.path() / L"Cheats.dat").wstring();
    const std::array writers{start_writer(path, 0), start_writer(path, 1)};
    std::array<int, 2> found{};
    bool as_expected = wait_until([&] {
        take_records(path, found);
        return std::ranges::min(found) > 0;
    });
    // Not by the system's own waiting, which is coarser than one writing is long.
    const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(random() % 30'000);
    while (std::chrono::steady_clock::now() < end) continue;
    // It cannot be ended when it has ended by itself.
    for (const FileHandle& writer : writers) as_expected &= TerminateProcess(writer.get(), 0) != FALSE;
    for (const FileHandle& writer : writers) WaitForSingleObject(writer.get(), INFINITE);
    return as_expected && take_records(path, found).empty();
}

int kill_often(int kills) {
    const unsigned seed = std::random_device{}();
    std::mt19937 random(seed);
    bool intact = true;
    for (int kill = 0; kill < kills && intact; ++kill) intact = survives_kill(random);
    std::printf("%d kills of two writers (seed %u): %s\n", kills, seed, intact ? "intact" : "WRONG");
    return intact ? 0 : 1;
}

// Appends until the disk is full; then the file must be as it was before the record that failed.
int fill_disk(const std::wstring& path) {
    TextFileSlot slot;
    slot.replace(path, record(0, 1));
    std::string before = encode(record(0, 1));
    for (int number = 2;; ++number) {
        try {
            slot.append(path, record(0, number));
            before += encode(record(0, number));
        } catch (const Error& error) {
            const bool kept = error.code() == ErrorCode::DiskFull && bytes_of(path) == before;
            std::printf("record %d refused with error %d: %s\n", number, static_cast<int>(error.code()),
                        kept ? "unchanged" : "WRONG");
            return kept ? 0 : 1;
        }
    }
}

}  // namespace

int wmain(int, wchar_t** arguments) {
    const std::wstring mode = arguments[1];
    if (mode == L"full") return fill_disk(arguments[2]);
    if (mode == L"kill") return kill_often(std::stoi(arguments[2]));
    return write_on_and_on(arguments[2], std::stoul(arguments[3]));
}
