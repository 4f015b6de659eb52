#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/list_box.h"
#include "output/folder_icon.h"

namespace quillomat {

/// Shows the folders that lead to the current one, and those in it. A double-click or Enter opens a folder, Backspace
/// the one above.
class FolderListBox : public ListBox {
  public:
    FolderListBox(Container& container, Bounds bounds);

    /// Another folder has become the current one.
    std::function<void()> on_change;

    /// The whole path of the current folder; empty before the first one is set.
    const std::wstring& path() const { return path_; }
    /// Makes a folder the current one and raises the change. Throws `Error` for one that cannot be looked into, and
    /// stays where it is.
    void set_path(const std::wstring& path);

    void notified(WORD code) override;
    void draw(const DRAWITEMSTRUCT& request) override;
    void resolution_changed() override;

  protected:
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;

  private:
    struct Entry {
        std::wstring path;
        int depth;
    };

    void fit_items();
    void open_selected();
    void open_parent();

    std::wstring path_;
    std::vector<Entry> entries_;
    int steps_ = 0;  // how many of the entries lead to the current folder
    FolderIcon closed_folder_;
    FolderIcon open_folder_;
};

}  // namespace quillomat
