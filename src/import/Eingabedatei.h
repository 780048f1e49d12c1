#pragma once

#include "platform/dateien/Dateien.h"
#include "platform/dateien/Zeilen.h"

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
