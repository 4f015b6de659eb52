#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace quillomat::bench {

/// One thing to time: `run` is timed, `tidy` happens after it on nobody's account.
struct Subject {
    std::function<void()> run;
    std::function<void()> tidy = [] {};
};

inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

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
    for (std::vector<double>& runs : seconds) result.push_back(median(std::move(runs)));
    return result;
}

constexpr double milliseconds_of_a_frame = 1000.0 / 60;

/// One measured value beside what it is compared with, both in the same unit.
struct Figure {
    std::string name;
    double value;
    const char* unit;
    std::string baseline_name;
    double baseline;
    double at_most;  ///< what the value must not exceed
};

/// Prints it as a line of fields with tabs between, which scripts/bench makes a table of.
inline void print(const Figure& figure) {
    std::printf("%s\t%.6g\t%s\t%s\t%.6g\t%.6g\n", figure.name.c_str(), figure.value, figure.unit,
                figure.baseline_name.c_str(), figure.baseline, figure.at_most);
    std::fflush(stdout);
}

}  // namespace quillomat::bench
