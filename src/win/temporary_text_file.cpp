#include "win/temporary_text_file.h"

#include <utility>

#include "win/api.h"

namespace quillomat {

TemporaryTextFile::TemporaryTextFile(TextFileSlot& slot, std::wstring path, std::wstring_view text)
    : path_(std::move(path)) {
    slot.replace(path_, text);
}

TemporaryTextFile::~TemporaryTextFile() {
    DeleteFileW(path_.c_str());
}

}  // namespace quillomat
