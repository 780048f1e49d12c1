#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The rows of the main menu's two lists, read from the tables: one text a row, cells joined by `trenner`.
/// Both cost one pass over their table. Laufzeitfehler where a table can't be read.

/// The id with "0" in front up to 4 characters, so that the list sorts ids as text.
std::string idText(std::string_view id);

/// One row for each client, in file order. The character with code 0, which the start-up repair leaves in the
/// care state, is shown as empty.
std::vector<std::string> klientenzeilen();

/// One row for each care episode of the client, in file order. A key that is no number is a Laufzeitfehler.
std::vector<std::string> betreuungszeilen(std::int32_t kernID);
