#pragma once

#include "platform/text/Datum.h"

#include <optional>
#include <string_view>

// Dates as the records hold them: texts, some of them of older programs.

/// Compares two dates by year, month, day; operators ">", "<", ">=", "<="; any other yields false. A part
/// that is no 16-bit number, or a fourth point, is a Laufzeitfehler.
bool vergleicheDatum(std::string_view a, std::string_view op, std::string_view b);
/// The date value of the text; nothing (0) for a text without digits. Another text that is no date is a
/// Laufzeitfehler.
std::optional<Datum> datumAusText(std::string_view text);
