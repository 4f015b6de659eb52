#include "text/author_animation.h"

#include <algorithm>
#include <cmath>

#include "text/letter_case.h"

namespace quillomat {
namespace {

constexpr double first_turn = 0.1;
constexpr double turn_step = 0.01;
// A little less than 2 pi, so that the picture jumps slightly once a turn.
constexpr double full_turn = 6.28;

constexpr int last_icon = 2;

constexpr double author_dialog_height_with_links = 6705;
constexpr double author_dialog_step = 100;

}  // namespace

int next_capital(int position, std::size_t caption_length) {
    return position < static_cast<int>(caption_length) ? position + 1 : 1;
}

std::wstring with_capital(std::wstring_view caption, int position, std::size_t address_length) {
    const auto capital = static_cast<std::size_t>(position) - 1;
    if (capital >= caption.size()) return std::wstring(caption);
    const std::size_t tail = address_length - std::min(address_length, capital + 1);
    std::wstring result(caption.substr(0, capital + 1));
    result.back() = ascii_upper_case(result.back());
    return result.append(caption.substr(capital + 1, tail));
}

double next_turn(std::optional<double> turn) {
    if (!turn) return first_turn;
    const double next = *turn + turn_step;
    return next > 1 ? next - 1 : next;
}

double turned_width(double turn) {
    return std::cos(turn * full_turn);
}

int next_icon(int icon) {
    return icon == last_icon ? 0 : icon + 1;
}

std::optional<double> next_expanded_height(double height) {
    if (height >= author_dialog_height_with_links) return std::nullopt;
    return height + author_dialog_step;
}

std::optional<double> next_contracted_height(double height) {
    if (height <= author_dialog_height) return std::nullopt;
    return height - author_dialog_step;
}

}  // namespace quillomat
