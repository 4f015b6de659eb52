#include "output/file_list_box.h"

#include <utility>

#include "text/paths.h"

namespace quillomat {

FileListBox::FileListBox(Container& container, Bounds bounds, std::wstring extension)
    : ListBox(container, bounds), extension_(std::move(extension)) {}

void FileListBox::show(const std::vector<std::wstring>& files) {
    const Filling filling(*this);
    clear();
    for (const std::wstring& name : files) {
        if (has_extension(name, extension_)) add(name);
    }
}

}  // namespace quillomat
