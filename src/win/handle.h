#pragma once

#include <utility>

#include "win/api.h"

namespace quillomat {

/// Owns a file's handle and closes it.
class FileHandle {
  public:
    FileHandle() = default;
    explicit FileHandle(HANDLE handle) : handle_(handle) {}
    FileHandle(FileHandle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
    FileHandle& operator=(FileHandle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~FileHandle() { close(); }

    HANDLE get() const { return handle_; }
    explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }
    void close() {
        if (*this) CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
    }

  private:
    HANDLE handle_ = INVALID_HANDLE_VALUE;
};

/// Owns a key of the registry and closes it.
class RegistryKey {
  public:
    RegistryKey() = default;
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    ~RegistryKey() {
        if (key_) RegCloseKey(key_);
    }

    HKEY get() const { return key_; }
    HKEY* receive() { return &key_; }

  private:
    HKEY key_ = nullptr;
};

}  // namespace quillomat
