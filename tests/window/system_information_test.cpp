#include "win/system_information.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "registry_override.h"

namespace quillomat {
namespace {

TEST(SystemInformation, ValuesOfTheRegistryBecomeTexts) {
    const RegistryOverride machine(HKEY_LOCAL_MACHINE);
    const std::uint32_t number = 0x1200ABCD;
    const std::wstring longest(1023, L'x');
    const std::wstring too_long(1024, L'x');
    SetEnvironmentVariableW(L"QuillomatTestFolder", L"D:\\Tools");
    const struct {
        DWORD type;
        const void* bytes;
        std::size_t size;
        std::optional<std::wstring> text;
    } cases[] = {
        {REG_SZ, longest.c_str(), 2048, longest},
        {REG_SZ, too_long.c_str(), 2050, std::nullopt},
        {REG_SZ, L"abc", 6, L"abc"},  // without a zero at its end
        {REG_EXPAND_SZ, L"%QuillomatTestFolder%\\a", 48, L"D:\\Tools\\a"},
        {REG_DWORD, &number, 4, L"&h1200ABCD"},
        {REG_DWORD, &number, 2, std::nullopt},
        {REG_BINARY, &number, 4, std::nullopt},
    };
    const auto read = [] { return GetKeyValue(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Test", L"value"); };
    EXPECT_EQ(read(), std::nullopt) << "there is no key";
    for (const auto& [type, bytes, size, text] : cases) {
        machine.set(L"SOFTWARE\\Test", L"value", type, bytes, size);
        EXPECT_EQ(read(), text) << type << " of " << size;
    }
    SetEnvironmentVariableW(L"QuillomatTestFolder", nullptr);
}

TEST(SystemInformation, TheToolIsLookedForInTwoPlaces) {
    const RegistryOverride machine(HKEY_LOCAL_MACHINE);
    const TemporaryFolder folder;
    EXPECT_EQ(system_information_tool(), std::nullopt);
    machine.set(L"SOFTWARE\\Microsoft\\Shared Tools Location", L"MSINFO", folder.path().wstring());
    EXPECT_EQ(system_information_tool(), std::nullopt) << "the folder does not hold the tool";
    folder.write("MSINFO32.EXE", "tool");
    EXPECT_EQ(system_information_tool(), folder.path().wstring() + L"\\MSINFO32.EXE");
    machine.set(L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", L"PATH", L"E:\\own.exe");
    EXPECT_EQ(system_information_tool(), L"E:\\own.exe") << "the first place goes before the second";
}

}  // namespace
}  // namespace quillomat
