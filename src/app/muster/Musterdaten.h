#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

/// How large the made-up facility is. The same numbers give the same bytes on every machine.
struct Mustervorgabe {
    int klienten = 200;
    int episodenJe = 3;
    std::uint64_t saat = 1;
};

/// The three tables of a made-up facility as bytes of the code page, lines ended by CR LF. Every value comes
/// from the program's own value lists; the people are invented.
struct Mustertabellen {
    std::string kern;
    std::string betr;
    std::string diag;
};

Mustertabellen erzeugeMusterdaten(const Mustervorgabe& vorgabe);

/// Writes a program folder: `Daten` with the tables and their backups. Throws Laufzeitfehler.
void schreibeProgrammordner(const std::filesystem::path& ordner, const Mustertabellen& tabellen);
