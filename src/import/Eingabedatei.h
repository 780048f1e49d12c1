#pragma once

#include "platform/dateien/Dateien.h"
#include "platform/dateien/Zeilen.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>

/// A text file that a stage reads. Its lines are views that live as long as it does, so that an index of them
/// costs no copy.
class Eingabedatei {
public:
    /// Throws Laufzeitfehler when the file can't be read.
    Eingabedatei(Dateien& dateien, const std::filesystem::path& pfad) : m_pfad(pfad), m_inhalt(dateien.lies(pfad)) {}

    const std::filesystem::path& pfad() const { return m_pfad; }
    std::size_t zeilenzahl() const { return zähleZeilen(m_inhalt->text()); }

    /// A number of the file that the older system gave a client or an episode and that is taken over as id. One that
    /// is no number from 1 to 32767 is a Laufzeitfehler: the tables could not be read past it.
    std::int32_t leseNummer(std::string_view text) const;

    /// Calls `tue(zeile)` for each line in file order.
    template <class F> void fürJedeZeile(F tue) const
    {
        Zeilen zeilen(m_inhalt->text());
        while (const auto zeile = zeilen.nächste()) {
            tue(*zeile);
        }
    }

    /// The same without the empty lines, which the older system's files may hold.
    template <class F> void fürJedenSatz(F tue) const
    {
        fürJedeZeile([&](std::string_view zeile) {
            if (!zeile.empty()) {
                tue(zeile);
            }
        });
    }

private:
    std::filesystem::path m_pfad;
    std::unique_ptr<Dateiinhalt> m_inhalt;
};
