#include "shell/open_viewer.h"

#include "viewer/frmCtlView.h"

namespace quillomat {

Form& OpenViewer::window() {
    return viewer_;
}

std::wstring OpenViewer::shown_game() const {
    return viewer_.caption();
}

std::wstring OpenViewer::shown_cheats() const {
    return viewer_.Text1.text();
}

int OpenViewer::game_count() const {
    return viewer_.List2.count();
}

std::wstring OpenViewer::game_name(int number) const {
    return viewer_.List2.item(number);
}

std::optional<int> OpenViewer::selected_game() const {
    return viewer_.List2.selected_index();
}

void OpenViewer::select_game(int number) {
    viewer_.List2.select_index(number);
}

void OpenViewer::select_game(std::wstring_view name) {
    viewer_.List2.select_text(name);
}

void OpenViewer::list_game(std::wstring_view name) {
    viewer_.List2.add(name);
}

}  // namespace quillomat
