#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "win/api.h"

namespace quillomat {

class Form;

/// Returns `text` with every "&" doubled, so that a caption shows it instead of an access key.
std::wstring without_access_keys(std::wstring_view text);

/// Whether "&" in a caption marks the access key or is shown.
enum class Ampersands { MarkAccessKeys, AreShown };

/// The menu bar of a form. It shows its menus in the order of their construction.
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

/// A menu or a menu entry. The constructor appends an entry to its parent, and the destructor removes the entry. An
/// entry with entries of its own is a submenu; an entry without a caption is a separator.
class Menu {
  public:
    /// A menu of a menu bar.
    Menu(MenuBar& bar, std::wstring caption);
    /// A pop-up menu.
    Menu(Form& form, std::wstring caption);
    /// An entry of a menu.
    Menu(Menu& parent, std::wstring caption, Ampersands ampersands = Ampersands::MarkAccessKeys);
    ~Menu();
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    /// The entry was picked, or the menu is about to open.
    std::function<void()> on_click;

    /// The text of the entry.
    const std::wstring& caption() const { return caption_; }
    void set_caption(std::wstring caption);
    /// Whether the entry has a check mark.
    bool checked() const { return checked_; }
    void set_checked(bool checked);
    /// Whether the user can pick the entry.
    bool enabled() const { return enabled_; }
    void set_enabled(bool enabled);
    /// Sets the bitmaps beside the entry when it is unchecked and checked. The caller owns them and keeps them alive.
    void set_bitmaps(HBITMAP unchecked, HBITMAP checked);

    /// Shows the menu at a position in the form, in twips, and raises the event of the entry that the user picks.
    /// `default_item` is shown bold.
    void pop_up(double left, double top, const Menu* default_item = nullptr);
    /// Shows the menu in the same way at the pointer.
    void pop_up(const Menu* default_item = nullptr);

    // For the toolkit.
    HMENU handle() const { return handle_; }
    int id() const { return id_; }
    /// Raises the event unless the entry is disabled.
    void pick();

  private:
    Menu(Form& form, std::wstring caption, Ampersands ampersands);
    void attach(HMENU parent);
    /// Creates the menu that will contain the entries, if there is none yet.
    void ensure_popup_menu();
    void pop_up_at(POINT screen, const Menu* default_item);
    /// Returns the type and caption of the entry. The result points into `text`.
    MENUITEMINFOW caption_info(std::wstring& text) const;

    Form& form_;
    HMENU container_ = nullptr;  // the menu that contains the entry
    HMENU handle_ = nullptr;     // the menu of the entries in this menu
    int id_;
    std::wstring caption_;
    Ampersands ampersands_ = Ampersands::MarkAccessKeys;
    bool checked_ = false;
    bool enabled_ = true;
};

}  // namespace quillomat
