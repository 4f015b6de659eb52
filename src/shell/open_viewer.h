#pragma once

#include "output/viewer_link.h"

namespace quillomat {

class frmCtlView;

/// Gives the output windows access to an open viewer.
class OpenViewer final : public ViewerLink {
  public:
    explicit OpenViewer(frmCtlView& viewer) : viewer_(viewer) {}

    Form& window() override;
    std::wstring shown_game() const override;
    std::wstring shown_cheats() const override;
    int game_count() const override;
    std::wstring game_name(int number) const override;
    std::optional<int> selected_game() const override;
    void select_game(int number) override;
    void select_game(std::wstring_view name) override;
    void list_game(std::wstring_view name) override;

  private:
    frmCtlView& viewer_;
};

}  // namespace quillomat
