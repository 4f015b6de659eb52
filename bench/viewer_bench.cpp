// What the viewer takes for its two long tasks, each against the least that any program would have to do: a find step
// in a long text, and the collection of many fonts.

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "common/session.h"
#include "forms/application.h"
#include "measure.h"
#include "support/files.h"
#include "text/find_in_text.h"
#include "text/font_list.h"
#include "viewer/frmCtlView.h"
#include "viewer/frmFind.h"
#include "viewer/frmStatus.h"
#include "win/upper_case.h"
#include "window/registry_support.h"

namespace quillomat::bench {
namespace {

constexpr std::size_t rounds = 41;

/// What a measured routine found: printed at the end, so that no compiler may leave the work out.
std::size_t checksum = 0;

/// A viewer of its own, with settings and a folder that are gone at the end.
struct OpenViewer {
    OpenViewer() {
        session.program_folder = folder.path().wstring();
        session.settings = registry.settings();
        session.text_file.replace(session.program_folder + L"\\Cheats.dat", L"");
        viewer.show();
        application.let_pending_events_run();
    }

    TemporaryFolder folder;
    TemporarySettings registry;
    Application application{L"Quillomat"};
    Session session;
    ViewerWindows windows;
    frmCtlView viewer{application, session, windows};
};

/// A step of finding, which may take a frame longer than the search that is in it.
void print_step(const std::string& name, double seconds, double baseline) {
    print({name, seconds * 1e3, "ms", "wstring::find", baseline * 1e3, baseline * 1e3 + milliseconds_of_a_frame});
}

void bench_find(OpenViewer& open) {
    constexpr std::size_t length = 1'000'000;
    std::wstring text;
    while (text.size() < length) text += L"Hold the menu key and press start, then go for the money of the other.\r\n";
    const std::wstring wanted = L"the money of nobody";
    const auto find = [&] { checksum += text.find(wanted) == std::wstring::npos; };
    const auto step = [&](bool forwards, std::int16_t match_case) {
        const FindState state{.gFindString = wanted, .gFindCase = match_case, .gFindDirection = forwards};
        return [&text, state, forwards] {
            checksum += find_in_text(state, text, forwards ? 0 : text.size(), upper_case).has_value();
        };
    };
    const std::vector<double> seconds =
        medians(rounds, {{find}, {step(true, 1)}, {step(true, 0)}, {step(false, 1)}, {step(false, 0)}});
    print_step("find in 1 MB, forwards, case matters", seconds[1], seconds[0]);
    print_step("find in 1 MB, forwards, case ignored", seconds[2], seconds[0]);
    print_step("find in 1 MB, backwards, case matters", seconds[3], seconds[0]);
    print_step("find in 1 MB, backwards, case ignored", seconds[4], seconds[0]);

    // From the press of the button until the match is selected and scrolled to.
    open.viewer.Text1.set_text(text + L"The Money Of Nobody");
    open.session.find = {.gFindString = wanted, .gFindDirection = true, .gFirstTime = true};
    frmFind dialog(open.application, open.session.find, open.viewer, open.viewer.Text1);
    dialog.show();
    open.application.let_pending_events_run();
    const auto press = [&] { dialog.FindIt(); };
    const auto back_to_start = [&] {
        open.viewer.Text1.select(0, 0);
        open.application.let_pending_events_run();
    };
    const std::vector<double> whole = medians(rounds, {{find}, {press, back_to_start}});
    print_step("find in 1 MB, until the match is selected", whole[1], whole[0]);
}

void bench_font_collection(OpenViewer& open) {
    constexpr int count = 2000;
    std::mt19937 random(1);
    std::vector<std::wstring> names;
    for (int i = 0; i < count; ++i) names.push_back(L"Made up font " + std::to_wstring(random() % 1'000'000));
    open.session.screen_fonts = [&] {
        // Asked for from 1 on; the last one has no name.
        return ScreenFonts{count, [&](int position) { return names[static_cast<std::size_t>(position % count)]; }};
    };
    ViewerMenus& menus = open.viewer.menus;
    const auto forget = [&] {
        checksum += menus.mnuFontName.size();
        menus.remove_fonts();
        open.application.let_pending_events_run();
    };
    const auto sort_and_fill = [&] {
        std::vector<std::wstring> sorted = names;
        std::sort(sorted.begin(), sorted.end());
        for (const std::wstring& name : sorted) menus.add_font(name);
    };
    // What the collection does besides, however many fonts there are.
    const auto window_and_file = [&] {
        frmStatus status(open.application, open.viewer);
        status.begin();
        status.show();
        open.application.let_pending_events_run();
        open.session.text_file.replace(open.session.program_folder + L"\\Fonts.dat", font_list_text(names));
        status.close();
    };
    const auto collect = [&] { open.viewer.collect_fonts(); };
    const std::vector<double> seconds =
        medians(rounds, {{sort_and_fill, forget}, {window_and_file, forget}, {collect, forget}});
    print({"collect 2,000 fonts, without window and file", (seconds[2] - seconds[1]) * 1e3, "ms", "sort, fill menu",
           seconds[0] * 1e3, 3 * seconds[0] * 1e3});
    std::printf("%.3f ms to show and close the progress window and write the file\n", seconds[1] * 1e3);
}

}  // namespace
}  // namespace quillomat::bench

int main() {
    using namespace quillomat::bench;
    OpenViewer open;
    bench_find(open);
    bench_font_collection(open);
    std::printf("(checksum %zu)\n", checksum);
    return 0;
}
