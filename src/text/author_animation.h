#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// Returns the position of the character of the author dialog's caption that is shown in upper case next, counted from
/// 1. Pass 0 at the start.
int next_capital(int position, std::size_t caption_length);
/// Returns `caption` with the character at `position`, counted from 1, in upper case. At most `address_length` minus
/// `position` characters follow that one; `address_length` is the length of the dialog's address text.
std::wstring with_capital(std::wstring_view caption, int position, std::size_t address_length);

/// Returns the fraction of a turn about its vertical axis that the dialog's picture has made after the next tick, given
/// the fraction before it. Pass nothing on the first tick.
double next_turn(std::optional<double> turn);
/// Returns the apparent width of the picture at a fraction of a turn: 1 from the front, 0 from the edge, -1 from
/// behind.
double turned_width(double turn);

/// Returns the number of the picture that the dialog's icon shows after picture `icon`; there are three, from 0.
int next_icon(int icon);

/// The height of the window without the links, in twips.
inline constexpr double author_dialog_height = 5400;
/// Returns the next height of the window while it grows to show the links or shrinks to hide them, in twips, or nothing
/// at the end. The last height may be up to a step beyond the goal.
std::optional<double> next_expanded_height(double height);
std::optional<double> next_contracted_height(double height);

}  // namespace quillomat
