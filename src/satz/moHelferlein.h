#pragma once

#include "platform/text/Datum.h"
#include "satz/Zeilenfelder.h"

#include <optional>
#include <string>
#include <string_view>

// The small routines of all subsystems by their chief file: fields of a line, dates as the records hold them (texts,
// some of them of older programs), and what belongs to neither.

/// Compares two dates by year, month, day; operators ">", "<", ">=", "<="; any other yields false. A part
/// that is no 16-bit number, or a fourth point, is a Laufzeitfehler.
bool vergleicheDatum(std::string_view a, std::string_view op, std::string_view b);
/// The date value of the text; nothing (0) for a text without digits. Another text that is no date is a
/// Laufzeitfehler.
std::optional<Datum> datumAusText(std::string_view text);

/// Surname and given name of a client record, as the screens of an episode show them.
std::string klientenname(std::string_view kernDS);

/// The folder part of a path text: what stands before the last ":" or path separator, without it.
std::string pfadVon(std::string_view pfad);
