// A heap that forgives nothing, linked into a test build in place of the language's own. An object ends at an
// unreachable page, so that reading or writing behind it ends the program; a deleted object's pages become unreachable
// and are never given out again, so that using it later ends the program, too.

#include <algorithm>
#include <atomic>
#include <cstring>
#include <new>

#include "win/api.h"

namespace {

constexpr std::size_t page = 4096;
constexpr std::size_t room = std::size_t{64} << 30;
// What `operator new` promises for every object; an object of another size ends up to 15 bytes before the page's end.
constexpr std::size_t alignment = __STDCPP_DEFAULT_NEW_ALIGNMENT__;
// Makes the use of an uninitialised number or pointer show.
constexpr int filling = 0xCD;
// Exit codes, to tell a heap that has ended the program from the program's own end.
constexpr UINT room_used_up = 0xF0;
constexpr UINT not_from_here = 0xF1;

constexpr std::size_t rounded_up(std::size_t size, std::size_t unit) {
    return (size + unit - 1) / unit * unit;
}

char* reserved() {
    static char* const first = static_cast<char*>(VirtualAlloc(nullptr, room, MEM_RESERVE, PAGE_NOACCESS));
    return first;
}

void end_program(UINT exit_code) {
    TerminateProcess(GetCurrentProcess(), exit_code);
}

}  // namespace

void* operator new(std::size_t size) {
    static std::atomic<std::size_t> used = 0;
    if (size > room) throw std::bad_alloc();
    const std::size_t object = rounded_up(std::max<std::size_t>(size, 1), alignment);
    const std::size_t pages = rounded_up(object, page);
    const std::size_t place = used.fetch_add(pages + page);
    if (place + pages + page > room) end_program(room_used_up);
    char* const first = reserved() + place;
    if (!VirtualAlloc(first, pages, MEM_COMMIT, PAGE_READWRITE)) throw std::bad_alloc();
    return std::memset(first + pages - object, filling, object);
}

void operator delete(void* object) noexcept {
    if (!object) return;
    MEMORY_BASIC_INFORMATION region{};
    VirtualQuery(object, &region, sizeof region);
    // An object deleted before has no committed pages any more.
    if (region.AllocationBase != reserved() || region.State != MEM_COMMIT) return end_program(not_from_here);
    VirtualFree(region.BaseAddress, region.RegionSize, MEM_DECOMMIT);
}

void operator delete(void* object, std::size_t) noexcept {
    operator delete(object);
}
