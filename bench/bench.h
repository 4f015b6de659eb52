#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillomat::bench {

constexpr int game_count = 2501;
/// Returns a database of `game_count` games and about `bytes` bytes, made of common words. Of the first 2460 games,
/// 2368 contain the word "level".
inline std::string database(std::size_t bytes) {
    static constexpr std::string_view words =
        " the press and type game during to health code for enter all weapons console in hold unlock a while menu full "
        "armour skip of mission invincible main then ammo name as lives with your extra password screen pause at walk "
        "through walls money infinite on player key file map edit show toggle caf\xE9 will you get more time ";
    unsigned random = 1;
    std::string text;
    for (int number = 0; number < game_count; ++number) {
        const std::size_t end = bytes / game_count * static_cast<std::size_t>(number + 1) - 40;
        if (number * 92 % 2460 >= 92) text += "level ";
        while (text.size() < end) {
            random = random * 1664525 + 1013904223;
            const std::size_t blank = words.find(' ', (random >> 16) % (words.size() - 6));
            text.append(words.substr(blank, words.find(' ', blank + 1) - blank))
                .append(random >> 28 == 0 ? "\r\n" : "");
        }
        text.append("\r\n$$$$$$$$$$$$$$$$$$$$ Game number ").append(std::to_string(number)).append("\r\n");
    }
    return text;
}

/// Returns the median duration of each action in milliseconds. The actions take turns, so that other load on the
/// machine affects all alike.
inline std::vector<double> medians(const std::vector<std::function<void()>>& actions) {
    constexpr int rounds = 31;
    std::vector times(actions.size(), std::vector<double>());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t index = 0; index < actions.size(); ++index) {
            const auto start = std::chrono::steady_clock::now();
            actions[index]();
            times[index].push_back(
                std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
        }
    }
    std::vector<double> result;
    for (auto& time : times) {
        std::ranges::nth_element(time, time.begin() + rounds / 2);
        result.push_back(time[rounds / 2]);
    }
    return result;
}

/// Prints a line of the table of scripts/bench: `value` may be at most `at_most` times the baseline.
inline void print(const std::string& figure, double value, const char* unit, const char* baseline_name, double baseline,
                  double at_most) {
    std::printf("%s\t%.3g %s\t%s\t%.3g %s\t%.3f\t%g\n", figure.c_str(), value, unit, baseline_name, baseline, unit,
                value / baseline, at_most);
}

}  // namespace quillomat::bench
