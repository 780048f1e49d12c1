#pragma once

#include <string_view>

/// Whether an episode touches the year: begun in it or before, and open or ended in it or later. Day and month
/// play no part; a year is the last four characters of the date text. One that is no number is a
/// Laufzeitfehler, which calls the episode by `bezeichnung`.
bool berührtJahr(std::string_view beginn, std::string_view ende, int jahr, std::string_view bezeichnung);
