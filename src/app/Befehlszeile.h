#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

/// What the program was called for.
enum class Aufrufart { Arbeiten, Muster, Prüfung, Version, Hilfe, Unverständlich };

struct Aufruf {
    Aufrufart art = Aufrufart::Arbeiten;
    std::optional<std::filesystem::path> ordner; ///< the folder of records that was named
    std::string fehler;                          ///< why it is not understood, for the terminal
};

/// Reads the arguments behind the program's name.
Aufruf leseAufruf(const std::vector<std::filesystem::path>& argumente);

// What is written to a terminal is UTF-8, as terminals are.
void schreibeVersion(std::ostream& aus);
void schreibeHilfe(std::ostream& aus);
