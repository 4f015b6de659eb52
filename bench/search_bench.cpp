// From the press on "Go!" until the results are listed, over all games of a database, beside another search of the
// whole file that was measured before: search_bench FOLDER KEYWORD BASELINE MILLISECONDS

#include <string>

#include "common/session.h"
#include "forms/application.h"
#include "measure.h"
#include "viewer/frmCtlView.h"

namespace quillomat::bench {
namespace {

std::string narrow(const std::wstring& text) {
    return {text.begin(), text.end()};
}

void run(const std::wstring& folder, const std::wstring& keyword, const std::string& baseline_name, double baseline) {
    Application application(L"Quillomat");
    Session session;
    session.settings = Settings(L"QuillomatBench");
    session.program_folder = folder;
    const ViewerWindows windows;
    frmCtlView viewer(application, session, windows);
    viewer.show();
    viewer.Option2.set_value(true);
    viewer.Option4.set_value(true);
    viewer.Text3.set_text(keyword);
    application.let_pending_events_run();

    constexpr std::size_t rounds = 21;
    const auto press = [&] {
        viewer.Command1.click();
        UpdateWindow(viewer.List1.window());
    };
    const auto games = " in " + std::to_string(viewer.List2.count()) + " games, ";
    const double first = medians(1, {{press}})[0] * 1e3;
    const double next = medians(rounds, {{press}})[0] * 1e3;
    const std::string found = std::to_string(viewer.List1.count()) + " found";
    print({"first search" + games + found, first, "ms", baseline_name, baseline, baseline});
    print({"next search" + games + found, next, "ms", baseline_name, baseline, baseline});
}

}  // namespace
}  // namespace quillomat::bench

int wmain(int count, wchar_t** arguments) {
    if (count != 5) return 2;
    using namespace quillomat::bench;
    run(arguments[1], arguments[2], narrow(arguments[3]), std::stod(arguments[4]));
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\QuillomatBench");
    return 0;
}
