// Opening and closing the viewer: the database, the settings, and what is built from them.

#include "common/window_settings.h"
#include "forms/message_box.h"
#include "text/error.h"
#include "text/numbers.h"
#include "viewer/frmCtlView.h"
#include "win/database_file.h"

namespace quillomat {
namespace {

constexpr WindowKeys window_keys{settings::FrmCtlViewWindowState, settings::FrmCtlViewWidth, settings::FrmCtlViewHeight,
                                 settings::FrmCtlViewHeight};

}  // namespace

void frmCtlView::Form_Load() {
    List2.set_focus();
    try {
        const Hourglass hourglass(*this);
        start_up();
    } catch (const Error& error) {
        show_error(*this, error);
    }
    centre_on_screen();
}

void frmCtlView::start_up() {
    fill_full_list();
    restore_settings();
    restore_size();
    apply_colours();
    if (const auto selected = List2.selected_index()) List2.set_top_index(*selected);
    if (List2.text().empty()) allow_saving(false);
    session_.viewer.game_count = static_cast<std::int16_t>(List2.count());
    Shape1.set_visible(false);
    session_.viewer.next_letter = L'A';
    list_cached_fonts();
    build_alphabet_bar();
    menus.fit_pictures(dpi());
}

void frmCtlView::fill_full_list() {
    ViewerState& state = session_.viewer;
    state.open_count = checked_add_16(state.open_count, 1);
    const ListBox::RedrawLock lock(List2);
    const auto list_name = [this](std::wstring_view name) { List2.add(name); };
    if (state.open_count == 1) {
        const std::wstring path = session_.program_folder + L"\\Cheats.dat";
        try {
            load_catalogue(session_.text_file, path, session_.catalogue, list_name);
        } catch (const Error& error) {
            // Only errors in the content of a file that could be read need no path.
            if (error.code() == ErrorCode::InvalidArgument || error.code() == ErrorCode::SubscriptOutOfRange) {
                throw;
            }
            throw Error(error.code(), error.description() + L"\r\n" + path);
        }
    } else {
        session_.catalogue.relist(list_name);
    }
}

void frmCtlView::restore_settings() {
    const Settings& stored = session_.settings;
    FontSpec font = Text1.font();
    font.name = stored.read(settings::Font);
    Text1.set_font(font);
    set_text_size(session_.viewer.text_steps);
    menus.mnuColour.set_checked(stored.read(settings::Colour));
    menus.mnuAutoSelect.set_checked(stored.read(settings::AutoSelect));
    restore_window_state(*this, stored, window_keys);
    Text1.set_text(stored.read(settings::Text1));
    Text3.set_text(stored.read(settings::SearchText));
    if (const std::wstring game = stored.read(settings::DefaultGame); !game.empty()) List2.select_text(game);
    if (const std::wstring title = stored.read(settings::FrmCtlViewCaption); !title.empty()) set_caption(title);
}

void frmCtlView::restore_size() {
    if (window_state() != WindowState::Normal) return;
    restore_window_size(*this, session_.settings, window_keys);
}

void frmCtlView::build_alphabet_bar() {
    for (int n = 1; n <= 26; ++n) {
        const Label& last = Label1.back();
        const auto letter = static_cast<wchar_t>(session_.viewer.next_letter);
        Label1.emplace_back(*this, std::wstring(1, letter),
                            Bounds{last.left() + last.width(), last.top(), last.width(), last.height()});
        session_.viewer.next_letter = checked_add_16(session_.viewer.next_letter, 1);
    }
    for (Label& label : Label1) {
        label.set_visible(true);
        label.set_alignment(Alignment::Centre);
        label.set_back_style(BackStyle::Opaque);
    }
    Label1_reset();
    bind_alphabet_bar();
}

void frmCtlView::Form_Unload() {
    save_settings();
    raise(windows_.restore_main_screen);
}

void frmCtlView::save_settings() {
    const Settings& store = session_.settings;
    store.write(settings::Font, Text1.font().name);
    store.write(settings::Colour, menus.mnuColour.checked());
    store.write(settings::AutoSelect, menus.mnuAutoSelect.checked());
    store.write(settings::Text1, Text1.text());
    store.write(settings::SearchText, Text3.text());
    store.write(settings::DefaultGame, List2.text());
    store.write(settings::FrmCtlViewCaption, caption());
    store_window(*this, store, window_keys);
}

}  // namespace quillomat
