#include "output/drive_list_box.h"

#include <algorithm>

#include "text/paths.h"
#include "win/folders.h"
#include "win/upper_case.h"

namespace quillomat {
namespace {

std::wstring text_of(const Drive& drive) {
    std::wstring letter = drive.root.substr(0, 2);
    switch (drive.kind) {
        case DriveKind::Fixed:
            if (drive.label.empty()) return letter;
            return letter + L" [" + drive.label + L"]";
        case DriveKind::Removable:
            return letter + L" (removable)";
        case DriveKind::Optical:
            return letter + L" (CD or DVD)";
        case DriveKind::Network:
            return letter + L" (network)";
        case DriveKind::Memory:
            return letter + L" (RAM disk)";
    }
    return letter;
}

}  // namespace

DriveListBox::DriveListBox(Container& container, Bounds bounds) : DropDownList(container, bounds) {
    for (const Drive& drive : drives()) {
        add(text_of(drive));
        roots_.push_back(drive.root);
    }
}

std::wstring DriveListBox::drive() const {
    const auto index = selected_index();
    if (!index) return {};
    return roots_[static_cast<std::size_t>(*index)];
}

void DriveListBox::select_drive_of(const std::wstring& path) {
    const auto found = std::find(roots_.begin(), roots_.end(), upper_cased(folder_steps(path).front().path));
    if (found != roots_.end()) select_index(static_cast<int>(found - roots_.begin()));
}

}  // namespace quillomat
