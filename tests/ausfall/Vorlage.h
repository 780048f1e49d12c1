#pragma once

#include <array>
#include <filesystem>
#include <string>

/// A folder of its own for one test, in memory where the system has such a place: a killed process does not ask how
/// fast the disk is.
class Arbeitsplatz {
public:
    Arbeitsplatz();
    explicit Arbeitsplatz(const std::filesystem::path& worin);
    Arbeitsplatz(const Arbeitsplatz&) = delete;
    Arbeitsplatz& operator=(const Arbeitsplatz&) = delete;
    ~Arbeitsplatz();

    const std::filesystem::path& pfad() const { return m_pfad; }

private:
    std::filesystem::path m_pfad;
};

using Dreitafel = std::array<std::string, 3>; ///< clients, episodes, diagnoses

std::string liesDatei(const std::filesystem::path& pfad);
void schreibeDatei(const std::filesystem::path& pfad, const std::string& inhalt);

Dreitafel tabellenIn(const std::filesystem::path& ordner);
Dreitafel bakIn(const std::filesystem::path& ordner);

/// Three clients; the second has three episodes with diagnoses, and stands neither first nor last.
void legeBestandAn(const std::filesystem::path& ordner);
/// The same, but the `.bak` files hold an earlier state.
void legeBestandMitAlterSicherungAn(const std::filesystem::path& ordner);
/// The same with years of two digits.
void legeBestandMitKurzenJahrenAn(const std::filesystem::path& ordner);
/// Empty tables, the instruction files, and files of the older generation in `alt`.
void legeAltdatenAn(const std::filesystem::path& ordner);
/// The folder is there and empty.
void legeNichtsAn(const std::filesystem::path& ordner);

/// Whether `Daten/Sicherungen` holds a set of exactly these three; true for three empty ones, which nobody has to keep.
bool hebtAuf(const std::filesystem::path& ordner, const Dreitafel& tabellen);

/// What must not lie in the folder once the program has started: work files, a commit record, the import's folder.
std::string resteIn(const std::filesystem::path& ordner);
