#pragma once

#include <string>

#include "forms/colour.h"

namespace quillomat {

class Label;

/// From which side the light falls.
enum class EmbossStyle { Raised = 1, PressedIn = 2 };

/// Makes a text look raised or pressed in: it stands in `main`, with a grey copy of it `depth` pixels to the lower
/// right and a white one to the upper left, or the other way round. Where the user's colours leave too little contrast
/// for that, it stands there plainly in their colour. An empty text keeps the one of `main`.
void EmbossLabel(Label& main, Label& shadow, Label& highlight, const std::wstring& text, EmbossStyle style,
                 Colour text_colour, int depth);

}  // namespace quillomat
