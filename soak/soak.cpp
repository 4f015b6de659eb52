#include "soak/soak.h"

#include <algorithm>
#include <cstdio>
#include <ranges>
#include <span>
#include <sstream>

#include "soak/outside_counts.h"

namespace quillomat::soak {
namespace {

constexpr wchar_t main_screen_class[] = L"frmMain";

using Clock = std::chrono::steady_clock;

// A program that does not answer for this long has hung for good.
constexpr std::chrono::duration<double> for_good{60};

// Returns the number of records in the text, or nothing if the text holds anything but whole records.
std::optional<std::size_t> whole_records(std::string_view text) {
    constexpr std::string_view marker = "$$$$$$$$$$$$$$$$$$$$ ";
    std::size_t records = 0;
    bool complete = true;
    while (!text.empty()) {
        const std::size_t end = text.find("\r\n");
        if (end == std::string_view::npos) return std::nullopt;
        const std::string_view line = text.substr(0, end);
        if (line.find_first_of("\r\n") != std::string_view::npos) return std::nullopt;
        complete = line.starts_with(marker) && line.size() > marker.size();
        if (complete) ++records;
        text.remove_prefix(end + 2);
    }
    if (!complete) return std::nullopt;
    return records;
}

std::string describe(std::span<const ObjectCounts> all) {
    std::string text;
    for (const ObjectCounts& counts : all) {
        text.append(" ").append(std::to_string(counts.gdi)).append("/").append(std::to_string(counts.user));
    }
    return text;
}

ObjectCounts fewest(std::span<const ObjectCounts> all) {
    const auto of = [all](int ObjectCounts::*kind) { return std::ranges::min(all | std::views::transform(kind)); };
    return {of(&ObjectCounts::gdi), of(&ObjectCounts::user)};
}

}  // namespace

Soak::Soak(std::string database, const std::string& log) : original_(std::move(database)), log_(log) {
    program_.write_database(original_);
}

int Soak::play(const Actions& actions) {
    start_program();
    while (faults_ < 20) {
        const Scene scene(program_.process().dwProcessId);
        const std::optional<Action> action = actions(scene);
        if (!action) break;
        note(*action, scene);
        if (action->kind == Action::Kind::Rest) {
            rest();
        } else {
            perform(*action);
            Sleep(static_cast<DWORD>(action->pause));
            if (action->modifiers & Action::Ahead) continue;
        }
        look_after_program();
    }
    rest();
    if (program_.running()) {
        program_.close();
        if (program_.exit_code() != 0) fault("closing the main screen did not end it in order");
    }
    check_database();
    judge_growth();
    print_summary();
    return faults_;
}

void Soak::start_program() {
    judge_growth();
    at_rest_.clear();
    ++starts_;
    program_.start();
    if (!wait_for_window()) fault("no window after its start");
}

bool Soak::wait_for_window() {
    return wait_until([this] { return !program_.running() || Scene(program_.process().dwProcessId).topmost(); });
}

void Soak::fault(const std::string& what) {
    ++faults_;
    const std::chrono::duration<double> time = Clock::now() - start_;
    std::ostringstream line;
    line << "FAULT after " << static_cast<int>(time.count()) << " s, action " << actions_ << ", start " << starts_
         << ": " << what;
    std::printf("%s\n", line.str().c_str());
    std::fflush(stdout);
    log_ << "# " << line.str() << std::endl;
}

void Soak::note(const Action& action, const Scene& scene) {
    ++actions_;
    const HWND front = scene.topmost();
    std::string name = "none";
    if (front) name = narrow(class_of(front));
    ++seen_[name];
    log_ << to_line(action) << " # " << actions_ << ' ' << name;
    if (const HWND hit = WindowFromPoint(action.at); hit && action.at.x + action.at.y > 0) {
        log_ << ' ' << narrow(class_of(hit));
    }
    // Flush the log, because this action may crash the program, or this one.
    log_ << std::endl;
}

void Soak::end_hidden_messages() {
    // Wine: a message box that is closed by its system menu while it is moved by keys is hidden, but its message loop
    // runs until the next key.
    for (HWND box = nullptr; (box = FindWindowExW(nullptr, box, message_box_class, nullptr)) != nullptr;) {
        const bool is_own = process_of(box) == program_.process().dwProcessId;
        if (is_own && !IsWindowVisible(box)) PostMessageW(box, WM_KEYDOWN, VK_ESCAPE, 0);
    }
}

std::string Soak::input_fault() {
    // While a window opens or closes, the states of the others follow a moment later.
    constexpr std::chrono::seconds patience{5};
    std::string wrong;
    wait_until(
        [&] {
            wrong.clear();
            if (!program_.running()) return true;
            wrong = Scene(program_.process().dwProcessId).input_fault();
            if (!wrong.empty()) end_hidden_messages();
            return wrong.empty();
        },
        patience);
    return wrong;
}

double Soak::seconds_without_answer() {
    const Scene scene(program_.process().dwProcessId);
    if (scene.windows().empty()) return 0;
    const HWND window = scene.windows().front();
    constexpr UINT patience = 2000;
    const Clock::time_point asked = Clock::now();
    std::chrono::duration<double> waited{};
    DWORD_PTR result = 0;
    while (waited < for_good && program_.running() && IsWindow(window) &&
           !SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, patience, &result)) {
        waited = Clock::now() - asked;
        if (IsWindow(window)) log_ << "# no answer for " << waited.count() << " s" << std::endl;
    }
    return waited.count();
}

void Soak::look_after_program() {
    if (!program_.running()) return restart();
    // A loaded machine alone makes the program miss a few seconds.
    if (const double seconds = seconds_without_answer(); seconds > 10) {
        fault("no answer for " + std::to_string(seconds) + " s");
        if (seconds < for_good.count()) return;
        program_.end();
        return start_program();
    }
    const DWORD process = program_.process().dwProcessId;
    if (!wait_for_window()) {
        fault("no window takes input any more");
        program_.end();
        return start_program();
    }
    if (const std::string wrong = input_fault(); !wrong.empty()) {
        fault(wrong);
        program_.end();
        return start_program();
    }
    const Scene scene(process);
    if (scene.has_keyboard() || !scene.topmost()) return;
    close_strangers(process);
    if (IsIconic(scene.topmost())) ShowWindowAsync(scene.topmost(), SW_RESTORE);
    SetForegroundWindow(scene.topmost());
}

void Soak::restart() {
    if (const DWORD code = program_.exit_code(); code != 0) {
        char text[64];
        std::snprintf(text, sizeof text, "crashed: exit code 0x%lX", code);
        fault(text);
    }
    check_database();
    start_program();
}

void Soak::put_away(HWND window, const Scene& scene) {
    if (class_of(window) == L"frmSplash") {
        PostMessageW(window, WM_KEYDOWN, VK_SPACE, 0);
    } else if (class_of(window) == message_box_class) {
        answer_message(window, refusing_button(window));
    } else if (class_of(window) == main_screen_class) {
        // The main screen is in front of the other windows, or behind them as an icon.
        for (const HWND other : scene.windows()) {
            if (other != window && IsWindowEnabled(other)) PostMessageW(other, WM_CLOSE, 0, 0);
        }
    } else {
        PostMessageW(window, WM_CLOSE, 0, 0);
    }
}

bool Soak::put_away_windows() {
    return wait_until([this] {
        if (!program_.running()) return true;
        const Scene scene(program_.process().dwProcessId);
        // A menu, or moving a window by keys, runs a message loop of its own. That loop must end first: closing its
        // window from outside would leave the loop running until the next key.
        const GUITHREADINFO input = input_state(program_.process().dwThreadId);
        for (const HWND in_loop : {input.hwndMenuOwner, input.hwndMoveSize}) {
            if (!in_loop) continue;
            PostMessageW(in_loop, WM_KEYDOWN, VK_ESCAPE, 0);
            return false;
        }
        const HWND window = scene.topmost();
        if (!window) return false;
        if (scene.windows().size() == 1 && class_of(window) == main_screen_class && !IsIconic(window)) return true;
        if (class_of(window) == main_screen_class && IsIconic(window)) ShowWindowAsync(window, SW_RESTORE);
        put_away(window, scene);
        Sleep(50);
        return false;
    });
}

void Soak::rest() {
    if (!put_away_windows()) {
        std::string classes;
        const Scene scene(program_.process().dwProcessId);
        for (const HWND window : scene.windows()) classes.append(" ").append(narrow(class_of(window)));
        return fault("these windows do not go:" + classes);
    }
    if (!program_.running()) return;
    close_strangers(program_.process().dwProcessId);
    count_at_rest();
    check_database();
}

void Soak::count_at_rest() {
    // Move the pointer away from every control with hover help.
    perform({.kind = Action::Kind::Move, .at = {GetSystemMetrics(SM_CXSCREEN) - 2, GetSystemMetrics(SM_CYSCREEN) - 2}});
    // The fewest of several counts: a paint handler may be holding objects at the moment of one of them.
    std::vector<ObjectCounts> counted;
    for (int attempt = 0; attempt < 5; ++attempt) {
        Sleep(50);
        counted.push_back(count_objects_of(program_.process().hProcess));
    }
    at_rest_.push_back(fewest(counted));
    log_ << "# at rest:" << describe(std::span(at_rest_).last(1)) << std::endl;
}

void Soak::judge_growth() {
    // The program and Windows cache objects on first use, and at the first rests not every window has been open yet.
    // Only a count that keeps growing from rest to rest is a leak.
    constexpr std::size_t warm_up = 4;
    constexpr std::size_t judged = 5;
    constexpr int allowed = 2;
    if (at_rest_.size() < warm_up + judged) return;
    const auto last = std::span(at_rest_).last(judged);
    const auto steady = [last](int ObjectCounts::*kind) {
        return std::ranges::adjacent_find(last, [kind](const ObjectCounts& before, const ObjectCounts& after) {
                   return after.*kind <= before.*kind + allowed;
               }) != last.end();
    };
    if (steady(&ObjectCounts::gdi) && steady(&ObjectCounts::user)) return;
    fault("keeps objects (GDI/USER at each rest):" + describe(at_rest_));
}

void Soak::check_database() {
    const std::string now = program_.read_database();
    if (!now.starts_with(original_)) {
        fault("the database has lost or changed what was in it");
    } else if (const auto added = whole_records(std::string_view(now).substr(original_.size()))) {
        records_added_ = *added;
        return;
    } else {
        fault("what was appended to the database is not whole");
    }
    std::ofstream("harmed.dat", std::ios::binary) << now;
    program_.write_database(original_);
}

void Soak::print_summary() const {
    const std::chrono::duration<double> time = Clock::now() - start_;
    std::printf("%d actions in %.0f s, %d starts, %zu games added\n", actions_, time.count(), starts_, records_added_);
    std::printf("actions by the window in front:");
    for (const auto& [name, count] : seen_) std::printf(" %s %d", name.c_str(), count);
    std::printf("\nobjects at rest since the last start (GDI/USER):%s", describe(at_rest_).c_str());
    std::printf("\n%d faults\n", faults_);
}

}  // namespace quillomat::soak
