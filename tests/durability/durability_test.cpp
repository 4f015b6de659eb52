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
#include "text/error.h"
#include "win/code_page.h"
#include "win/errors.h"
#include "win/handle.h"
#include "win/program_folder.h"
#include "win/text_file.h"

namespace {

using namespace quillomat;

/// The size from which on the file begins again.
constexpr std::uintmax_t largest_file = 6 << 20;

/// The number of the last record that each writer has finished, in memory that all processes of a test share.
using Finished = std::array<volatile LONG, 2>;

/// Record `number` of a writer: most are short, some have a megabyte.
std::wstring record(std::size_t writer, int number) {
    const std::size_t lines = number % 5 == 0 ? 20'000 : static_cast<std::size_t>(number % 5) * 40;
    const std::wstring name = L"Game " + std::to_wstring(number) + L" of writer " + std::to_wstring(writer);
    std::wstring cheats = name;
    for (std::size_t line = 0; line < lines; ++line) cheats += L"\r\nPress every button, then run for your life: 1-UP";
    return record_text(name, cheats);
}

Finished& share_finished(const std::filesystem::path& file) {
    const std::wstring name = file.parent_path().filename();
    const HANDLE memory =
        CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(Finished), name.c_str());
    void* const view = MapViewOfFile(memory, FILE_MAP_WRITE, 0, 0, 0);
    if (!view) throw_last_error();
    return *static_cast<Finished*>(view);
}

/// Writes far longer than it takes to be ended, and yet not for ever when nobody is left to do it.
int write_on_and_on(const std::wstring& path, std::size_t writer) {
    Finished& finished = share_finished(path);
    TextFileSlot slot;
    for (int number = 1; number <= 1000;) {
        try {
            slot.append(path, record(writer, number));
            finished[writer] = number++;
        } catch (const Error& error) {
            // The other writer was faster all the time.
            if (error.code() != ErrorCode::PermissionDenied) throw;
        }
    }
    return 0;
}

/// A copy of this program that writes until it is ended.
FileHandle start_writer(const std::wstring& path, std::size_t writer) {
    const std::wstring program = program_folder() + L"\\durability_tests.exe";
    const std::wstring quoted_path = L"\"" + path + L"\"";
    FileHandle process(
        reinterpret_cast<HANDLE>(_wspawnl(_P_NOWAIT, program.c_str(), L"durability_tests", L"write",
                                          quoted_path.c_str(), std::to_wstring(writer).c_str(), nullptr)));
    if (!process) throw_last_error();
    return process;
}

/// Whether these bytes are the records that the writers have finished, and at most one more of each, all whole.
bool are_finished_records(std::string_view bytes, const Finished& finished) {
    std::array<int, 2> found{};
    while (!bytes.empty()) {
        std::size_t writer = 0;
        std::string next = encode(record(0, found[0] + 1));
        if (!bytes.starts_with(next)) next = encode(record(writer = 1, found[1] + 1));
        if (!bytes.starts_with(next)) return false;
        bytes.remove_prefix(next.size());
        ++found[writer];
    }
    return std::ranges::equal(found, finished, [](int count, int end) { return count == end || count == end + 1; });
}

/// Ends two writers in the middle of their work, and says whether the file is whole.
bool survives_kill(const std::wstring& path, Finished& finished, std::mt19937& random) {
    const std::string start = bytes_of(path);
    for (volatile LONG& number : finished) number = 0;
    const std::array writers{start_writer(path, 0), start_writer(path, 1)};
    for (std::size_t writer = 0; writer < 2; ++writer) {
        while (finished[writer] == 0 && WaitForSingleObject(writers[writer].get(), 1) == WAIT_TIMEOUT) continue;
    }
    // Not by the system's own waiting, which is coarser than one writing is long.
    const auto end = std::chrono::steady_clock::now() + std::chrono::microseconds(random() % 30'000);
    while (std::chrono::steady_clock::now() < end) continue;
    for (const FileHandle& writer : writers) {
        if (TerminateProcess(writer.get(), 0)) continue;
        std::printf("a writer ended by itself\n");
        return false;
    }
    for (const FileHandle& writer : writers) WaitForSingleObject(writer.get(), INFINITE);
    const std::string left = bytes_of(path);
    return left.starts_with(start) && are_finished_records(std::string_view(left).substr(start.size()), finished);
}

int kill_often(int kills) {
    const TemporaryFolder folder;
    const std::wstring path = (folder.path() / L"Cheats.dat").wstring();
    Finished& finished = share_finished(path);
    const unsigned seed = std::random_device{}();
    std::mt19937 random(seed);
    bool intact = true;
    for (int kill = 0; kill < kills && intact; ++kill) {
        intact = survives_kill(path, finished, random);
        if (std::filesystem::file_size(path) > largest_file) std::filesystem::remove(path);
    }
    std::printf("%d kills of two writers (seed %u): %s\n", kills, seed, intact ? "intact" : "TORN");
    return intact ? 0 : 1;
}

/// Appends until the disk is full; then the file must be as it was before the record that failed.
int fill_disk(const std::wstring& path) {
    TextFileSlot slot;
    slot.replace(path, record(0, 1));
    std::string before = encode(record(0, 1));
    for (int number = 2; number < 10'000; ++number) {
        try {
            slot.append(path, record(0, number));
            before += encode(record(0, number));
        } catch (const Error& error) {
            const bool unchanged = bytes_of(path) == before;
            std::printf("record %d refused with error %d (61 is a full disk), %s\n", number,
                        static_cast<int>(error.code()), unchanged ? "unchanged" : "CHANGED");
            return error.code() == ErrorCode::DiskFull && unchanged ? 0 : 1;
        }
    }
    std::printf("the disk was never full\n");
    return 1;
}

int run(const std::vector<std::wstring>& arguments) {
    const std::wstring& mode = arguments.at(0);
    if (mode == L"full") return fill_disk(arguments.at(1));
    if (mode == L"kill") return kill_often(std::stoi(arguments.at(1)));
    return write_on_and_on(arguments.at(1), std::stoul(arguments.at(2)));
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
