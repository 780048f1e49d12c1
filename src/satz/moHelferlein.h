#pragma once

#include "platform/text/Datum.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Small routines that all subsystems use: fields of a record line and dates.

/// Field `nummer` (from 1) of the line; empty beyond the last, below 1 and in an empty line. A line of more
/// than 32,767 characters is a Laufzeitfehler.
std::string_view getFeld(std::string_view zeile, int nummer);
/// The same with a delimiter of one's own.
std::string_view getFeldMit(std::string_view zeile, int nummer, char trennzeichen);
/// The line with field `nummer` (from 2) replaced. Too few delimiters are a Laufzeitfehler. For field 1 it
/// would replace field 2, so no caller uses it there.
std::string ersetzeFeld(std::string_view zeile, int nummer, std::string_view neu);
/// 0 for an empty line, else the delimiters plus 1. More than 32,767 characters are a Laufzeitfehler.
std::int16_t anzahlFelder(std::string_view zeile);
/// Each delimiter becomes character 191.
std::string maskiereTrenner(std::string_view text);
/// Fields 1 to n of the line, each followed by the delimiter, from `von` to `bis`.
std::string felder(std::string_view zeile, int von, int bis);
/// Fields `von` to `bis` of the line as they stand there, with the delimiters between them; empty without any.
std::string_view feldbereich(std::string_view zeile, int von, int bis);
/// A line of more than 32,767 characters is a Laufzeitfehler.
void prüfeZeilenlänge(std::string_view zeile);
/// Surname and given name of a client record, as the screens of an episode show them.
std::string klientenname(std::string_view kernDS);

/// Compares two dates by year, month, day; operators ">", "<", ">=", "<="; any other yields false. A part
/// that is no 16-bit number, or a fourth point, is a Laufzeitfehler.
bool vergleicheDatum(std::string_view a, std::string_view op, std::string_view b);
/// The date value of the text; nothing (0) for a text without digits. Another text that is no date is a
/// Laufzeitfehler.
std::optional<Datum> datumAusText(std::string_view text);

/// The folder part of a path text: what stands before the last ":" or path separator, without it.
std::string pfadVon(std::string_view pfad);
