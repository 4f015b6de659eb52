#pragma once

#include <cstdint>

namespace quillomat {

/// A colour as 0xBBGGRR, or, with the top bit set, the number of a system colour that follows the user's theme.
struct Colour {
    std::uint32_t value = 0;

    constexpr bool follows_theme() const { return value & 0x80000000U; }

    friend constexpr bool operator==(Colour, Colour) = default;
};

/// A colour of red, green and blue bytes.
constexpr Colour rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return {static_cast<std::uint32_t>(red | green << 8 | blue << 16)};
}

namespace colours {

inline constexpr Colour menu{0x80000004};
inline constexpr Colour window{0x80000005};
inline constexpr Colour window_text{0x80000008};
inline constexpr Colour highlight{0x8000000D};
inline constexpr Colour highlight_text{0x8000000E};
inline constexpr Colour button_face{0x8000000F};
inline constexpr Colour grey_text{0x80000011};
inline constexpr Colour button_text{0x80000012};
inline constexpr Colour tip_text{0x80000017};
inline constexpr Colour tip_background{0x80000018};
inline constexpr Colour black = rgb(0, 0, 0);
inline constexpr Colour white = rgb(255, 255, 255);

}  // namespace colours
}  // namespace quillomat
