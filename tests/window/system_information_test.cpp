#include "win/system_information.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "registry_override.h"

namespace quillomat {
namespace {

TEST(SystemInformation, ValuesOfTheRegistryBecomeTexts) {
    const RegistryOverride machine(HKEY_LOCAL_MACHINE);
    const auto read = [](const wchar_t* name) { return GetKeyValue(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Test", name); };
    EXPECT_EQ(read(L"any"), std::nullopt) << "there is no key";

    machine.set(L"SOFTWARE\\Test", L"text", L"C:\\Tool.exe");
    machine.set(L"SOFTWARE\\Test", L"longest", std::wstring(1023, L'x'));
    machine.set(L"SOFTWARE\\Test", L"too long", std::wstring(1024, L'x'));
    machine.set(L"SOFTWARE\\Test", L"no zero", REG_SZ, L"abc", 6);
    machine.set(L"SOFTWARE\\Test", L"variable", L"%QuillomatTestFolder%\\Tool.exe", REG_EXPAND_SZ);
    const std::uint32_t number = 0x1200ABCD;
    machine.set(L"SOFTWARE\\Test", L"number", REG_DWORD, &number, sizeof number);
    machine.set(L"SOFTWARE\\Test", L"half a number", REG_DWORD, &number, 2);
    machine.set(L"SOFTWARE\\Test", L"bytes", REG_BINARY, &number, sizeof number);
    SetEnvironmentVariableW(L"QuillomatTestFolder", L"D:\\Tools");

    const std::pair<const wchar_t*, std::optional<std::wstring>> cases[] = {
        {L"text", L"C:\\Tool.exe"},
        {L"longest", std::wstring(1023, L'x')},
        {L"too long", std::nullopt},
        {L"no zero", L"abc"},
        {L"variable", L"D:\\Tools\\Tool.exe"},
        {L"number", L"&h1200ABCD"},
        {L"half a number", std::nullopt},
        {L"bytes", std::nullopt},
    };
    for (const auto& [name, text] : cases) EXPECT_EQ(read(name), text) << std::filesystem::path(name);
    SetEnvironmentVariableW(L"QuillomatTestFolder", nullptr);
}

TEST(SystemInformation, TheToolIsLookedForInTwoPlaces) {
    const RegistryOverride machine(HKEY_LOCAL_MACHINE);
    const TemporaryFolder folder;
    const std::wstring in_folder = folder.path().wstring() + L"\\MSINFO32.EXE";
    EXPECT_EQ(system_information_tool(), std::nullopt);

    machine.set(L"SOFTWARE\\Microsoft\\Shared Tools Location", L"MSINFO", folder.path().wstring());
    EXPECT_EQ(system_information_tool(), std::nullopt) << "the folder does not hold the tool";
    std::ofstream(std::filesystem::path(in_folder)) << "tool";
    EXPECT_EQ(system_information_tool(), in_folder);

    machine.set(L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", L"PATH", L"E:\\own.exe");
    EXPECT_EQ(system_information_tool(), L"E:\\own.exe") << "the first place goes before the second";
}

}  // namespace
}  // namespace quillomat
