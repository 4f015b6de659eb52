// Fixed colours meet those of the user's theme, which can be anything from black to white.

#include <gtest/gtest.h>

#include "forms/gdi.h"

namespace quillomat {
namespace {

TEST(LegibleTest, ATextKeepsItsColourWhereItCanBeRead) {
    constexpr Colour link{0xFF0000};
    constexpr Colour pointed_at{0xFF8080};
    constexpr Colour light_face = rgb(244, 244, 244);
    const struct {
        Colour text;
        Colour background;
        Colour expected;
    } cases[] = {
        {link, light_face, link},
        {{0x0000FF}, light_face, {0x0000FF}},
        {colours::black, pointed_at, colours::black},
        {{0x800080}, {0xFFC0FF}, {0x800080}},
        // A theme of white on black.
        {link, colours::black, colours::white},
        {colours::white, pointed_at, colours::black},
        // A button whose colour runs through the rainbow.
        {colours::black, {0x800000}, colours::white},
        {colours::black, {0xFF00FF}, colours::white},
        // The theme's own pair is the user's choice.
        {colours::grey_text, colours::button_face, {resolve(colours::grey_text)}},
        {colours::button_face, colours::button_face, {resolve(colours::button_face)}},
    };
    for (const auto& [text, background, expected] : cases) {
        EXPECT_EQ(legible(text, background), expected.value) << std::hex << text.value << " on " << background.value;
    }
}

}  // namespace
}  // namespace quillomat
