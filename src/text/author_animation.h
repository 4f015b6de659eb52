#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// Returns which character of the author dialog's caption is the next one in upper case, counted from 1; 0 stands for
/// none yet.
int next_capital(int position, std::size_t caption_length);
/// Returns `caption` with the character at `position`, counted from 1, in upper case. At most `address_length` less
/// `position` characters follow it, where `address_length` is the length of the dialog's address text.
std::wstring with_capital(std::wstring_view caption, int position, std::size_t address_length);

/// Returns the fraction of a turn about its vertical axis that the dialog's picture has made on the next tick. Pass
/// nothing on the first tick.
double next_turn(std::optional<double> turn);
/// Returns how wide the picture looks at a fraction of a turn, from 1 over 0, seen from its edge, to -1, seen from
/// behind.
double turned_width(double turn);

/// Returns which of its three pictures the dialog's icon shows next, from 0.
int next_icon(int icon);

/// The height of the window without the links, in twips.
inline constexpr double author_dialog_height = 5400;
/// Returns the next height of the window while it grows to show the links or shrinks to hide them, in twips; nothing
/// once it is there. It may go a little further than its goal.
std::optional<double> next_expanded_height(double height);
std::optional<double> next_contracted_height(double height);

}  // namespace quillomat
