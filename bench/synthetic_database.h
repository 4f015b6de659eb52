#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace quillomat {

/// A database of exactly `records` games and `bytes` bytes in the Western code page, made of everyday words, some of
/// them accented: sorted, every name once, CR LF at every line's end. The same seed gives the same bytes everywhere.
/// Throws `std::invalid_argument` when so few bytes cannot hold so many games.
std::string synthetic_database(int records, std::size_t bytes, std::uint32_t seed = 1);

}  // namespace quillomat
