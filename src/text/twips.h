#pragma once

namespace quillomat {

/// Windows and printed pages are measured in twips. At 96 dots per inch a pixel is 15 twips wide.
inline constexpr int twips_per_inch = 1440;

}  // namespace quillomat
