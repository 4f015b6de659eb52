// The font menu: collecting the installed fonts into it, keeping them in a file, and choosing one.

#include <algorithm>
#include <chrono>
#include <random>

#include "forms/application.h"
#include "forms/message_box.h"
#include "text/error.h"
#include "text/font_list.h"
#include "text/quick_sort.h"
#include "viewer/frmCtlView.h"
#include "viewer/frmStatus.h"
#include "win/code_page.h"

namespace quillomat {
namespace {

// Returns the names that the system's code page can encode. Until the user collects the fonts again, the others are
// missing from the menu after the next start.
std::vector<std::wstring> storable(std::vector<std::wstring> names) {
    std::erase_if(names, [](const std::wstring& name) {
        try {
            encode(name);
            return false;
        } catch (const Error&) {
            return true;
        }
    });
    return names;
}

}  // namespace

void frmCtlView::list_cached_fonts() {
    const std::wstring path = fonts_file();
    if (!file_exists(path)) return;
    session_.text_file.open_for_reading(path);
    const std::wstring text = session_.text_file.read_all();
    session_.text_file.close();
    menus.remove_fonts();
    for (const std::wstring& name : font_names(text)) menus.add_font(name);
}

std::wstring frmCtlView::fonts_file() const {
    return session_.program_folder + L"\\Fonts.dat";
}

void frmCtlView::mnuFontName_Click(std::size_t Index) {
    if (Index == 0) {
        offer_installed_fonts();
        return;
    }
    FontSpec font = Text1.font();
    font.name = menus.mnuFontName[Index]->caption();
    Text1.set_font(font);
}

void frmCtlView::offer_installed_fonts() {
    const auto answer =
        show_message(*this, {.text = L"Quillomat will now collect all the available fonts in the System.\r\n"
                                     L"This may take some time depending upon the speed of your\r\n"
                                     L"computer and the number of fonts you have on your system.\r\n"
                                     L"Do you wish to continue?",
                             .title = L"Continue?",
                             .buttons = MessageButtons::OkCancel});
    if (answer != MessageAnswer::Ok) return;
    try {
        collect_fonts();
    } catch (const Error& error) {
        show_error(*this, error);
        return;
    }
    if (closed()) return;
    show_message(*this, {.text = L"All fonts have been collected!\r\nYou may now choose any font which you would "
                                 L"like from the FONT Menu!",
                         .title = L"Success!"});
    UpdatePointer(session_.pointer);
    POINT pointer = session_.pointer.PointerPos;
    ScreenToClient(window(), &pointer);
    constexpr double menu_left = 1750;
    menus.mnuFont.pop_up(menu_left, to_twips(pointer.y, dpi()));
}

void frmCtlView::collect_fonts() {
    // If collecting fails, the hourglass stays until the user closes the progress window.
    set_mouse_pointer(PointerShape::Hourglass);
    const ScreenFonts fonts = session_.screen_fonts();
    menus.remove_fonts();
    open_status();
    {
        // Only the progress window takes input, because its F10 cancels the collection.
        const ModalScope modal(application(), status_->window());
        try {
            fill_font_menu(fonts);
        } catch (...) {
            status_->set_closable(true);
            throw;
        }
    }
    if (closed()) return;
    const int last = static_cast<int>(menus.mnuFontName.size()) - 1;
    status_->end_collecting();
    QuickSort(1, last);
    std::vector<std::wstring> names;
    for (int i = 1; i <= last; ++i) names.push_back(menus.mnuFontName[static_cast<std::size_t>(i)]->caption());
    session_.text_file.replace(fonts_file(), font_list_text(storable(std::move(names))));
    status_->close();
}

void frmCtlView::open_status() {
    // A progress window that a failed collection has left open is reused.
    if (!status_ || status_->closed()) status_ = std::make_unique<frmStatus>(application(), *this);
    status_->on_unload = [this] { set_mouse_pointer(PointerShape::Default); };
    status_->set_mouse_pointer(PointerShape::Hourglass);
    tidy_image_bar();
    status_->begin_collecting();
    int screen_width = 0;
    int screen_height = 0;
    GetScreenSize(screen_width, screen_height, status_->dpi());
    const double left = (screen_width - status_->width()) / 2;
    if (window_state() == WindowState::Normal) {
        const double bottom = (top() + height()) * dpi() / status_->dpi();
        status_->move_to(left, progress_window_top(bottom, status_->height(), screen_height));
    } else if (window_state() == WindowState::Maximised) {
        status_->move_to(left, (screen_height - status_->height()) / 2);
    }
    status_->show();
}

void frmCtlView::fill_font_menu(const ScreenFonts& fonts) {
    for (int i = 1; i <= fonts.count; ++i) {
        application().let_pending_events_run();
        if (!status_->GoingOn || status_->closed() || closed()) return;
        // Positions count from 0: the first font is not offered. The position past the last font yields an empty name,
        // which is sorted to the top and becomes the separator below the menu's own entry.
        menus.add_font(fonts.name(i));
        status_->show_progress(i, fonts.count);
    }
}

void frmCtlView::QuickSort(int lower, int upper) {
    std::mt19937 generator(static_cast<unsigned>(std::chrono::system_clock::now().time_since_epoch().count()));
    std::uniform_real_distribution<double> random(0, 1);
    const auto& entries = menus.mnuFontName;
    // A copy is sorted, because changing a menu entry searches the whole menu for it.
    std::vector<std::wstring> captions;
    captions.reserve(entries.size());
    for (const auto& entry : entries) captions.push_back(entry->caption());
    const auto at = [&captions](int index) -> std::wstring& { return captions[static_cast<std::size_t>(index)]; };
    quick_sort(
        lower, upper, [&](int a, int b) { return at(a) < at(b); }, [&](int a, int b) { std::swap(at(a), at(b)); },
        [&] { return random(generator); });
    for (int i = lower; i <= upper; ++i) entries[static_cast<std::size_t>(i)]->set_caption(std::move(at(i)));
}

}  // namespace quillomat
