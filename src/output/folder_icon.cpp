#include "output/folder_icon.h"

#include <shellapi.h>

namespace quillomat {

FolderIcon::FolderIcon(FolderState state, int size) : size_(size) {
    // Sizes above that of the small icon are scaled down from the large icon.
    const UINT kind = size > GetSystemMetrics(SM_CXSMICON) ? SHGFI_LARGEICON : SHGFI_SMALLICON;
    const UINT open = state == FolderState::Open ? SHGFI_OPENICON : 0;
    SHFILEINFOW info{};
    // With SHGFI_USEFILEATTRIBUTES the shell goes by the attributes and touches no disk; the name is a placeholder.
    if (SHGetFileInfoW(L"folder", FILE_ATTRIBUTE_DIRECTORY, &info, sizeof info,
                       SHGFI_ICON | SHGFI_USEFILEATTRIBUTES | kind | open)) {
        icon_.reset(info.hIcon);
    }
}

void FolderIcon::draw(HDC canvas, int left, int top) const {
    if (icon_) DrawIconEx(canvas, left, top, icon_.get(), size_, size_, 0, nullptr, DI_NORMAL);
}

}  // namespace quillomat
