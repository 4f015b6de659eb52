#include "forms/menu.h"

#include <utility>

#include "forms/form.h"
#include "win/errors.h"

namespace quillomat {

std::wstring without_access_keys(std::wstring_view text) {
    std::wstring caption;
    for (const wchar_t character : text) caption.append(character == L'&' ? 2 : 1, character);
    return caption;
}

MenuBar::MenuBar(Form& form) : form_(form), handle_(CreateMenu()) {
    if (!handle_) throw_last_error();
    SetMenu(form_.window(), handle_);
}

MenuBar::~MenuBar() {
    if (form_.window()) SetMenu(form_.window(), nullptr);
    DestroyMenu(handle_);
}

Menu::Menu(Form& form, std::wstring caption, Ampersands ampersands)
    : form_(form), id_(form_.internals().commands.add(*this)), caption_(std::move(caption)), ampersands_(ampersands) {}

Menu::Menu(MenuBar& bar, std::wstring caption) : Menu(bar.form(), std::move(caption)) {
    attach(bar.handle());
    if (IsWindowVisible(form_.window())) DrawMenuBar(form_.window());
}

Menu::Menu(Form& form, std::wstring caption) : Menu(form, std::move(caption), Ampersands::MarkAccessKeys) {
    ensure_popup_menu();
}

Menu::Menu(Menu& parent, std::wstring caption, Ampersands ampersands)
    : Menu(parent.form_, std::move(caption), ampersands) {
    parent.ensure_popup_menu();
    attach(parent.handle_);
}

Menu::~Menu() {
    form_.internals().commands.remove(id_);
    if (container_) RemoveMenu(container_, static_cast<UINT>(id_), MF_BYCOMMAND);
    if (handle_) DestroyMenu(handle_);
}

MENUITEMINFOW Menu::caption_info(std::wstring& text) const {
    text = caption_;
    if (ampersands_ == Ampersands::AreShown) text = without_access_keys(caption_);
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_STRING;
    info.fType = caption_.empty() ? MFT_SEPARATOR : MFT_STRING;
    info.dwTypeData = text.data();
    return info;
}

void Menu::attach(HMENU parent) {
    container_ = parent;
    std::wstring text;
    MENUITEMINFOW info = caption_info(text);
    info.fMask |= MIIM_ID | MIIM_SUBMENU;
    info.wID = static_cast<UINT>(id_);
    info.hSubMenu = handle_;
    if (!InsertMenuItemW(parent, static_cast<UINT>(GetMenuItemCount(parent)), TRUE, &info)) throw_last_error();
}

void Menu::ensure_popup_menu() {
    if (handle_) return;
    handle_ = CreatePopupMenu();
    if (!handle_) throw_last_error();
    if (!container_) return;
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_SUBMENU;
    info.hSubMenu = handle_;
    SetMenuItemInfoW(container_, static_cast<UINT>(id_), FALSE, &info);
}

void Menu::set_caption(std::wstring caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    std::wstring text;
    const MENUITEMINFOW info = caption_info(text);
    if (container_) SetMenuItemInfoW(container_, static_cast<UINT>(id_), FALSE, &info);
}

void Menu::set_checked(bool checked) {
    checked_ = checked;
    CheckMenuItem(container_, static_cast<UINT>(id_), checked ? MF_CHECKED : MF_UNCHECKED);
}

void Menu::set_enabled(bool enabled) {
    enabled_ = enabled;
    EnableMenuItem(container_, static_cast<UINT>(id_), enabled ? MF_ENABLED : MF_GRAYED);
}

void Menu::set_bitmaps(HBITMAP unchecked, HBITMAP checked) {
    SetMenuItemBitmaps(container_, static_cast<UINT>(id_), MF_BYCOMMAND, unchecked, checked);
}

void Menu::pop_up(double left, double top, const Menu* default_item) {
    POINT point{to_pixels(left, form_.dpi()), to_pixels(top, form_.dpi())};
    ClientToScreen(form_.window(), &point);
    pop_up_at(point, default_item);
}

void Menu::pop_up(const Menu* default_item) {
    POINT point{};
    GetCursorPos(&point);
    pop_up_at(point, default_item);
}

void Menu::pop_up_at(POINT screen, const Menu* default_item) {
    if (default_item) SetMenuDefaultItem(handle_, static_cast<UINT>(default_item->id()), FALSE);
    form_.internals().commands.pick(
        TrackPopupMenu(handle_, TPM_RETURNCMD | TPM_RIGHTBUTTON, screen.x, screen.y, 0, form_.window(), nullptr));
}

void Menu::pick() {
    if (enabled_) raise(on_click);
}

}  // namespace quillomat
