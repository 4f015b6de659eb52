#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "win/api.h"
#include "win/picture.h"

namespace quillomat {

class Form;

/// A text for a caption in which an ampersand is an ampersand and no access key.
std::wstring without_access_keys(std::wstring_view text);

/// What an ampersand in a caption is.
enum class Ampersands { MarkAccessKeys, AreShown };

/// The menu bar of a form; it shows the menus made with it, in that order.
class MenuBar {
  public:
    explicit MenuBar(Form& form);
    ~MenuBar();
    MenuBar(const MenuBar&) = delete;
    MenuBar& operator=(const MenuBar&) = delete;

    Form& form() const { return form_; }
    HMENU handle() const { return handle_; }

  private:
    Form& form_;
    HMENU handle_;
};

/// A menu or an entry of one. An entry comes at the end of its parent and leaves it when it is destroyed; with entries
/// of its own it is a submenu, and without a caption a line between the others.
class Menu {
  public:
    /// A menu of the bar.
    Menu(MenuBar& bar, std::wstring caption);
    /// A menu that only pops up.
    Menu(Form& form, std::wstring caption);
    /// An entry of another menu.
    Menu(Menu& parent, std::wstring caption, Ampersands ampersands = Ampersands::MarkAccessKeys);
    ~Menu();
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    /// An entry was picked, or a menu is about to open.
    std::function<void()> on_click;

    /// The text of the entry, in which "&" stands before the access key unless ampersands are shown.
    const std::wstring& caption() const { return caption_; }
    void set_caption(std::wstring caption);
    /// Whether a check mark stands beside it.
    bool checked() const { return checked_; }
    void set_checked(bool checked);
    /// Whether the user can pick it.
    bool enabled() const { return enabled_; }
    void set_enabled(bool enabled);
    /// The pictures shown beside the entry, without and with its check mark.
    void set_pictures(const Picture& unchecked, const Picture& checked);

    /// Shows the menu at a position of the form in twips and runs the command the user picks; `default_item` is bold.
    void pop_up(double left, double top, const Menu* default_item = nullptr);
    /// The same at the pointer.
    void pop_up(const Menu* default_item = nullptr);

    // For the toolkit.
    HMENU handle() const { return handle_; }
    int id() const { return id_; }
    /// Raises the event, as if the user had picked the entry; not while it is disabled.
    void pick();
    /// Makes the pictures again for the form's resolution.
    void renew_pictures();

  private:
    void attach(HMENU parent);
    void become_submenu();
    void pop_up_at(POINT screen, const Menu* default_item);
    /// Describes what the entry shows; `text` holds its characters.
    MENUITEMINFOW caption_info(std::wstring& text) const;

    Form& form_;
    HMENU container_ = nullptr;  // the menu this is an entry of
    HMENU handle_ = nullptr;     // the menu of its own entries
    int id_;
    std::wstring caption_;
    Ampersands ampersands_ = Ampersands::MarkAccessKeys;
    bool checked_ = false;
    bool enabled_ = true;
    Picture unchecked_picture_;
    Picture checked_picture_;
    GdiObject<HBITMAP> unchecked_bitmap_;
    GdiObject<HBITMAP> checked_bitmap_;
};

}  // namespace quillomat
