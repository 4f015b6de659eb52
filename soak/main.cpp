// Plays with the program by random real input, or repeats the actions in the log of an earlier run:
//
//   soak PROGRAM DATABASE LOG SECONDS SEED
//   soak PROGRAM DATABASE LOG replay ACTIONS
//
// Refuses to run if there are other drives than C:, so that the program never overwrites the user's files.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <sstream>

#include "soak/player.h"
#include "soak/soak.h"

namespace {

using namespace quillomat;
using namespace quillomat::soak;

Actions random_actions(double seconds, unsigned seed) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    return [end, player = Player(seed)](const Scene& scene) mutable -> std::optional<Action> {
        if (std::chrono::steady_clock::now() >= end) return std::nullopt;
        return player.next(scene);
    };
}

Actions recorded_actions(const std::filesystem::path& path) {
    auto stream = std::make_shared<std::istringstream>(bytes_of(path));
    return [stream](const Scene&) -> std::optional<Action> {
        std::string line;
        while (std::getline(*stream, line)) {
            if (const std::optional<Action> action = from_line(line)) return action;
        }
        return std::nullopt;
    };
}

int run(int count, wchar_t** arguments) {
    if (count != 6) {
        std::printf("usage: soak PROGRAM DATABASE LOG SECONDS SEED | soak PROGRAM DATABASE LOG replay ACTIONS\n");
        return 2;
    }
    constexpr DWORD drive_c = 1 << 2;
    if (GetLogicalDrives() != drive_c) {
        std::printf("There are other drives than C:, on which the program might save something at random\n");
        return 2;
    }
    Program::executable = arguments[1];
    Soak soak(bytes_of(arguments[2]), std::filesystem::path(arguments[3]).string());
    if (std::wstring_view(arguments[4]) == L"replay") return std::min(soak.play(recorded_actions(arguments[5])), 1);
    const auto seed = static_cast<unsigned>(std::stoul(arguments[5]));
    return std::min(soak.play(random_actions(std::stod(arguments[4]), seed)), 1);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    try {
        return run(count, arguments);
    } catch (const std::exception& error) {
        std::printf("soak: %s\n", error.what());
        return 2;
    }
}
