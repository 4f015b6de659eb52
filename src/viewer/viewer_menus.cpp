#include "viewer/viewer_menus.h"

#include <utility>

#include "forms/events.h"
#include "resources/pictures.h"
#include "win/picture.h"

namespace quillomat {
namespace {

// Returns the bitmap of a picture for a menu entry.
GdiObject<HBITMAP> menu_bitmap(const Picture& picture, int pixels) {
    GdiObject<HBITMAP> bitmap = picture.bitmap(pixels);
    // Wine: menus copy bitmaps without blending them, so the picture needs the menu's colour behind it.
    const bool is_copied = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    if (is_copied && bitmap) {
        const MemoryCanvas memory(nullptr);
        const Selection selected(memory.get(), bitmap.get());
        const RECT area{0, 0, pixels, pixels};
        fill(memory.get(), area, colours::menu);
        picture.draw(memory.get(), area);
    }
    return bitmap;
}

}  // namespace

ViewerMenus::ViewerMenus(Form& form) : bar(form), mnuSelected(form, L"Selected"), mnuTextBox(form, L"TextBox") {
    add_font_entry(L"Click &here to get font list...", Ampersands::MarkAccessKeys);
}

void ViewerMenus::fit_pictures(int dpi) {
    if (dpi == pictures_dpi_) return;
    pictures_dpi_ = dpi;
    const int size = GetSystemMetricsForDpi(SM_CXMENUCHECK, static_cast<UINT>(dpi));
    // The numbers of an entry's pictures without and with its check mark.
    struct Pictured {
        Menu& entry;
        int unchecked;
        int checked;
    };
    const Pictured entries[] = {{mnuSave, 0, 0},  {mnuAddNew, 1, 1},     {mnuMailCheats, 2, 2},
                                {mnuExit, 3, 3},  {mnuCopy, 5, 5},       {mnuColour, 7, 6},
                                {mnuPrint, 8, 8}, {mnuPrintGames, 8, 8}, {mnuAutoSelect, 10, 9}};
    std::vector<GdiObject<HBITMAP>> bitmaps;
    const auto add_bitmap = [&](int index) {
        bitmaps.push_back(menu_bitmap(Picture(PICTURE_MENU_FIRST + index), size));
        return bitmaps.back().get();
    };
    for (const auto& [entry, unchecked, checked] : entries) {
        entry.set_bitmaps(add_bitmap(unchecked), add_bitmap(checked));
    }
    // Delete the former bitmaps only now that no menu uses them.
    bitmaps_ = std::move(bitmaps);
}

void ViewerMenus::add_font(const std::wstring& name) {
    add_font_entry(name, Ampersands::AreShown);
}

void ViewerMenus::add_font_entry(const std::wstring& caption, Ampersands ampersands) {
    const std::size_t index = mnuFontName.size();
    mnuFontName.push_back(std::make_unique<Menu>(mnuFont, caption, ampersands));
    mnuFontName.back()->on_click = [this, index] { raise(mnuFontName_Click, index); };
}

}  // namespace quillomat
