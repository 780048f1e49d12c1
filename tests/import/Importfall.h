#pragma once

#include "hilfen/Altdaten.h"
#include "hilfen/Stoerzugriff.h"
#include "hilfen/Testumgebung.h"
#include "import/Importlauf.h"
#include "import/moAnweisungen.h"

#include "satz/moData.h"
#include "satz/moNationen.h"

/// A run with the older files `alt/kernDat.txt` and `alt/betreuungenDat.txt`, the instruction files beside the
/// program and empty live tables.
class Importfall : public testing::Test {
protected:
    Importfall() : plan(std::make_shared<Störplan>()), lauf(std::make_unique<Störzugriff>(plan))
    {
        baueProblemKatalog();
        registriereNationen(lauf.stand.ressourcen);
        registriereAnweisungen(lauf.stand.ressourcen);
        lauf.legeTabellenAn();
        for (const auto* name : {"eKernAnweisung.txt", "eDiagAnweisung.txt"}) {
            std::filesystem::copy_file(std::filesystem::path(TOLVEK_QUELLEN) / "anweisungen" / name,
                                       lauf.pfade().programm / name);
        }
    }

    std::filesystem::path kernAlt() const { return lauf.pfade().programm / "alt" / "kernDat.txt"; }
    std::filesystem::path betreuungenAlt() const { return lauf.pfade().programm / "alt" / "betreuungenDat.txt"; }
    std::filesystem::path arbeitsordner() const { return lauf.pfade().programm / "importDummyVerz"; }
    std::filesystem::path datei(std::string_view name) const { return lauf.pfade().programm / name; }

    Importort importort() const
    {
        return {lauf.stand.bestand, lauf.pfade().programm, lauf.stand.umgebung.installation(),
                lauf.stand.pfade.importListe};
    }

    void altdaten(const std::vector<std::string>& klienten, const std::vector<std::string>& betreuungen) const
    {
        Testlauf::schreibeZeilen(kernAlt(), klienten);
        Testlauf::schreibeZeilen(betreuungenAlt(), betreuungen);
    }

    Importzahlen importiere() const
    {
        Importlauf importlauf(importort(), kernAlt(), betreuungenAlt());
        importlauf.beiSchritt = [](std::string_view, int) {};
        importlauf.nachSchritt = [] {};
        try {
            return importlauf.führeAus();
        } catch (...) {
            Importlauf::entferneReste(lauf.stand.bestand);
            throw;
        }
    }

    static std::vector<std::string> zeilen(const std::filesystem::path& pfad)
    {
        const auto inhalt = Testlauf::lies(pfad);
        std::vector<std::string> alle;
        for (std::size_t anfang = 0; anfang < inhalt.size();) {
            const auto ende = inhalt.find("\r\n", anfang);
            alle.push_back(inhalt.substr(anfang, ende - anfang));
            anfang = ende + 2;
        }
        return alle;
    }
    std::vector<std::string> meldungen() const { return lauf.umgebung.meldungstexte(); }

    std::shared_ptr<Störplan> plan;
    Testlauf lauf;
};
