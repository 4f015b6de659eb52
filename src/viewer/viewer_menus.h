#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/menu.h"
#include "win/gdi.h"

namespace quillomat {

/// The viewer's menus: the menu bar, and the context menus of the lists and of the cheat text.
struct ViewerMenus {
    explicit ViewerMenus(Form& form);

    MenuBar bar;

    Menu mnuMenu{bar, L"&Menu"};
    Menu mnuSave{mnuMenu, L"&Save..."};
    Menu mnuAddNew{mnuMenu, L"&Add new game"};
    Menu mnuMailCheats{mnuMenu, L"&E-mail Cheat Codes"};
    Menu mnuExit{mnuMenu, L"E&xit"};

    Menu mnuOptions{bar, L"&Options"};
    Menu mnuPrintOptions{mnuOptions, L"&Print"};
    Menu mnuPrint{mnuPrintOptions, L"&Cheat Codes"};
    Menu mnuPrintGames{mnuPrintOptions, L"&List of games..."};
    Menu mnuCopy{mnuOptions, L"&Copy"};
    Menu mnuColour{mnuOptions, L"C&olour"};
    Menu mnuAutoSelect{mnuOptions, L"&Auto Select Game"};

    Menu mnuFont{bar, L"&Font"};
    /// Entry 0 collects the fonts; the captions of the others are the names of fonts.
    std::vector<std::unique_ptr<Menu>> mnuFontName;
    std::function<void(std::size_t Index)> mnuFontName_Click;

    Menu mnuSelected;
    Menu mnuSelectedSave{mnuSelected, L"&Save..."};
    Menu mnuSelectedPrint{mnuSelected, L"&Print Cheats"};
    Menu mnuSelectedPrintList{mnuSelected, L"Print &List of Games"};
    Menu mnuSelectedCopy{mnuSelected, L"&Copy Cheats"};
    Menu mnuSelectedSearch{mnuSelected, L"Sea&rch..."};
    Menu mnuSelectedFind{mnuSelected, L"&Find..."};
    Menu mnuSelectedAddNew{mnuSelected, L"&Add New Game"};
    Menu mnuSelectedMailCheats{mnuSelected, L"&E-mail Cheat Codes"};

    Menu mnuTextBox;
    Menu mnuTextBoxSearch{mnuTextBox, L"&Search for"};
    Menu mnuTextBoxInGames{mnuTextBoxSearch, L"In &Games"};
    Menu mnuTextBoxInCheats{mnuTextBoxSearch, L"In &Cheats"};
    Menu mnuTextBoxFind{mnuTextBox, L"&Find..."};

    /// Gives the entries of the first two menus their pictures, in the size for the form's resolution.
    void fit_pictures(int dpi);
    /// Adds an entry for a font at the end of the font menu.
    void add_font(const std::wstring& name);
    /// Removes all entries but the first from the font menu.
    void remove_fonts() { mnuFontName.resize(1); }

  private:
    void add_font_entry(const std::wstring& caption, Ampersands ampersands);

    int pictures_dpi_ = 0;  // the resolution that the pictures fit
    std::vector<GdiObject<HBITMAP>> bitmaps_;
};

}  // namespace quillomat
