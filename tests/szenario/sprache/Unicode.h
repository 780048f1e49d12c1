#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

/// Scenario files are UTF-8, the tables are bytes of the code page; a text of a scenario is Unicode until it
/// is known what it is for.

/// A text that the code page cannot express, where only the code page is possible.
class Zeichenfehler : public std::runtime_error {
public:
    explicit Zeichenfehler(const std::string& text) : std::runtime_error(text) {}
};

std::string alsUtf8(std::u32string_view text);
/// The bytes of the tables' code page; throws Zeichenfehler for a character that it lacks.
std::string alsTabellentext(std::u32string_view text);
/// Whether the bytes are well-formed UTF-8.
bool istUtf8(std::string_view bytes);
