#pragma once

#include "output/viewer_link.h"

namespace quillomat {

class frmCtlView;

/// Gives the output windows access to an open viewer.
class OpenViewer final : public ViewerLink {
  public:
    explicit OpenViewer(frmCtlView& viewer) : viewer_(viewer) {}

    Form& window() override;
    std::wstring game_name() const override;
    std::wstring cheats() const override;
    void select_game(int number) override;
    void select_game(std::wstring_view name) override;
    void list_game(std::wstring_view name) override;

  private:
    frmCtlView& viewer_;
};

}  // namespace quillomat
