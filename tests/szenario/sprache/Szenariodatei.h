#pragma once

#include "sprache/Anweisungsformen.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// A statement of a scenario, its form checked: as many arguments as the form wants, each of its kind.
struct Anweisung {
    std::size_t zeile = 0; ///< in the file, from 1
    const Anweisungsform* form = nullptr;
    bool unmöglich = false;
    std::vector<std::u32string> argumente;
    std::map<std::string, std::u32string, std::less<>> optionen;
    std::vector<std::u32string> zeilen;

    const std::u32string& argument(std::size_t n) const { return argumente.at(n); }
    bool hatArgument(std::size_t n) const { return n < argumente.size(); }
    std::int64_t zahl(std::size_t n) const;
};

struct Szenario {
    std::filesystem::path pfad;
    std::vector<Anweisung> anweisungen;
};

/// A file that cannot be read or parsed: what was expected, and in which line (0: the file itself).
class Sprachfehler : public std::runtime_error {
public:
    Sprachfehler(std::size_t zeile, const std::string& erwartet) : std::runtime_error(erwartet), m_zeile(zeile) {}
    std::size_t zeile() const { return m_zeile; }

private:
    std::size_t m_zeile;
};

/// The statements of the text (UTF-8). Throws Sprachfehler.
std::vector<Anweisung> liesAnweisungen(std::string_view text);
/// The scenario in the file. Throws Sprachfehler.
Szenario liesSzenario(const std::filesystem::path& pfad);
