#pragma once

#include <cstdint>

/// A colour as a number: red + 256 × green + 65536 × blue, as `feld.setzeHintergrund(farbe::rot)`. Only colours that
/// say something stand here; how things look is the surface's.
using Farbe = std::int32_t;

namespace farbe {
inline constexpr Farbe rot = 255;
inline constexpr Farbe weiß = 16777215;
inline constexpr Farbe grau = 8947848;
} // namespace farbe
