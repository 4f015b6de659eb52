#pragma once

#include <chrono>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "program/program.h"
#include "soak/action.h"
#include "soak/scene.h"
#include "window/object_counts.h"

namespace quillomat::soak {

/// Returns the next action for the present scene, or nothing at the end.
using Actions = std::function<std::optional<Action>(const Scene&)>;

/// Plays with the program and detects whether it crashes, hangs, loses its last window, lets the wrong windows take
/// input, leaks system objects, or damages its database.
class Soak {
  public:
    /// Every action is written to the file `log` before it is performed.
    Soak(std::string database, const std::string& log);

    /// Plays until the actions end. Returns the number of faults, each of which has been printed.
    int play(const Actions& actions);

  private:
    void start_program();
    void fault(const std::string& what);
    bool wait_for_window();
    void note(const Action& action, const Scene& scene);
    /// Returns how long the program took to answer a message, in seconds.
    double seconds_without_answer();
    void end_hidden_messages();
    /// Returns `Scene::input_fault` after a short wait for it to become empty.
    std::string input_fault();
    void look_after_program();
    void rest();
    bool put_away_windows();
    void put_away(HWND window, const Scene& scene);
    void count_at_rest();
    void judge_growth();
    void check_database();
    void restart();
    void print_summary() const;

    Program program_;
    std::string original_;
    std::ofstream log_;
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    int faults_ = 0;
    int starts_ = 0;
    int actions_ = 0;
    std::size_t records_added_ = 0;
    std::map<std::string, int> seen_;    ///< actions by the class of the window that was in front
    std::vector<ObjectCounts> at_rest_;  ///< since the last start
};

}  // namespace quillomat::soak
