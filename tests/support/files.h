#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace quillomat {

/// Returns a file's content, or an empty text if there is no such file.
inline std::string bytes_of(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void write_bytes(const std::filesystem::path& path, std::string_view bytes, std::ios::openmode mode = {}) {
    std::ofstream(path, std::ios::binary | mode).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// Creates a folder for a test and deletes it with its content on destruction.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        int number = 0;
        do {
            path_ = std::filesystem::temp_directory_path() / ("quillomat-test-" + std::to_string(++number));
        } while (!std::filesystem::create_directory(path_));
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    void write(const std::filesystem::path& name, std::string_view bytes) const { write_bytes(path_ / name, bytes); }
    std::string read(const std::filesystem::path& name) const { return bytes_of(path_ / name); }

  private:
    std::filesystem::path path_;
};

}  // namespace quillomat
