#pragma once

#include "export/Zeilenbauer.h"
#include "platform/dateien/Dateien.h"
#include "platform/dateien/Zeilensuche.h"
#include "store/Bestand.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Where an export lies below the program folder, and its two files.
namespace exportort {
inline constexpr auto ordner = "Exporte"_t;
inline constexpr auto jahresordner = "DBDD"_t; ///< followed by the year
inline constexpr auto kern = "Kern.txt"_t;
inline constexpr auto diagnose = "Diagnose.txt"_t;
} // namespace exportort

/// The folder or a file of the export could not be made or written. Unlike a Laufzeitfehler it ends the run
/// and not the program.
struct Exportfehler {
    std::string text;
};

/// Runs an operation on the export's own files and turns its failure into an Exportfehler.
void beimSchreiben(const std::function<void()>& operation);

/// Whether an episode touches the year: begun in it or before, and open or ended in it or later. Day and month
/// play no part; a year is the last four characters of the date text. One that is no number is a
/// Laufzeitfehler, which calls the episode by `bezeichnung`.
bool berührtJahr(std::string_view beginn, std::string_view ende, int jahr, std::string_view bezeichnung);

/// One run of the yearly export: picks the episodes that touch the year and writes a core and a diagnosis row
/// for each, clients in the order of their table, episodes in the order of theirs.
///
/// The result, the messages and the failures are those of a walk that reads the care table anew for each
/// client and the diagnosis table for each episode. Every table is read once all the same: while the first
/// client is walked, the episodes of the year are noted by client, and later clients need the notes only.
class Exportlauf {
public:
    /// The files lie in `ordner`, which exists.
    Exportlauf(const Bestand& bestand, int jahr, const std::filesystem::path& ordner);

    std::int32_t klientenzahl() const { return m_klientenzahl; }
    /// Told before each client is looked at.
    std::function<void(std::int32_t nummer)> beiKlient;

    /// Runs and returns the number of episodes that were picked, those without a diagnosis record included. After
    /// a Laufzeitfehler the rows written so far lie in the files, equally many in both.
    std::int32_t führeAus();

private:
    void exportiereKlient(std::string_view zeile, std::size_t nummer);
    /// Notes the episodes of the year and exports those of the first client on the way.
    void sucheBetreuungen(std::int32_t erster);
    bool berührtJahrDesExports(std::string_view betrDS, std::size_t nummer) const;
    void exportiere(std::int32_t kernID, std::string_view betrDS, std::size_t nummer);
    void beginneDiagnosesuche();
    void schreibe(std::string_view betrDS, std::string_view diagDS);
    void behalteGeschriebenes();

    Dateien& dateien() const { return m_bestand.dateien(); }
    const Bestandspfade& pfade() const { return m_bestand.pfade(); }

    struct Betreuung {
        std::string_view zeile;
        std::size_t nummer = 0;
    };

    const Bestand& m_bestand;
    int m_jahr;
    std::filesystem::path m_ordner;
    std::unique_ptr<Dateiinhalt> m_klienten;
    std::int32_t m_klientenzahl = 0;
    std::int32_t m_exportierte = 0;

    std::unique_ptr<Dateiinhalt> m_betreuungen; ///< read with the first client
    std::unordered_map<std::int32_t, std::vector<Betreuung>> m_imJahr;
    std::unique_ptr<Dateiinhalt> m_diagnosen; ///< read with the first episode
    std::optional<Zeilensuche> m_diagnosesuche;

    std::unique_ptr<Schreiber> m_kern;
    std::unique_ptr<Schreiber> m_diagnose;
    Exportsätze m_sätze;
};
