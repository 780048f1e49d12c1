#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the program was called for.
enum class Aufrufart { Arbeiten, Muster, Prüfung, Version, Hilfe, Unverständlich };

struct Schalter {
    std::string_view name;
    Aufrufart art;
    bool nimmtOrdner;
};
inline constexpr std::array schalter{
    Schalter{"--muster", Aufrufart::Muster, false},
    Schalter{"--pruefe", Aufrufart::Prüfung, true},
    Schalter{"--version", Aufrufart::Version, false},
    Schalter{"--hilfe", Aufrufart::Hilfe, false},
};

struct Aufruf {
    Aufrufart art = Aufrufart::Arbeiten;
    std::optional<std::filesystem::path> ordner; ///< the folder of records that was named
    std::string fehler;                          ///< why it is not understood, for the terminal
};

/// Reads the arguments behind the program's name.
Aufruf leseAufruf(const std::vector<std::filesystem::path>& argumente);

// What is written to a terminal is UTF-8, as terminals are.
std::string_view versionstext();
std::string_view hilfetext();
