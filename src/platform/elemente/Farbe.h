#pragma once

#include <cstdint>

/// A colour as a number: red + 256 × green + 65536 × blue, as `feld.setzeHintergrund(farbe::rot)`. Only colours that
/// say something stand here; how things look is the surface's.
using Farbe = std::int32_t;

namespace farbe {
/// Each part from 0 to 255.
constexpr Farbe aus(int rot, int grün, int blau)
{
    return rot + 256 * grün + 65536 * blau;
}
inline constexpr Farbe rot = aus(255, 0, 0);
inline constexpr Farbe weiß = aus(255, 255, 255);
inline constexpr Farbe grau = aus(136, 136, 136);
} // namespace farbe
