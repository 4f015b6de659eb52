#pragma once

#include <string>

#include "common/settings.h"
#include "support/files.h"
#include "win/api.h"

namespace quillomat {

/// Gives a test empty settings of its own and deletes them on destruction.
class TemporarySettings {
  public:
    TemporarySettings() { remove(); }
    ~TemporarySettings() { remove(); }
    TemporarySettings(const TemporarySettings&) = delete;
    TemporarySettings& operator=(const TemporarySettings&) = delete;

    Settings settings() const { return Settings(application_); }
    const std::wstring& application() const { return application_; }

  private:
    void remove() const { RegDeleteTreeW(HKEY_CURRENT_USER, (L"Software\\" + application_).c_str()); }

    std::wstring application_ = L"QuillomatTest" + std::to_wstring(GetCurrentProcessId());
};

/// Redirects a root of the registry, for this process, to a key of the test's own that is empty at first.
class RegistryOverride {
  public:
    explicit RegistryOverride(HKEY root) : root_(root) {
        RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str());
        RegCreateKeyExW(HKEY_CURRENT_USER, path_.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr);
        RegOverridePredefKey(root_, key_);
    }
    ~RegistryOverride() {
        RegOverridePredefKey(root_, nullptr);
        RegCloseKey(key_);
        RegDeleteTreeW(HKEY_CURRENT_USER, path_.c_str());
    }
    RegistryOverride(const RegistryOverride&) = delete;
    RegistryOverride& operator=(const RegistryOverride&) = delete;

    void set(const std::wstring& key, const wchar_t* name, const std::wstring& text) const {
        const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        RegSetKeyValueW(key_, key.c_str(), name, REG_SZ, text.c_str(), size);
    }
    void remove(const std::wstring& key) const { RegDeleteTreeW(key_, key.c_str()); }

  private:
    HKEY root_;
    HKEY key_ = nullptr;
    std::wstring path_ = L"Software\\QuillomatTestRoot" + std::to_wstring(GetCurrentProcessId());
};

/// While it lives, a command that notes the address opens web and mail links.
class CaughtLinks {
  public:
    CaughtLinks() {
        for (const wchar_t* protocol : {L"http", L"mailto"}) {
            classes_.set(protocol, L"URL Protocol", L"");
            classes_.set(std::wstring(protocol) + L"\\shell\\open\\command", nullptr,
                         L"cmd.exe /c echo %1>\"" + folder_.path().wstring() + L"\\link.txt\"");
        }
    }

    /// The link opened last, with a line end.
    std::string last() const { return folder_.read("link.txt"); }

  private:
    TemporaryFolder folder_;
    RegistryOverride classes_{HKEY_CLASSES_ROOT};
};

}  // namespace quillomat
