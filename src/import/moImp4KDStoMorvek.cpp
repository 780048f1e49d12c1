#include "import/moImp4KDStoMorvek.h"

#include "import/Altfelder.h"
#include "import/Satzbau.h"
#include "import/Zeilenverzeichnis.h"
#include "import/moAnweisungen.h"
#include "platform/text/Text.h"
#include "satz/Exportspalten.h"
#include "satz/Klientenfelder.h"
#include "satz/Wertelisten.h"
#include "satz/moHelferlein.h"

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace {

constexpr char spaltentrenner = ';';

std::string_view geschlecht(std::string_view code)
{
    const auto* text = werte::textZu(werte::geschlecht, code);
    return text != nullptr ? *text : "Fehler in Geschlecht"_t;
}

/// Both ids as they stand in the row: the key by which the rows of an episode find each other.
std::string_view schlüssel(std::string_view zeile)
{
    const auto erstes = zeile.find(spaltentrenner);
    const auto zweites = zeile.find(spaltentrenner, erstes + 1);
    const auto ende = zeile.find(spaltentrenner, zweites + 1);
    return erstes == std::string_view::npos || zweites == std::string_view::npos ? std::string_view{}
                                                                                 : zeile.substr(erstes, ende - erstes);
}

/// The diagnosis rows by their ids; an episode can have several.
std::unordered_map<std::string_view, std::vector<std::string_view>> nachSchlüssel(const Eingabedatei& diagnosen)
{
    std::unordered_map<std::string_view, std::vector<std::string_view>> zeilen;
    diagnosen.fürJedeZeile([&](std::string_view zeile) { zeilen[schlüssel(zeile)].push_back(zeile); });
    return zeilen;
}

/// The client record, still without a status.
std::string klientensatz(const Satzsicht& kernzeile, std::string_view person)
{
    return verbinde(trenner, kernzeile.feld(exportspalte::kernID), trenner, trenner,
                    felder(person, altfeld::klient::nachname, altfeld::klient::ort),
                    geschlecht(kernzeile.feld(feldAus(klientenfelder(), feld::kern::geschlecht).spalte)), trenner,
                    getFeld(person, altfeld::klient::geburt), trenner);
}

} // namespace

void moImp4KDStoMorvek(Dateien& dateien, const std::filesystem::path& kdsKern, const std::filesystem::path& kdsDiagnose,
                       const std::filesystem::path& kernDat, const std::filesystem::path& betrDat,
                       const std::filesystem::path& diagDat, const std::filesystem::path& extraExp)
{
    const Eingabedatei kernzeilen(dateien, kdsKern);
    const Eingabedatei diagnosedatei(dateien, kdsDiagnose);
    auto diagnosezeilen = nachSchlüssel(diagnosedatei);
    const Eingabedatei extra(dateien, extraExp);
    const Zeilenverzeichnis<std::int32_t> personen(
        extra, [&](std::string_view zeile) { return extra.leseNummer(getFeld(zeile, altfeld::klient::nummer)); });
    const auto klientenAus = dateien.schreibeNeu(kernDat);
    const auto betreuungenAus = dateien.schreibeNeu(betrDat);
    const auto diagnosenAus = dateien.schreibeNeu(diagDat);
    Satzbau betreuungssatz(Satzbau::Art::Betreuung, betreuungsanweisungen());
    Satzbau diagnosesatz(Satzbau::Art::Diagnose, diagnoseanweisungen());

    std::unordered_set<std::int32_t> bekannte;
    bool kernGeschrieben = true; // not tied to an id: a client without diagnosis row leaves it to the next pair
    std::string_view person;
    Satzsicht kern;
    Satzsicht diagnose;
    kernzeilen.fürJedeZeile([&](std::string_view zeile) {
        kern.lies(zeile, spaltentrenner);
        const auto kernID = kernzeilen.leseNummer(kern.feld(exportspalte::kernID));
        if (bekannte.insert(kernID).second) {
            kernGeschrieben = false;
            person = personen.findeOderLetzte(kernID);
        }
        for (const auto diagnosezeile : diagnosezeilen[schlüssel(zeile)]) {
            const auto betrID = kernzeilen.leseNummer(kern.feld(exportspalte::betrID));
            diagnose.lies(diagnosezeile, spaltentrenner);
            if (!kernGeschrieben) {
                klientenAus->zeile(klientensatz(kern, person));
                kernGeschrieben = true;
            }
            const Episodenzeilen episode{kern, diagnose, kernID, betrID};
            betreuungenAus->zeile(betreuungssatz.baue(episode));
            diagnosenAus->zeile(diagnosesatz.baue(episode));
        }
    });
    for (const auto* aus : {&klientenAus, &betreuungenAus, &diagnosenAus}) {
        (*aus)->schließe();
    }
}
