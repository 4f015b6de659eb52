#pragma once

#include <string>
#include <string_view>

#include "win/text_file.h"

namespace quillomat {

/// Creates a text file and deletes it on destruction.
class TemporaryTextFile {
  public:
    /// Writes the file, replacing an older one. Throws `Error` as `TextFileSlot::replace` does.
    TemporaryTextFile(TextFileSlot& slot, std::wstring path, std::wstring_view text);
    ~TemporaryTextFile();
    TemporaryTextFile(const TemporaryTextFile&) = delete;
    TemporaryTextFile& operator=(const TemporaryTextFile&) = delete;

  private:
    std::wstring path_;
};

}  // namespace quillomat
