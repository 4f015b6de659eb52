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

/// The next action for what is on the screen; nothing when the play is over.
using Actions = std::function<std::optional<Action>(const Scene&)>;

/// Plays with the program and watches what becomes of it: whether it crashes, hangs, stays without a window, lets
/// the wrong windows take input, loses objects of the system, or harms its database.
class Soak {
  public:
    /// Every action goes to the file `log` before it is done.
    Soak(std::string database, const std::string& log);

    /// Plays until the actions end. Returns the number of faults, each of which has been printed.
    int play(const Actions& actions);

  private:
    void start_program();
    void fault(const std::string& what);
    bool wait_for_window();
    void note(const Action& action, const Scene& scene);
    /// How long the program has kept a question waiting, in steps of 2 s.
    double seconds_without_answer();
    /// What has stayed wrong about which windows take input.
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
