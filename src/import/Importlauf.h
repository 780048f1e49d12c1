#pragma once

#include "import/Importort.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string_view>

struct Importzahlen {
    std::size_t klienten = 0;
    std::size_t betreuungen = 0;
};

/// The course of an import: four stages in the work folder, the closing steps, and the replacement of the live
/// tables. It either takes over everything or leaves the live tables as they were; the work folder, which holds
/// personal data, is gone afterwards in both cases.
class Importlauf {
public:
    Importlauf(Importort ort, std::filesystem::path kernAlt, std::filesystem::path betreuungenAlt);

    /// Told before a step: what it is and its number from 1.
    std::function<void(std::string_view was, int schritt)> beiSchritt;
    /// Told after a step.
    std::function<void()> nachSchritt;

    /// Makes the work folder anew, and runs. Throws Laufzeitfehler; call `entferneReste` then.
    Importzahlen führeAus();
    /// Removes the work folder, as far as that goes: after a failure, and at start what a run that was killed has left,
    /// since it holds personal data.
    static void entferneReste(const Bestand& bestand);

private:
    /// The three tables as stage 4 makes them.
    void führeStufenAus(const std::filesystem::path& kernDat, const std::filesystem::path& betrDat,
                        const std::filesystem::path& diagDat) const;
    Dateien& dateien() const { return m_ort.bestand.dateien(); }
    std::filesystem::path datei(std::string_view name) const { return m_ordner / name; }

    Importort m_ort;
    std::filesystem::path m_kernAlt;
    std::filesystem::path m_betreuungenAlt;
    std::filesystem::path m_ordner;
};
