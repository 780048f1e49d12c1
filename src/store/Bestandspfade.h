#pragma once

#include <array>
#include <filesystem>

/// The files of the store. Order: as they are created and written.
enum class Tabelle { Kern, Betr, Diag, KernBak, BetrBak, DiagBak };

inline constexpr std::array dieTabellen{Tabelle::Kern, Tabelle::Betr, Tabelle::Diag};
inline constexpr std::array dieSicherungen{Tabelle::KernBak, Tabelle::BetrBak, Tabelle::DiagBak};
inline constexpr std::array alleSechs{Tabelle::Kern,    Tabelle::Betr,    Tabelle::Diag,
                                      Tabelle::KernBak, Tabelle::BetrBak, Tabelle::DiagBak};

/// Where the store lies. All paths are absolute.
struct Bestandspfade {
    std::filesystem::path daten;       ///< Daten
    std::filesystem::path kernDat;     ///< Daten/kernDat.txt
    std::filesystem::path betrDat;     ///< Daten/betrDat.txt
    std::filesystem::path diagDat;     ///< Daten/diagDat.txt
    std::filesystem::path kernBak;     ///< Daten/kernDat.bak
    std::filesystem::path betrBak;     ///< Daten/betrDat.bak
    std::filesystem::path diagBak;     ///< Daten/diagDat.bak
    std::filesystem::path vorgang;     ///< Daten/Vorgang.txt, the commit record; there only while an action is finished
    std::filesystem::path sicherungen; ///< Daten/Sicherungen, the backups of earlier sessions
    std::filesystem::path dummyDatei;  ///< dummyFile.txt, through which older versions rewrote a table
    std::filesystem::path probe;       ///< Tolvek7.probe, by which a start sees that it may write; gone at once
    std::filesystem::path importordner; ///< importDummyVerz, the work folder of an import; there only while it runs

    const std::filesystem::path& von(Tabelle tabelle) const;
};

/// The paths of a store in the program folder.
Bestandspfade bildeBestandspfade(const std::filesystem::path& programmordner);
