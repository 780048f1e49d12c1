#include "store/Niederschrift.h"

#include "platform/text/Text.h"
#include "store/Sicherungen.h"
#include "store/Vollzugsvermerk.h"

#include <set>
#include <vector>

namespace fs = std::filesystem;

namespace {

/// The folders in which the files really lie.
std::set<fs::path> ordnerVon(const Bestand& bestand, const std::vector<Vermerk>& vermerke)
{
    std::set<fs::path> ordner;
    for (const auto& vermerk : vermerke) {
        ordner.insert(bestand.dateien().ziel(bestand.pfade().von(vermerk.tabelle)).parent_path());
    }
    return ordner;
}

std::vector<Vermerk> schreibeNeue(const Bestand& bestand, const std::map<Tabelle, Fassung>& fassungen)
{
    std::vector<Vermerk> vermerke;
    auto& dateien = bestand.dateien();
    for (const auto& [tabelle, fassung] : fassungen) {
        const auto schreiber = dateien.schreibeArbeitsdatei(neuNeben(dateien, bestand.pfade().von(tabelle)));
        fassung.schreibe(*schreiber);
        schreiber->schließe();
        vermerke.push_back({tabelle, fassung.alteLänge(), schreiber->länge(), schreiber->prüfsumme()});
    }
    return vermerke;
}

/// The moment of the OK: the record under its name, on the disk.
void legeVermerkHin(const Bestand& bestand, const std::vector<Vermerk>& vermerke)
{
    auto& dateien = bestand.dateien();
    const auto& pfade = bestand.pfade();
    for (const auto& ordner : ordnerVon(bestand, vermerke)) {
        if (ordner != pfade.daten) {
            dateien.sichereOrdner(ordner); // the names of the new files, where they lie elsewhere
        }
    }
    const auto entwurf = fassungNeben(pfade.vorgang);
    const auto schreiber = dateien.schreibeArbeitsdatei(entwurf);
    schreiber->text(alsVermerktext(vermerke, pfade));
    schreiber->schließe();
    dateien.benenneUm(entwurf, pfade.vorgang);
    dateien.sichereOrdner(pfade.daten);
}

/// `alle` are the files of the action, `ausstehende` those that have not been replaced yet. Every folder is flushed
/// before the record goes, whoever did the renaming.
void ersetzeDurchNeue(const Bestand& bestand, const std::vector<Vermerk>& ausstehende, const std::vector<Vermerk>& alle)
{
    auto& dateien = bestand.dateien();
    for (const auto& vermerk : ausstehende) {
        const auto ziel = dateien.ziel(bestand.pfade().von(vermerk.tabelle));
        dateien.benenneUm(fassungNeben(ziel), ziel);
    }
    for (const auto& ordner : ordnerVon(bestand, alle)) {
        dateien.sichereOrdner(ordner);
    }
    dateien.lösche(bestand.pfade().vorgang);
}

/// Whether it succeeded.
template <class F> bool versuche(F aufräumen)
{
    try {
        aufräumen();
        return true;
    } catch (const Laufzeitfehler&) {
        return false; // the failure that led here is told; the next start cleans up
    }
}

/// What was begun and not finished holds personal data. The new files stay as long as the record can't be removed:
/// it promises them.
void verwirfNeue(const Bestand& bestand, const std::map<Tabelle, Fassung>& fassungen)
{
    auto& dateien = bestand.dateien();
    const auto& pfade = bestand.pfade();
    if (!versuche([&] { dateien.entferne(pfade.vorgang); })) {
        return;
    }
    versuche([&] { dateien.entferne(fassungNeben(pfade.vorgang)); });
    for (const auto& eintrag : fassungen) {
        versuche([&] { dateien.entferne(neuNeben(dateien, pfade.von(eintrag.first))); });
    }
}

/// Whether the file is what the action has written.
bool istNeu(Dateien& dateien, const fs::path& pfad, const Vermerk& vermerk)
{
    return dateien.istDatei(pfad) && dateien.länge(pfad) == vermerk.neueLänge &&
           Prüfsumme::von(dateien.lies(pfad)->text()) == vermerk.prüfsumme;
}

/// Whether the file is still the one that the action was to replace.
bool istAlt(Dateien& dateien, const fs::path& pfad, const Vermerk& vermerk)
{
    return dateien.istDatei(pfad) ? dateien.länge(pfad) == vermerk.alteLänge : !vermerk.alteLänge.has_value();
}

/// Somebody has put other tables in the place of the old ones since: these count, and what was saved is kept aside.
void legeBeiseite(const Bestand& bestand)
{
    auto& dateien = bestand.dateien();
    const auto& pfade = bestand.pfade();
    const auto ordner = legeSicherungsordnerAn(bestand, verbinde(dateien.zeitVon(pfade.vorgang), " unvollendet"_t));
    for (const auto tabelle : alleSechs) {
        const auto neu = neuNeben(dateien, pfade.von(tabelle));
        if (dateien.istDatei(neu)) {
            dateien.verdopple(neu, ordner / pfade.von(tabelle).filename());
        }
    }
    dateien.sichereOrdner(ordner);
    dateien.lösche(pfade.vorgang);
    bestand.meldung()(
        verbinde("Die letzte Eingabe war gespeichert, aber noch nicht in allen Tabellen, und die Tabellen wurden "
                 "seither von anderer Hand verändert. Sie bleiben, wie sie sind. Der gespeicherte Stand liegt in \""_t,
                 pfadtext(ordner), "\"."_t),
        Symbol::Stop);
}

void vollende(const Bestand& bestand, const std::vector<Vermerk>& vermerke)
{
    auto& dateien = bestand.dateien();
    std::vector<Vermerk> ausstehende;
    for (const auto& vermerk : vermerke) {
        const auto ziel = dateien.ziel(bestand.pfade().von(vermerk.tabelle));
        if (istNeu(dateien, ziel, vermerk)) {
            continue;
        }
        if (!istAlt(dateien, ziel, vermerk) || !istNeu(dateien, fassungNeben(ziel), vermerk)) {
            legeBeiseite(bestand);
            return;
        }
        ausstehende.push_back(vermerk);
    }
    ersetzeDurchNeue(bestand, ausstehende, vermerke);
}

} // namespace

fs::path neuNeben(Dateien& dateien, const fs::path& tabelle)
{
    return fassungNeben(dateien.ziel(tabelle));
}

void schreibeNieder(const Bestand& bestand, const std::map<Tabelle, Fassung>& fassungen)
{
    if (fassungen.empty()) {
        return;
    }
    if (bestand.dateien().istDatei(bestand.pfade().vorgang)) { // left by a repair whose failure was passed over
        vollendeVorgang(bestand);
    }
    std::vector<Vermerk> vermerke;
    try {
        vermerke = schreibeNeue(bestand, fassungen);
        legeVermerkHin(bestand, vermerke);
    } catch (const Laufzeitfehler&) {
        verwirfNeue(bestand, fassungen);
        throw;
    }
    try {
        ersetzeDurchNeue(bestand, vermerke, vermerke);
    } catch (const Laufzeitfehler& fehler) {
        throw UnvollendeterVorgang(
            verbinde("Die Eingabe ist gespeichert und wird beim nächsten Start vollendet. "_t, fehler.text()));
    }
}

void vollendeVorgang(const Bestand& bestand)
{
    auto& dateien = bestand.dateien();
    const auto& pfade = bestand.pfade();
    if (!dateien.istOrdner(pfade.daten)) {
        return;
    }
    if (dateien.istDatei(pfade.vorgang)) {
        if (const auto vermerke = leseVermerke(dateien.lies(pfade.vorgang)->text(), pfade)) {
            vollende(bestand, *vermerke);
        } else {
            dateien.lösche(pfade.vorgang);
        }
    }
    dateien.entferne(fassungNeben(pfade.vorgang));
    for (const auto tabelle : alleSechs) {
        dateien.entferne(neuNeben(dateien, pfade.von(tabelle)));
    }
    entferneAngefangeneSicherungen(bestand);
}
