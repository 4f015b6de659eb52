// What a click costs in the list of games to mail when every game of a full catalogue is picked, in turns with the same
// click on a handler that does nothing.

#include <string>

#include "common/session.h"
#include "forms/application.h"
#include "measure.h"
#include "output/frmMailCheats.h"

namespace quillomat::bench {
namespace {

/// Answers the message with which the window opens.
void CALLBACK answer_message(HWND, UINT, UINT_PTR timer, DWORD) {
    if (const HWND box = FindWindowW(L"#32770", L"Message")) {
        KillTimer(nullptr, timer);
        PostMessageW(box, WM_COMMAND, IDOK, 0);
    }
}

void click_first_item(const ListBox& list) {
    SendMessageW(list.window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 5));
    SendMessageW(list.window(), WM_LBUTTONUP, 0, MAKELPARAM(10, 5));
    UpdateWindow(list.window());
}

int run() {
    Application application(L"Quillomat");
    Session session;
    session.settings = Settings(L"QuillomatBench");
    GamesToPick games;
    for (int number = 0; number < Catalogue::slot_count; ++number) {
        games.names.push_back(L"A game of middling length " + std::to_wstring(number));
    }
    frmMailCheats form(application, session, std::move(games));
    SetTimer(nullptr, 0, 10, answer_message);
    form.show();
    application.let_pending_events_run();
    SendMessageW(form.List1.window(), LB_SETSEL, TRUE, -1);

    const auto handler = form.List1.on_click;
    const auto nothing = [] {};
    constexpr std::size_t rounds = 41;
    const auto seconds = medians(rounds, {{.run =
                                               [&] {
                                                   form.List1.on_click = handler;
                                                   click_first_item(form.List1);
                                               }},
                                          {.run = [&] {
                                              form.List1.on_click = nothing;
                                              click_first_item(form.List1);
                                          }}});
    const double empty_handler = seconds[1] * 1e3;
    print({"click with " + std::to_string(form.List2.count()) + " games picked to mail", seconds[0] * 1e3, "ms",
           "empty handler", empty_handler, empty_handler + milliseconds_of_a_frame});
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\QuillomatBench");
    return 0;
}

}  // namespace
}  // namespace quillomat::bench

int main() {
    return quillomat::bench::run();
}
