#pragma once

#include <string>
#include <string_view>

/// Words of the scenario language (UTF-8).

/// The text as an argument in quotes.
std::string alsArgument(std::u32string_view text);
std::string alsArgument(std::string_view tabellentext);
/// A line of a file as a `|` line.
std::string alsZeile(std::string_view tabellentext);
