#include "object_counts.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <sstream>
#include <vector>

#include "win/api.h"
// Needs the above.
#include <winternl.h>

namespace quillomat {
namespace {

struct GdiEntry {
    std::uint64_t object;
    std::uint16_t process;
    std::uint16_t count;
    std::uint16_t unique;
    std::uint16_t type;
    std::uint64_t user_data;
};

// The table of GDI objects that a process shares with the system.
std::vector<GdiEntry> gdi_table(HANDLE process) {
    using Query = decltype(NtQueryInformationProcess);
    const auto query = reinterpret_cast<Query*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), "NtQueryInformationProcess")));
    PROCESS_BASIC_INFORMATION information{};
    query(process, ProcessBasicInformation, &information, sizeof information, nullptr);
    constexpr int place_of_table = 0xF8;
    constexpr std::size_t entries = 0x4000;
    const void* address = nullptr;
    std::vector<GdiEntry> table(entries);
    const auto* const block = reinterpret_cast<const char*>(information.PebBaseAddress);
    if (!ReadProcessMemory(process, block + place_of_table, &address, sizeof address, nullptr) ||
        !ReadProcessMemory(process, address, table.data(), table.size() * sizeof(GdiEntry), nullptr)) {
        table.clear();
    }
    return table;
}

std::vector<GdiEntry> gdi_objects(HANDLE process) {
    const auto own = static_cast<std::uint16_t>(GetProcessId(process));
    std::vector<GdiEntry> objects = gdi_table(process);
    // Wine has a table for each process and leaves the number of the process out.
    std::erase_if(objects, [own](const GdiEntry& entry) {
        return entry.type == 0 || (entry.process != 0 && entry.process != own);
    });
    return objects;
}

bool is_own_object(std::uintptr_t handle) {
    if (IsMenu(reinterpret_cast<HMENU>(handle))) return true;
    const auto window = reinterpret_cast<HWND>(handle);
    DWORD process = 0;
    return IsWindow(window) && GetWindowThreadProcessId(window, &process) && process == GetCurrentProcessId();
}

// Wine knows an object by the lower half of its handle, and gives these out from the bottom.
int count_user_objects() {
    constexpr std::uintptr_t first = 0x20;
    constexpr std::uintptr_t last = 0xFFFE;
    constexpr std::uintptr_t longest_gap = 0x800;
    int count = 0;
    std::uintptr_t last_found = first;
    for (std::uintptr_t handle = first; handle <= last && handle - last_found < longest_gap; handle += 2) {
        if (!is_own_object(handle)) continue;
        ++count;
        last_found = handle;
    }
    return count;
}

}  // namespace

int count_gdi_objects(void* process) {
    return static_cast<int>(gdi_objects(process).size());
}

std::string list_gdi_objects(void* process) {
    // The lowest bits of a handle's upper half; windows have contexts whose drawing goes to a surface.
    constexpr unsigned kind_bits = 0x7F;
    const std::map<unsigned, const char*> names = {
        {0x01, "contexts"}, {0x41, "contexts in memory"}, {0x04, "regions"}, {0x05, "surfaces"},
        {0x09, "bitmaps"},  {0x08, "palettes"},           {0x0A, "fonts"},   {0x10, "brushes"},
        {0x30, "pens"}};
    std::map<unsigned, int> counts;
    for (const GdiEntry& entry : gdi_objects(process)) ++counts[entry.unique & kind_bits];
    std::ostringstream text;
    for (const auto& [kind, count] : counts) {
        text << ' ' << count << ' ';
        const auto name = names.find(kind);
        name == names.end() ? text << "of kind " << kind : text << name->second;
    }
    return text.str();
}

ObjectCounts count_objects() {
    const HANDLE process = GetCurrentProcess();
    const ObjectCounts counted{static_cast<int>(GetGuiResources(process, GR_GDIOBJECTS)),
                               static_cast<int>(GetGuiResources(process, GR_USEROBJECTS))};
    // Wine answers 0.
    return counted.gdi ? counted : ObjectCounts{count_gdi_objects(process), count_user_objects()};
}

std::size_t allocated_bytes() {
    std::vector<HANDLE> heaps(GetProcessHeaps(0, nullptr));
    heaps.resize(GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()));
    std::size_t bytes = 0;
    for (const HANDLE heap : heaps) {
        PROCESS_HEAP_ENTRY entry{};
        HeapLock(heap);
        while (HeapWalk(heap, &entry)) {
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
        }
        HeapUnlock(heap);
    }
    return bytes;
}

}  // namespace quillomat
