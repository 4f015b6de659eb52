// The viewer's commands behind its menus, its image bar and its alphabet bar.

#include <utility>

#include "common/copy_text.h"
#include "forms/application.h"
#include "forms/message_box.h"
#include "text/export_text.h"
#include "text/game_list.h"
#include "text/printout.h"
#include "viewer/frmCtlView.h"

namespace quillomat {
namespace {

constexpr Colour label_idle_text = rgb(0, 0, 255);
constexpr Colour label_idle_background = rgb(0, 255, 255);
constexpr Colour label_lit_text = rgb(0, 255, 0);
constexpr Colour label_lit_background = colours::black;
constexpr Colour frame_pressed = rgb(0, 255, 0);

// All in twips.
constexpr double press_depth = 30;
constexpr double colour_help_width = 3495;
constexpr double print_margin = 100;

struct ImageHelp {
    const wchar_t* text;
    double width;
};

constexpr ImageHelp image_help[] = {
    {L"Click here to go back to the main screen", 3015},
    {L"Click here to save the cheats for the selected game", 3735},
    {L"Click here to add a new game!", 2295},
    {L"Click here to e-mail the cheat codes to someone!", 3615},
    {L"Click here to print the cheat codes for the selected game", 4095},
    {L"Click here to copy the cheat codes for the selected game", 4215},
    {L"Click here to change the font", 2175},
};
// The help boxes of the images before this one start at the window's left edge; the others are centred on the pointer.
constexpr std::size_t first_centred_help = 2;

}  // namespace

void frmCtlView::bind_commands() {
    menus.mnuSave.on_click = [this] { raise(windows_.save); };
    menus.mnuAddNew.on_click = [this] { raise(windows_.add_game); };
    menus.mnuMailCheats.on_click = [this] { raise(windows_.mail_cheats); };
    menus.mnuExit.on_click = [this] { close(); };
    menus.mnuPrint.on_click = [this] { print_cheats(); };
    menus.mnuPrintGames.on_click = [this] { raise(windows_.print_list); };
    menus.mnuCopy.on_click = [this] { copy_cheats(); };
    menus.mnuColour.on_click = [this] { toggle_colours(); };
    menus.mnuAutoSelect.on_click = [this] { menus.mnuAutoSelect.set_checked(!menus.mnuAutoSelect.checked()); };
    menus.mnuSelectedFind.on_click = [this] { raise(windows_.find); };
    menus.mnuTextBoxFind.on_click = [this] { raise(windows_.find); };
    menus.mnuFontName_Click = [this](std::size_t Index) { mnuFontName_Click(Index); };

    const std::pair<Menu*, const Menu*> same_commands[] = {
        {&menus.mnuSelectedSave, &menus.mnuSave},
        {&menus.mnuSelectedPrint, &menus.mnuPrint},
        {&menus.mnuSelectedPrintList, &menus.mnuPrintGames},
        {&menus.mnuSelectedCopy, &menus.mnuCopy},
        {&menus.mnuSelectedAddNew, &menus.mnuAddNew},
        {&menus.mnuSelectedMailCheats, &menus.mnuMailCheats},
    };
    for (const auto& [entry, original] : same_commands) entry->on_click = original->on_click;
    for (Menu* menu : {&menus.mnuMenu, &menus.mnuOptions, &menus.mnuFont}) {
        menu->on_click = [this] { tidy_image_bar(); };
    }
}

void frmCtlView::bind_image_bar() {
    for (std::size_t i = 0; i < Image2.size(); ++i) {
        Image& image = Image2[i];
        image.on_mouse_down = [this, &image](const MouseEvent&) { Image2_MouseDown(image); };
        image.on_mouse_up = [this, &image](const MouseEvent&) { Image2_MouseUp(image); };
        // A double-click raises two releases but only one press; this replaces the second press.
        image.on_double_click = [&image] { image.move_by(press_depth, press_depth); };
        image.on_mouse_move = [this, i](const MouseEvent& event) { Image2_MouseMove(i, event); };
        image.on_click = [this, i] { Image2_Click(i); };
    }
    Image1.on_mouse_move = [this](const MouseEvent& event) { Image1_MouseMove(event); };
    Image1.on_click = [this] {
        hide_image_help();
        menus.mnuColour.pick();
    };
}

void frmCtlView::bind_alphabet_bar() {
    for (std::size_t i = 0; i < Label1.size(); ++i) {
        Label1[i].on_mouse_move = [this, i](const MouseEvent&) { Label1_MouseMove(i); };
        Label1[i].on_click = [this, i] { Label1_Click(i); };
    }
}

void frmCtlView::copy_cheats() {
    const std::wstring name = caption();
    CopyText(*this, export_text(name, Text1.text()));
    show_message(*this, {.text = L"The cheat codes for " + name + L" have been copied to the clipboard.",
                         .title = application().title()});
}

void frmCtlView::print_cheats() {
    const Hourglass hourglass(*this);
    const std::wstring name = caption();
    const auto printer = session_.open_printer();
    PrintJob job(*printer, name.empty() ? application().title() : name);
    job.set_position(print_margin, print_margin);
    job.print(cheats_printout(name, Text1.text()));
    job.end();
}

void frmCtlView::toggle_colours() {
    menus.mnuColour.set_checked(!menus.mnuColour.checked());
    apply_colours();
}

void frmCtlView::apply_colours() {
    const bool coloured = menus.mnuColour.checked();
    Image1.set_border(coloured ? ImageBorder::Single : ImageBorder::None);
    Text1.set_back_colour(coloured ? rgb(255, 192, 255) : colours::white);
    Text1.set_fore_colour(coloured ? rgb(128, 0, 128) : colours::black);
    for (ListBox* list : {&List1, &List2}) {
        list->set_back_colour(coloured ? rgb(192, 192, 255) : colours::white);
        list->set_fore_colour(coloured ? rgb(0, 0, 255) : colours::black);
    }
}

void frmCtlView::Image2_Click(std::size_t index) {
    hide_image_help();
    Menu* const entries[] = {&menus.mnuExit,         &menus.mnuSave, &menus.mnuAddNew, &menus.mnuMailCheats,
                             &menus.mnuPrintOptions, &menus.mnuCopy, &menus.mnuFont};
    Menu& entry = *entries[index];
    const Image& image = Image2[index];
    if (entry.handle()) {
        entry.pop_up(image.left(), image.top() + image.height());
    } else {
        entry.pick();
    }
}

void frmCtlView::Image2_MouseDown(Image& image) {
    image.move_by(press_depth, press_depth);
    Shape1.set_border_colour(frame_pressed);
    frame_image(image);
}

void frmCtlView::Image2_MouseUp(Image& image) {
    image.move_by(-press_depth, -press_depth);
    Shape1.set_border_colour(colours::highlight);
    frame_image(image);
}

void frmCtlView::Image2_MouseMove(std::size_t index, const MouseEvent& event) {
    const Image& image = Image2[index];
    if (!is_within(image, event)) return;
    const auto& [text, width] = image_help[index];
    const double left = index < first_centred_help ? 0 : image.left() + event.x - width / 2;
    show_image_help(image, text, {left, image.top() + event.y + help_below_pointer, width, Text4.height()});
    frame_image(image);
    Shape1.set_visible(true);
}

void frmCtlView::Image1_MouseMove(const MouseEvent& event) {
    if (!is_within(Image1, event)) return;
    show_image_help(Image1, L"Click here to toggle the colour of the text boxes",
                    {Image1.left() + event.x - colour_help_width / 2, Image1.top() + event.y + help_below_pointer,
                     colour_help_width, Text4.height()});
    Shape1.set_visible(false);
}

void frmCtlView::show_image_help(const Image& image, const wchar_t* text, Bounds bounds) {
    // A control that the pointer has left hides the help box; let it do so before the image shows the box.
    hover_help_.tick();
    Text4.move(bounds);
    if (hovered_ != &image) {
        hovered_ = &image;
        Label1_reset();
        Text4.set_text(text);
    }
    Text4.bring_to_front();
    Text4.set_visible(true);
}

void frmCtlView::frame_image(const Image& image) {
    Shape1.move({image.left(), image.top(), Shape1.width(), Shape1.height()});
}

void frmCtlView::hide_image_help() {
    Text4.set_visible(false);
    Shape1.set_visible(false);
}

void frmCtlView::tidy_image_bar() {
    hovered_ = nullptr;
    hide_image_help();
    Label1_reset();
}

void frmCtlView::Timer1_Timer() {
    UpdatePointer(session_.pointer);
    if (hovered_ && !is_under_pointer(session_.pointer, *hovered_)) tidy_image_bar();
    hover_help_.tick();
}

void frmCtlView::Label1_MouseMove(std::size_t index) {
    hide_image_help();
    hovered_ = &Label1[index];
    for (Label& label : Label1) {
        const bool lit = &label == hovered_;
        label.set_fore_colour(lit ? label_lit_text : label_idle_text);
        label.set_back_colour(lit ? label_lit_background : label_idle_background);
    }
}

void frmCtlView::Label1_reset() {
    for (Label& label : Label1) {
        label.set_fore_colour(label_idle_text);
        label.set_back_colour(label_idle_background);
    }
}

void frmCtlView::Label1_Click(std::size_t index) {
    const std::wstring& initial = Label1[index].caption();
    session_.viewer.last_jump = initial;
    // The first label stands for everything before the letter A, so it leads to the beginning of the list.
    std::optional<int> game = 0;
    if (index > 0) {
        game = first_with_initial(initial.front(), List2.count(), [this](int number) { return List2.item(number); });
        if (!game) return;
    }
    Option1.set_value(true);
    if (*game < List2.count()) List2.select_index(*game);
}

}  // namespace quillomat
