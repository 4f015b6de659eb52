#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "common/settings.h"
#include "win/api.h"

namespace quillomat {

/// A folder of a test's own, removed with all that is in it.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        static int count = 0;
        path_ = std::filesystem::temp_directory_path() /
                (L"quillomat-test-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++count));
        // Numbers of processes come again: a run that was ended may have left a folder of this name.
        remove();
        std::filesystem::create_directories(path_);
    }
    ~TemporaryFolder() { remove(); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    void write(const std::filesystem::path& name, std::string_view bytes) const {
        std::ofstream(path_ / name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    /// The content of a file; empty when there is none.
    std::string read(const std::filesystem::path& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    void remove() const {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::filesystem::path path_;
};

/// Settings of a test's own, empty at its beginning and gone at its end.
class TemporarySettings {
  public:
    TemporarySettings() { remove(); }
    ~TemporarySettings() { remove(); }
    TemporarySettings(const TemporarySettings&) = delete;
    TemporarySettings& operator=(const TemporarySettings&) = delete;

    Settings settings() const { return Settings(application_); }
    const std::wstring& application() const { return application_; }
    /// Where they are, below the user's part of the registry.
    std::wstring key() const { return L"Software\\" + application_ + L"\\Settings"; }

  private:
    void remove() const { RegDeleteTreeW(HKEY_CURRENT_USER, (L"Software\\" + application_).c_str()); }

    std::wstring application_ = L"QuillomatTest" + std::to_wstring(GetCurrentProcessId());
};

}  // namespace quillomat
