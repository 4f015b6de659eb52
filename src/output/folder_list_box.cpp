#include "output/folder_list_box.h"

#include <algorithm>
#include <memory>

#include "forms/form.h"
#include "text/error.h"
#include "text/paths.h"

namespace quillomat {
namespace {

constexpr double icon_size = 240;
constexpr double indentation = 150;
constexpr double gap = 45;

}  // namespace

FolderListBox::FolderListBox(Container& container, Bounds bounds) : ListBox(container, bounds, LBS_OWNERDRAWFIXED) {
    fit_items();
}

void FolderListBox::fit_items() {
    const int size = to_pixels(icon_size, dpi());
    closed_folder_ = folder_icon(FolderState::Closed, size);
    open_folder_ = folder_icon(FolderState::Open, size);
    send(LB_SETITEMHEIGHT, 0, size + 2);
}

void FolderListBox::resolution_changed() {
    ListBox::resolution_changed();
    fit_items();
}

void FolderListBox::set_path(const std::wstring& path) {
    const std::vector<FolderStep> steps = folder_steps(path);
    content_ = content_of(steps.back().path);
    path_ = steps.back().path;
    steps_ = static_cast<int>(steps.size());
    entries_.clear();
    {
        const RedrawLock lock(*this);
        clear();
        for (const FolderStep& step : steps) {
            entries_.push_back({step.path, static_cast<int>(entries_.size())});
            add(step.name);
        }
        for (const std::wstring& name : content_.folders) {
            entries_.push_back({path_in(path_, name), steps_});
            add(name);
        }
    }
    select_index(steps_ - 1);
    // Scroll to the parent folder, so that the contents of the current folder are visible below it.
    set_top_index(std::max(steps_ - 2, 0));
    raise(on_change);
}

FolderContent FolderListBox::content_of(const std::wstring& path) const {
    if (!run_without_blocking || answers_at_once(path)) return list_folder(path);
    constexpr DWORD timeout = 5000;  // milliseconds
    // Shared with the thread, which continues in the background if the drive takes longer.
    const auto content = std::make_shared<FolderContent>();
    const auto list = [content, path] { *content = list_folder(path); };
    if (!run_without_blocking(list, timeout)) throw Error(ErrorCode::DiskNotReady);
    return *content;
}

std::wstring FolderListBox::selected_path() const {
    const auto index = selected_index();
    if (!index) return path_;
    return entries_[static_cast<std::size_t>(*index)].path;
}

bool FolderListBox::enter_opens() const {
    return focused_ && selected_path() != path_;
}

void FolderListBox::open_selected() {
    if (const std::wstring path = selected_path(); path != path_) set_path(path);
}

void FolderListBox::open_parent() {
    if (steps_ > 1) set_path(std::wstring(entries_[static_cast<std::size_t>(steps_ - 2)].path));
}

void FolderListBox::notified(WORD code) {
    ListBox::notified(code);
    if (code == LBN_DBLCLK) open_selected();
}

LRESULT FolderListBox::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_GETDLGCODE && wparam == VK_RETURN && enter_opens()) {
        return ListBox::handle_message(message, wparam, lparam) | DLGC_WANTALLKEYS;
    }
    const LRESULT result = ListBox::handle_message(message, wparam, lparam);
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
        focused_ = message == WM_SETFOCUS;
        raise(on_focus_changed);
    }
    if (message == WM_KEYDOWN && wparam == VK_RETURN) open_selected();
    if (message == WM_KEYDOWN && wparam == VK_BACK) open_parent();
    return result;
}

void FolderListBox::draw(const DRAWITEMSTRUCT& request) {
    if (request.itemID >= entries_.size()) return;
    const bool selected = request.itemState & ODS_SELECTED;
    const BufferedCanvas buffer(request.hDC, request.rcItem);
    const HDC canvas = buffer.canvas();
    fill(canvas, request.rcItem, selected ? colours::highlight : back_colour());

    const int index = static_cast<int>(request.itemID);
    const int size = to_pixels(icon_size, dpi());
    RECT area = request.rcItem;
    // Limit the indentation, so that half of the list's width is left for the name of a deep folder.
    const int indent = to_pixels(indentation * entries_[request.itemID].depth, dpi());
    area.left += std::min<LONG>(indent, (area.right - area.left) / 2) + 2;
    const Icon& icon = index < steps_ ? open_folder_ : closed_folder_;
    const int top = (area.top + area.bottom - size) / 2;
    if (icon) DrawIconEx(canvas, area.left, top, icon.get(), size, size, 0, nullptr, DI_NORMAL);
    area.left += size + to_pixels(gap, dpi());

    const Selection font(canvas, reinterpret_cast<HFONT>(send(WM_GETFONT)));
    SetBkMode(canvas, TRANSPARENT);
    SetTextColor(canvas, resolve(selected ? colours::highlight_text : fore_colour()));
    const std::wstring name = item(index);
    DrawTextW(canvas, name.c_str(), static_cast<int>(name.size()), &area,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if ((request.itemState & ODS_FOCUS) && !(request.itemState & ODS_NOFOCUSRECT)) {
        DrawFocusRect(canvas, &request.rcItem);
    }
}

}  // namespace quillomat
