#include "forms/shell_icon.h"

namespace quillomat {

ShellIcon::ShellIcon(SHSTOCKICONID which, int size) : size_(size) {
    // The larger one is scaled down for everything above the smallest size.
    const UINT kind = size > GetSystemMetrics(SM_CXSMICON) ? SHGSI_LARGEICON : SHGSI_SMALLICON;
    SHSTOCKICONINFO info{};
    info.cbSize = sizeof info;
    if (SUCCEEDED(SHGetStockIconInfo(which, SHGSI_ICON | kind, &info))) icon_.reset(info.hIcon);
}

void ShellIcon::draw(HDC canvas, int left, int top) const {
    if (icon_) DrawIconEx(canvas, left, top, icon_.get(), size_, size_, 0, nullptr, DI_NORMAL);
}

}  // namespace quillomat
