#pragma once

#include <map>
#include <optional>
#include <utility>

#include "common/hover_help.h"
#include "controls/button.h"
#include "controls/static_label.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "forms/timer.h"
#include "shell/link.h"
#include "shell/picture_box.h"
#include "text/author_animation.h"
#include "win/picture.h"

namespace quillomat {

/// The dialog about the author: a turning coin, the author's addresses, and links that the dialog grows to show.
class Dialog1 final : public Form {
  public:
    /// `pointer` must outlive the form.
    Dialog1(Application& application, PointerState& pointer);

    /// Grows the window to show the links.
    void Expand();
    /// Shrinks the window to hide the links.
    void Contract();

    const Picture picSpin;
    const Picture Picture1[3];  ///< shown in turn as the window's icon
    PictureBox picCopy;
    StaticLabel Label1;
    StaticLabel Label2{*this, L"I wrote Quillomat and I collect the cheats in it.", {2835, 1275, 2835, 450}};
    StaticLabel Label7{*this, L"Double-click email address or website to go there", {240, 2805, 5430, 225}};
    TextBox Text1{*this, {240, 3060, 5430, 525}, TextBoxKind::Note};
    Button cmdButton[3]{{*this, L"&Open Links", {240, 3885, 1500, 375}},
                        {*this, L"&Close Links", {240, 3885, 1500, 375}},
                        {*this, L"&Take me back to the main screen!", {2490, 3885, 3180, 375}}};
    Link Label3{*this, L"Tob's Home Page - My official website.", 240, 4530};
    Link Label4{*this, L"AllVB - Visual Basic Discussion Group", 240, 4905};
    Link Label5{*this, L"Sign My Site's Guestbook", 240, 5280};
    Link Label6{*this, L"E-mail me", 3960, 4530};
    Link Label8{*this, L"My other programs", 3960, 4905};
    TextBox HelpBox{*this, {600, 3500, 1500, 270}, TextBoxKind::Help};
    Timer Timer1{*this, 150};
    Timer Timer2{*this, 50};
    Timer Timer3{*this, 1};
    Timer Timer4{*this, 450};

  private:
    void bind();
    void bind_links();
    void bind_hover_help();

    void Form_Load();
    void Text1_DblClick();
    void Timer1_Timer();
    void Timer2_Timer();
    void Timer4_Timer();

    void set_links_visible(bool visible);
    /// Shows the picture number `icon_` in the title bar and the taskbar.
    void show_icon();
    /// Resizes the window through the heights that `next_height` returns, or at once to the last one if the user wants
    /// no animations.
    void resize(std::optional<double> (*next_height)(double));

    PointerState& pointer_;
    HoverHelp hover_help_{pointer_, HelpBox, Timer3};
    double exact_height_ = author_dialog_height;  // in twips, not rounded to pixels
    int capital_ = 0;
    int icon_ = 0;
    std::map<std::pair<Picture, int>, Icon> icons_;  // by picture and size in pixels
    std::optional<double> turn_;
};

}  // namespace quillomat
