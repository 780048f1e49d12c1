#include "ablauf/Schiedsrichter.h"

#include "platform/text/Eingabe.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "store/Pruefung.h"
#include "umgebung/Scheitern.h"

#include <algorithm>
#include <array>

bool betrifftAngaben(const Befundart& art)
{
    using namespace befundart;
    constexpr std::array arten{WertUnbekannt, Überschneidung, MehrereOffen,
                               EndeVorBeginn, DatumUngültig,  DatumZweistellig};
    return std::ranges::find(arten, art) != arten.end();
}

/// A folder without tables, or with tables that can't be read, has nothing to be judged.
std::vector<Befund> Schiedsrichter::finde() const
{
    try {
        Dateien dateien;
        auto befunde = prüfeBestand(dateien, bildeBestandspfade(m_ordner)).befunde;
        std::erase_if(befunde, [](const Befund& befund) { return befund.istHinweis(); });
        return befunde;
    } catch (const Laufzeitfehler&) {
        return {};
    }
}

Schiedsrichter::Merkmal Schiedsrichter::merkmalVon(const Befund& befund)
{
    const auto tabelle = befund.ort.tabelle ? std::to_string(static_cast<int>(*befund.ort.tabelle)) : std::string();
    return {befund.art, tabelle + befund.ort.datei, befund.ort.feld};
}

void Schiedsrichter::merke()
{
    for (const auto& befund : finde()) {
        m_bekannte.insert(merkmalVon(befund));
    }
    m_fremdesSchreiben = false;
}

bool Schiedsrichter::istEntschuldigt(const Befund& befund) const
{
    const bool hatImportiert = std::filesystem::exists(m_ordner / "importDatenListe.txt");
    return (hatImportiert && betrifftAngaben(befund.art)) || m_bekannte.contains(merkmalVon(befund));
}

void Schiedsrichter::vorHandlung()
{
    if (m_fremdesSchreiben) {
        merke();
    }
}

void Schiedsrichter::vorStart()
{
    merke();
}

void Schiedsrichter::prüfe()
{
    vorHandlung();
    for (const auto& befund : finde()) {
        if (!istEntschuldigt(befund)) {
            throw Scheitern("Tabellen ohne neuen Befund",
                            alsUtf8(alsBerichtszeile(befund, bildeBestandspfade(m_ordner))));
        }
    }
}
