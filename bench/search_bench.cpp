// From the press on "Go!" until the results are listed, over all games of a database, in turns with the mere listing of
// the same names: search_bench FOLDER KEYWORD

#include <string>
#include <vector>

#include "common/session.h"
#include "forms/application.h"
#include "measure.h"
#include "viewer/frmCtlView.h"

namespace quillomat::bench {
namespace {

void run(const std::wstring& folder, const std::wstring& keyword) {
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
    press();  // the first one makes the texts
    std::vector<std::wstring> found;
    for (int index = 0; index < viewer.List1.count(); ++index) found.push_back(viewer.List1.item(index));
    const auto list = [&] {
        {
            const ListBox::Filling filling(viewer.List1);
            viewer.List1.clear();
            for (const std::wstring& name : found) viewer.List1.add(name);
        }
        UpdateWindow(viewer.List1.window());
    };
    const auto seconds = medians(rounds, {{press}, {list}});
    print({"search in " + std::to_string(viewer.List2.count()) + " games, " + std::to_string(found.size()) + " found",
           seconds[0] * 1e3, "ms", "listing them", seconds[1] * 1e3, seconds[1] * 1e3 + milliseconds_of_a_frame});
}

}  // namespace
}  // namespace quillomat::bench

int wmain(int count, wchar_t** arguments) {
    if (count != 3) return 2;
    quillomat::bench::run(arguments[1], arguments[2]);
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\QuillomatBench");
    return 0;
}
