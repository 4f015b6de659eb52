#pragma once

#include <functional>
#include <optional>

#include "controls/graphics.h"
#include "forms/form.h"
#include "forms/modality.h"
#include "forms/timer.h"
#include "resources/pictures.h"

namespace quillomat {

/// The loading window, shown while the viewer opens and reads the database.
class frmWait final : public Form {
  public:
    /// `show_viewer` opens the viewer and returns when the viewer has loaded.
    frmWait(Application& application, std::function<void()> show_viewer);

    Image Picture1{*this, Picture(PICTURE_GAME_PAD), {300, 240, 720, 720}};
    Label Label1{*this, L"Please wait... loading...", {1260, 450, 3000, 300}};
    Shape Shape1{*this, {0, 0, 4500, 1200}};
    Timer Timer1{*this, 1};

  private:
    void Timer1_Timer();

    std::function<void()> show_viewer_;
    std::optional<ModalScope> alone_;
};

}  // namespace quillomat
