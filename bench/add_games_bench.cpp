// Adds games through the window's own code until the catalogue is nearly full, reads the database as the next start
// does, and prints how long an addition to it takes beside one to an empty database, the two taking turns:
// add_games_bench [GAMES [ALREADY_THERE]]
// Every addition waits for the disk, so to add all of the 2400 games that are the default can take ten minutes.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "common/session.h"
#include "database/record.h"
#include "forms/application.h"
#include "measure.h"
#include "output/frmAddNew.h"
#include "shell/viewer_link.h"
#include "viewer/frmCtlView.h"
#include "win/database_file.h"

namespace {

using namespace quillomat;
using bench::median;
using Clock = std::chrono::steady_clock;

/// Presses the button of every message box that appears.
LRESULT CALLBACK on_window_event(int code, WPARAM wparam, LPARAM lparam) {
    const auto window = reinterpret_cast<HWND>(wparam);
    wchar_t name[16]{};
    if (code == HCBT_ACTIVATE && GetClassNameW(window, name, 16) && std::wstring_view(name) == L"#32770") {
        PostMessageW(window, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
    }
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

std::wstring name_of(int number) {
    return L"Game of the player, number " + std::to_wstring(number);
}

/// About as long as most are: 3 MB in all.
std::wstring cheats_of(int number) {
    std::wstring cheats = L"Secret " + std::to_wstring(number);
    for (int line = 0; line < 24; ++line) cheats += L"\r\nPress every button, then run for your life: 1-UP";
    return cheats;
}

/// A database of its own with a viewer that shows it.
class Place {
  public:
    Place(Application& application, const std::filesystem::path& folder)
        : application_(application), path_((folder / "Cheats.dat").wstring()) {
        std::filesystem::create_directories(folder);
        session_.settings = Settings(settings_name);
        session_.program_folder = folder.wstring();
        fill(0);
        viewer_.show();
    }

    static constexpr wchar_t settings_name[] = L"QuillomatBench";

    const std::wstring& path() const { return path_; }

    /// Begins anew, with this many games.
    void fill(int games) {
        std::wstring text;
        for (int number = 0; number < games; ++number) text += record_text(name_of(number), cheats_of(number));
        session_.text_file.replace(path_, text);
        viewer_.List2.clear();
        load_catalogue(session_.text_file, path_, session_.catalogue,
                       [this](std::wstring_view name) { viewer_.List2.add(name); });
        session_.viewer.game_count = static_cast<std::int16_t>(games);
    }

    double milliseconds_to_add(int number) {
        frmAddNew window(application_, session_, link_);
        window.show();
        window.Text1.set_text(name_of(number));
        window.Text2.set_text(cheats_of(number));
        application_.let_pending_events_run();
        const Clock::time_point start = Clock::now();
        window.cmdButton[0]->click();
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    }

  private:
    Application& application_;
    std::wstring path_;
    Session session_;
    ViewerWindows windows_;
    frmCtlView viewer_{application_, session_, windows_};
    OpenViewer link_{viewer_};
};

bool all_can_be_read(const std::wstring& path, int games) {
    TextFileSlot slot;
    Catalogue catalogue;
    int listed = 0;
    load_catalogue(slot, path, catalogue, [&](std::wstring_view) { ++listed; });
    if (listed != games) return false;
    for (int number = 0; number < games; ++number) {
        if (catalogue.name(number) != name_of(number) || catalogue.cheats(number) != cheats_of(number)) return false;
    }
    return true;
}

}  // namespace

int main(int count, char** arguments) {
    const int games = count > 1 ? std::stoi(arguments[1]) : 2400;
    const int already_there = count > 2 ? std::stoi(arguments[2]) : 0;
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("quillomat-add-" + std::to_string(GetCurrentProcessId()));
    std::filesystem::create_directories(folder);
    const HHOOK hook = SetWindowsHookExW(WH_CBT, on_window_event, nullptr, GetCurrentThreadId());

    Application application(L"Quillomat");
    auto growing = std::make_unique<Place>(application, folder / "growing");
    auto small = std::make_unique<Place>(application, folder / "small");
    growing->fill(already_there);
    const int step = std::max((games - already_there) / 6, 1);
    std::vector<double> to_growing;
    std::vector<double> to_small;
    double late = 0;
    double early = 0;
    for (int number = already_there; number < games; ++number) {
        to_growing.push_back(growing->milliseconds_to_add(number));
        if (number % 4 == 0) {
            small->fill(0);
            to_small.push_back(small->milliseconds_to_add(number));
        }
        if ((number + 1 - already_there) % step != 0) continue;
        std::printf("at %4d games: %6.1f ms an addition, %6.1f ms to an empty database, ratio %.2f\n", number + 1,
                    median(to_growing), median(to_small), median(to_growing) / median(to_small));
        std::fflush(stdout);
        late = median(to_growing);
        early = median(to_small);
        to_growing.clear();
        to_small.clear();
    }
    bench::print(
        {"addition to " + std::to_string(games) + " games", late, "ms", "to an empty database", early, 2 * early});
    const std::wstring path = growing->path();
    const bool readable = all_can_be_read(path, games);
    std::printf("%d games, %llu bytes: %s\n", games, static_cast<unsigned long long>(std::filesystem::file_size(path)),
                readable ? "each reads back as it was added" : "SOME ARE NOT AS THEY WERE ADDED");

    growing.reset();
    small.reset();
    UnhookWindowsHookEx(hook);
    RegDeleteTreeW(HKEY_CURRENT_USER, (std::wstring(L"Software\\") + Place::settings_name).c_str());
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    return readable ? 0 : 1;
}
