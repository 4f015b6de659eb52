#pragma once

#include <string>
#include <string_view>

#include "win/text_file.h"

namespace quillomat {

/// A text file that is there for as long as the object lives.
class TemporaryTextFile {
  public:
    /// Writes the file, over any older one. Throws `Error` as `TextFileSlot::replace` does.
    TemporaryTextFile(TextFileSlot& slot, std::wstring path, std::wstring_view text);
    ~TemporaryTextFile();
    TemporaryTextFile(const TemporaryTextFile&) = delete;
    TemporaryTextFile& operator=(const TemporaryTextFile&) = delete;

  private:
    std::wstring path_;
};

}  // namespace quillomat
