#pragma once

#include "platform/elemente/Farbe.h"

#include <QColor>

/// The colour behind the number (red + 256 × green + 65536 × blue).
inline QColor alsQColor(Farbe farbe)
{
    return {farbe & 0xFF, (farbe >> 8) & 0xFF, (farbe >> 16) & 0xFF};
}
