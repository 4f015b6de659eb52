#include "output/file_list_box.h"

#include <utility>

#include "text/paths.h"
#include "win/folders.h"

namespace quillomat {

FileListBox::FileListBox(Container& container, Bounds bounds, std::wstring extension)
    : ListBox(container, bounds), extension_(std::move(extension)) {}

void FileListBox::set_path(const std::wstring& path) {
    const Filling filling(*this);
    clear();
    for (const std::wstring& name : list_folder(path).files) {
        if (has_extension(name, extension_)) add(name);
    }
}

}  // namespace quillomat
