// Fixed colours meet those of the user's theme, which can be anything from black to white.

#include <gtest/gtest.h>

#include "forms/gdi.h"

namespace quillomat {
namespace {

TEST(LegibleTest, ATextKeepsItsColourWhereItCanBeRead) {
    constexpr Colour link{0xFF0000};
    constexpr Colour pressed_link{0x0000FF};
    constexpr Colour pointed_at{0xFF8080};
    constexpr Colour pale_pink{0xFFC0FF};
    constexpr Colour purple{0x800080};
    constexpr Colour light_face = rgb(244, 244, 244);
    const struct {
        Colour text;
        Colour background;
        Colour expected;
    } cases[] = {
        {link, light_face, link},
        {pressed_link, light_face, pressed_link},
        {colours::black, pointed_at, colours::black},
        {purple, pale_pink, purple},
        // A theme of white on black.
        {link, colours::black, colours::white},
        {colours::white, pointed_at, colours::black},
        {colours::white, {0xFFC0C0}, colours::black},
        // A button whose colour runs through the rainbow.
        {colours::black, {0x800000}, colours::white},
        {colours::black, {0xFF00FF}, colours::white},
    };
    for (const auto& [text, background, expected] : cases) {
        EXPECT_EQ(legible(text, background), expected.value) << std::hex << text.value << " on " << background.value;
    }
}

TEST(LegibleTest, TheThemesOwnPairIsTheUsersChoice) {
    EXPECT_EQ(legible(colours::grey_text, colours::button_face), resolve(colours::grey_text));
    EXPECT_EQ(legible(colours::button_face, colours::button_face), resolve(colours::button_face));
}

}  // namespace
}  // namespace quillomat
