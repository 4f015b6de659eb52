#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>

#include "common/hover_help.h"
#include "common/session.h"
#include "controls/button.h"
#include "controls/frame.h"
#include "controls/graphics.h"
#include "controls/option_button.h"
#include "controls/static_label.h"
#include "controls/text_box.h"
#include "forms/form.h"
#include "forms/timer.h"
#include "viewer/cheat_text_box.h"
#include "viewer/game_list_box.h"
#include "viewer/viewer_menus.h"
#include "viewer/viewer_windows.h"

namespace quillomat {

class frmStatus;

/// The cheat viewer: the full list of games, the cheats of the selected game beside it, and the search panel, which
/// slides in over the list.
class frmCtlView final : public Form {
  public:
    /// `session` and `windows` must outlive the form.
    frmCtlView(Application& application, Session& session, const ViewerWindows& windows);
    ~frmCtlView() override;

    // Public for `OpenViewer`, which reads the current game from the controls for other windows.
    Line Line1{*this, {0, 480, 100000, 30}};
    std::deque<Image> Image2;
    Image Image1;
    std::deque<Label> Label1;
    OptionButton Option1{
        *this, L"&List", {120, 825, 1140, 255}, OptionButton::Group::Starts, OptionButton::Choice::Set};
    OptionButton Option2{*this, L"&Search", {1320, 825, 1200, 255}, OptionButton::Group::Continues};
    GameListBox List2{*this, {120, 1140, 2490, 4545}};
    Frame Frame2{*this, L"Search", {2655, 1140, 2490, 4545}, FrameBorder::None};
    StaticLabel KeywordLabel{Frame2, L"Keyword:", {0, 15, 1700, 225}};
    TextBox Text3{Frame2, {0, 255, 1725, 315}};
    Button Command1{Frame2, L"&Go!", {1800, 240, 690, 345}};
    Frame Frame1{Frame2, L"Look in", {0, 645, 2490, 600}, FrameBorder::Captioned};
    OptionButton Option3{
        Frame1, L"G&ame", {120, 255, 1050, 255}, OptionButton::Group::Starts, OptionButton::Choice::Set};
    OptionButton Option4{Frame1, L"&Cheats", {1230, 255, 1050, 255}, OptionButton::Group::Continues};
    GameListBox List1{Frame2, {0, 1310, 2490, 3235}};
    CheatTextBox Text1{*this, {2680, 780, 5945, 4905}};
    TextBox Text4{*this, {0, 0, 1500, 270}, TextBoxKind::Help};
    Shape Shape1{*this, {0, 0, 420, 420}};
    Timer Timer1{*this, 1};
    ViewerMenus menus{*this};

    /// Shows the cheats of game `number`, and its name as the caption. Throws `Error` with SubscriptOutOfRange if the
    /// catalogue has no such slot.
    void show_game(int number);
    /// Slides the full list in over the search panel.
    void ShowList();
    /// Slides the search panel in over the full list.
    void ShowFrame();
    /// Prepares a search for the text selected in `Text1`.
    void SearchFor(SearchScope scope);
    /// Shows the game whose name is `query` in any letter case. If there is none, searches the names for `query`, or
    /// the cheats if no name contains it, and shows the game if only one is found.
    void look_up(const std::wstring& query);
    /// Sorts the captions of the font menu's entries `lower` to `upper`, both included.
    void QuickSort(int lower, int upper);
    /// Collects the installed fonts into the font menu, sorted, and stores their names in a file beside the program. A
    /// window shows the progress and lets the user cancel; the fonts collected until then are kept. Throws `Error` if
    /// the file cannot be written; the progress window then stays open.
    void collect_fonts();
    /// Gives the text and the lists the colours that the check mark of the Colour menu entry stands for.
    void apply_colours();

  private:
    static constexpr WindowSize minimum_size{5970, 5340};
    static constexpr double help_below_pointer = 500;  // in twips

    void bind();
    void bind_search();
    void bind_search_panel();
    void bind_commands();
    void bind_image_bar();
    void bind_alphabet_bar();
    void bind_list(ListBox& list);
    void bind_hover_help();

    void Form_Load();
    void Form_Resize();
    void Form_Unload();
    void Form_KeyDown(KeyEvent& event);
    void Command1_Click();
    void Text1_DblClick();
    void Text1_KeyDown(KeyEvent& event);
    /// Sets up the text box's menu to search for the selected text. Returns false, and disables the entry, if no text
    /// to search for is selected.
    bool offer_search_for_selection();
    void List1_Click();
    void List2_Click();
    void List_DblClick();
    void List_KeyDown(ListBox& list, KeyEvent& event);
    void List_MouseMove(ListBox& list, const MouseEvent& event);
    void List_MouseDown(ListBox& list, const MouseEvent& event);
    /// Opens a context menu by keyboard: near the upper left corner of its control, instead of at the pointer.
    void pop_up_at_corner(Menu& menu, const Control& control, const Menu* default_item = nullptr);
    void Option1_Click();
    void Option2_Click();
    void Image1_MouseMove(const MouseEvent& event);
    void Image2_Click(std::size_t index);
    void Image2_MouseDown(Image& image);
    void Image2_MouseUp(Image& image);
    void Image2_MouseMove(std::size_t index, const MouseEvent& event);
    void Label1_Click(std::size_t index);
    void Label1_MouseMove(std::size_t index);
    void Label1_reset();
    void Timer1_Timer();
    void mnuFontName_Click(std::size_t Index);
    /// Returns the option button that selects `scope`.
    OptionButton& scope_option(SearchScope scope);
    void offer_installed_fonts();
    std::wstring fonts_file() const;
    void open_status();
    void fill_font_menu(const ScreenFonts& fonts);
    /// Slides a panel from `left` in twips through the positions that `next_left` returns, or puts it in its place at
    /// once if the user wants no animations.
    void slide(Control& panel, double left, std::optional<double> (*next_left)(double));
    void change_text_size(KeyEvent& event);
    /// Makes the cheat text `steps` points larger than other texts, within limits.
    void set_text_size(int steps);

    // The steps of opening the window, in their order.
    void start_up();
    void fill_full_list();
    void restore_settings();
    void restore_size();
    void list_cached_fonts();
    void build_alphabet_bar();

    void save_settings();
    void ask_for_help();
    void allow_saving(bool allowed);
    void copy_cheats();
    void print_cheats();
    void toggle_colours();
    void show_image_help(const Image& image, const wchar_t* text, Bounds bounds);
    void frame_image(const Image& image);
    void hide_image_help();
    void tidy_image_bar();
    std::wstring hover_text(const ListBox& list, int index) const;
    void add_hover_help(Control& control, const wchar_t* text);
    void move_help_box(const Control& control, const MouseEvent& event);

    Session& session_;
    const ViewerWindows& windows_;
    HoverHelp hover_help_{session_.pointer, Text4, Timer1};
    const Graphic* hovered_ = nullptr;  // the highlighted image or letter under the pointer
    std::unique_ptr<frmStatus> status_;
};

}  // namespace quillomat
