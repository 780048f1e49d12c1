#pragma once

#include <string>
#include <string_view>

/// The settings file (Pfade::ini): lines `key = value`, today the places of the windows. Blanks around key and
/// value don't count, the key is compared without regard to case. Nothing is held in memory: each call reads
/// the file, so a line edited by hand counts at once.

/// The value of the key, trimmed; empty where the key is missing. A value may hold "=" itself, and a line
/// without "=" is passed over. Laufzeitfehler when the file can't be read.
std::string leseIni(std::string_view schlüssel);

/// Rewrites the file through the dummy ini: every line with the key gets the value and keeps its own spelling
/// of the key; without one the key goes to the end. All other lines stay as they are. Laufzeitfehler on a line
/// without "=" (the file is then the old one) and on a failed write.
void schreibeIni(std::string_view schlüssel, std::string_view wert);

/// A length in twips from the file: a number with "." or "," before its decimals, anything else is 0.
double leseLage(std::string_view schlüssel);
/// Writes the length as a whole number.
void schreibeLage(std::string_view schlüssel, double twips);
