#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace quillomat::bench {

/// One thing to time: `run` is timed, `tidy` happens after it on nobody's account.
struct Subject {
    std::function<void()> run;
    std::function<void()> tidy = [] {};
};

/// The median seconds of each subject. The subjects take turns, so that whatever else the machine does hits all alike.
inline std::vector<double> medians(std::size_t rounds, std::initializer_list<Subject> subjects) {
    std::vector<std::vector<double>> seconds(subjects.size());
    for (std::size_t round = 0; round < rounds; ++round) {
        std::size_t index = 0;
        for (const Subject& subject : subjects) {
            const auto start = std::chrono::steady_clock::now();
            subject.run();
            const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
            subject.tidy();
            seconds[index++].push_back(elapsed.count());
        }
    }
    std::vector<double> result;
    for (std::vector<double>& runs : seconds) {
        std::nth_element(runs.begin(), runs.begin() + static_cast<std::ptrdiff_t>(runs.size() / 2), runs.end());
        result.push_back(runs[runs.size() / 2]);
    }
    return result;
}

inline void print_heading() {
    std::printf("%-44s %12s %12s %8s %8s\n", "what", "median ms", "baseline ms", "ratio", "at most");
}

inline void print_row(const std::string& what, double seconds, double baseline_seconds, double at_most) {
    std::printf("%-44s %12.3f %12.3f %8.2f %8.2f\n", what.c_str(), seconds * 1e3, baseline_seconds * 1e3,
                seconds / baseline_seconds, at_most);
}

}  // namespace quillomat::bench
