#include "text/animation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace quillomat {
namespace {

constexpr ColourValue dark_grey = 0x404040;
constexpr ColourValue mid_grey = 0x808080;
constexpr ColourValue light_grey = 0xC0C0C0;

constexpr double version_resting_left = 3960;
constexpr double version_step = 50;
constexpr double panel_step = 100;

constexpr int first_cycle_colour = 2;
constexpr std::array<ColourValue, 11> cycle_colours = {0xFFC0C0, 0xFF8080, 0xFF0000, 0xC00000, 0x800000, 0x400000,
                                                       0x800080, 0xC000C0, 0xFF00FF, 0xFF80FF, 0xFFC0FF};

constexpr double exit_width_asking = 2500;
constexpr double exit_width_step = 400;
constexpr double answer_top_asking = 3614.896;
constexpr double answer_top_step = 100;

constexpr double smallest_title = 2;
constexpr double largest_title = 20;

constexpr double first_turn = 0.1;
constexpr double turn_step = 0.01;
// A little less than a whole circle, as the picture has always turned.
constexpr double full_turn = 6.28;

constexpr int last_icon = 2;

constexpr double author_dialog_height_with_links = 6705;
constexpr double author_dialog_step = 100;

}  // namespace

LetterBand next_letter_band(int step, int letter_count) {
    const int last_step = letter_count + 1;
    LetterBand band;
    band.colours.assign(static_cast<std::size_t>(letter_count), dark_grey);
    const int next_step = step == last_step ? 0 : step + 1;
    if (next_step < 0 || next_step > last_step) return band;
    band.step = next_step;
    for (const auto& [letter, colour] :
         {std::pair{band.step - 2, mid_grey}, std::pair{band.step - 1, light_grey}, std::pair{band.step, mid_grey}}) {
        if (letter >= 0 && letter < letter_count) band.colours[static_cast<std::size_t>(letter)] = colour;
    }
    return band;
}

int motto_number(double random) {
    return static_cast<int>(random * 8) + 1;
}

double version_start_left(double window_width) {
    return window_width + 400;
}

std::optional<double> next_version_left(double left) {
    if (left <= version_resting_left) return std::nullopt;
    return left - version_step;
}

ColourCycle next_colour_cycle(int step) {
    const int next = step + 1;
    const int colour = next - first_cycle_colour;
    if (colour >= static_cast<int>(cycle_colours.size())) return {.step = 1, .colour = std::nullopt};
    if (colour < 0) return {.step = next, .colour = std::nullopt};
    return {.step = next, .colour = cycle_colours[static_cast<std::size_t>(colour)]};
}

ExitConfirmation next_asking(const ExitConfirmation& current) {
    ExitConfirmation next = current;
    if (next.exit_width > exit_width_asking) next.exit_width -= exit_width_step;
    if (next.yes_top > answer_top_asking) next.yes_top -= answer_top_step;
    if (next.no_top > answer_top_asking) next.no_top -= answer_top_step;
    return next;
}

ExitConfirmation next_withdrawing(const ExitConfirmation& current) {
    ExitConfirmation next = current;
    if (next.exit_width < exit_width_resting) next.exit_width += exit_width_step;
    if (next.yes_top < answer_top_resting) next.yes_top += answer_top_step;
    if (next.no_top < answer_top_resting) next.no_top += answer_top_step;
    return next;
}

bool asking_is_complete(double exit_width) {
    return exit_width == exit_width_asking;
}

bool withdrawing_is_complete(double exit_width) {
    return exit_width == exit_width_resting;
}

std::optional<double> next_game_panel_left(double left) {
    if (left >= panel_resting_left) return std::nullopt;
    return left + panel_step;
}

std::optional<double> next_search_panel_left(double left) {
    if (left <= panel_resting_left) return std::nullopt;
    return left - panel_step;
}

std::optional<double> next_shrinking_title(double points) {
    if (points <= smallest_title) return std::nullopt;
    return points - 1;
}

std::optional<double> next_growing_title(double points) {
    if (points >= largest_title) return std::nullopt;
    return points + 1;
}

int next_capital(int position, std::size_t caption_length) {
    return position < static_cast<int>(caption_length) ? position + 1 : 1;
}

std::wstring with_capital(std::wstring_view caption, int position, std::size_t address_length) {
    const auto capital = static_cast<std::size_t>(position) - 1;
    if (capital >= caption.size()) return std::wstring(caption);
    const std::size_t tail = address_length - std::min(address_length, capital + 1);
    std::wstring result(caption.substr(0, capital + 1));
    wchar_t& letter = result.back();
    if (letter >= L'a' && letter <= L'z') letter = static_cast<wchar_t>(letter - L'a' + L'A');
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
