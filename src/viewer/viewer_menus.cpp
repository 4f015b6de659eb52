#include "viewer/viewer_menus.h"

#include "forms/events.h"
#include "resources/pictures.h"

namespace quillomat {

ViewerMenus::ViewerMenus(Form& form) : bar(form), mnuSelected(form, L"Selected"), mnuTextBox(form, L"TextBox") {
    add_font_entry(L"Click &here to get font list...", Ampersands::MarkAccessKeys);
}

void ViewerMenus::attach_pictures() {
    const auto Image3 = [](int index) { return Picture(PICTURE_MENU_FIRST + index); };
    Menu* const first_menu[] = {&mnuSave, &mnuAddNew, &mnuMailCheats, &mnuExit};
    for (int k = 0; k < 4; ++k) first_menu[k]->set_pictures(Image3(k), Image3(k));
    mnuCopy.set_pictures(Image3(5), Image3(5));
    mnuColour.set_pictures(Image3(7), Image3(6));
    mnuAutoSelect.set_pictures(Image3(10), Image3(9));
    mnuPrint.set_pictures(Image3(8), Image3(8));
    mnuPrintGames.set_pictures(Image3(8), Image3(8));
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
