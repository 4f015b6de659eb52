#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/list_box.h"
#include "win/folders.h"

namespace quillomat {

/// A list of the folders from the root to the current folder and of the folders in it. A double-click or Enter opens
/// the selected folder, Backspace the parent folder.
class FolderListBox : public ListBox {
  public:
    FolderListBox(Container& container, Bounds bounds);

    /// Another folder has become the current one.
    std::function<void()> on_change;
    /// The list has got the focus or lost it.
    std::function<void()> on_focus_changed;

    /// Returns true if Enter opens a folder, because the list has the focus and another folder than the current one is
    /// selected. Otherwise Enter presses the form's default button.
    bool enter_opens() const;

    /// Lists a folder on a drive that may be slow by running `work` as `Application::run_without_blocking` does. If
    /// this hook is unbound, the list itself waits for the drive.
    std::function<bool(std::function<void()> work, DWORD milliseconds)> run_without_blocking;

    /// The path of the current folder; empty until one is set.
    const std::wstring& path() const { return path_; }
    /// The names of the files in the current folder.
    const std::vector<std::wstring>& files() const { return content_.files; }
    /// Makes a folder the current one and raises `on_change`. Throws `Error` if the folder cannot be listed,
    /// DiskNotReady if that takes more than five seconds; the current folder then stays the same.
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

    FolderContent content_of(const std::wstring& path) const;
    void fit_items();
    std::wstring selected_path() const;
    void open_selected();
    void open_parent();

    std::wstring path_;
    std::vector<Entry> entries_;
    int steps_ = 0;  // the number of entries from the root to the current folder
    FolderContent content_;
    bool focused_ = false;
    Icon closed_folder_;
    Icon open_folder_;
};

}  // namespace quillomat
