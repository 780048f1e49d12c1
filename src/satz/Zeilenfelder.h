#pragma once

#include "platform/text/Text.h"

#include <cstdint>
#include <string>
#include <string_view>

// The fields of a record line, which the delimiter separates.

/// Field `nummer` (from 1) of the line; empty beyond the last, below 1 and in an empty line. A line of more
/// than 32,767 characters is a Laufzeitfehler.
std::string_view getFeld(std::string_view zeile, int nummer, char trennzeichen = trenner);
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
