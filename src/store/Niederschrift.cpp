#include "store/Niederschrift.h"

#include "platform/text/Text.h"
#include "store/Sicherungen.h"
#include "store/Vollzugsvermerk.h"

#include <algorithm>
#include <set>
#include <span>

namespace fs = std::filesystem;

namespace {

/// The folders in which the files really lie.
std::set<fs::path> ordnerVon(Dateien& dateien, const Bestandspfade& pfade, const std::vector<Vermerk>& vermerke)
{
    std::set<fs::path> ordner;
    for (const auto& vermerk : vermerke) {
        ordner.insert(dateien.ziel(pfade.von(vermerk.tabelle)).parent_path());
    }
    return ordner;
}

std::vector<Vermerk> schreibeNeue(Dateien& dateien, const Bestandspfade& pfade,
                                  const std::vector<Schreibauftrag>& aufträge)
{
    std::vector<Vermerk> vermerke;
    for (const auto& auftrag : aufträge) {
        const auto schreiber = dateien.schreibeArbeitsdatei(neuNeben(dateien, pfade.von(auftrag.tabelle)));
        auftrag.inhalt(*schreiber);
        schreiber->schließe();
        vermerke.push_back({auftrag.tabelle, auftrag.alteLänge, schreiber->länge(), schreiber->prüfsumme()});
    }
    return vermerke;
}

/// The moment of the OK: the record under its name, on the disk.
void legeVermerkHin(Dateien& dateien, const Bestandspfade& pfade, const std::vector<Vermerk>& vermerke)
{
    for (const auto& ordner : ordnerVon(dateien, pfade, vermerke)) {
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
void ersetzeDurchNeue(Dateien& dateien, const Bestandspfade& pfade, const std::vector<Vermerk>& ausstehende,
                      const std::vector<Vermerk>& alle)
{
    for (const auto& vermerk : ausstehende) {
        const auto ziel = dateien.ziel(pfade.von(vermerk.tabelle));
        dateien.benenneUm(fassungNeben(ziel), ziel);
    }
    for (const auto& ordner : ordnerVon(dateien, pfade, alle)) {
        dateien.sichereOrdner(ordner);
    }
    dateien.lösche(pfade.vorgang);
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
void verwirfNeue(Dateien& dateien, const Bestandspfade& pfade, const std::vector<Schreibauftrag>& aufträge)
{
    if (!versuche([&] { dateien.entferne(pfade.vorgang); })) {
        return;
    }
    versuche([&] { dateien.entferne(fassungNeben(pfade.vorgang)); });
    for (const auto& auftrag : aufträge) {
        versuche([&] { dateien.entferne(neuNeben(dateien, pfade.von(auftrag.tabelle))); });
    }
}

enum class Stand { Ausstehend, Erledigt, Unpassend };

bool passt(Dateien& dateien, const fs::path& pfad, const Vermerk& vermerk)
{
    return dateien.istDatei(pfad) && dateien.länge(pfad) == vermerk.neueLänge &&
           Prüfsumme::von(dateien.lies(pfad)->text()) == vermerk.prüfsumme;
}

Stand standVon(Dateien& dateien, const Bestandspfade& pfade, const Vermerk& vermerk)
{
    const auto ziel = dateien.ziel(pfade.von(vermerk.tabelle));
    if (passt(dateien, ziel, vermerk)) {
        return Stand::Erledigt;
    }
    const bool istAlt =
        dateien.istDatei(ziel) ? dateien.länge(ziel) == vermerk.alteLänge : !vermerk.alteLänge.has_value();
    return istAlt && passt(dateien, fassungNeben(ziel), vermerk) ? Stand::Ausstehend : Stand::Unpassend;
}

/// Somebody has put other tables in the place of the old ones since: these count, and what was saved is kept aside.
void legeBeiseite(Dateien& dateien, const Bestandspfade& pfade, const Bestandsmeldung& meldung)
{
    const auto ordner = legeSicherungsordnerAn(dateien, pfade, dateien.zeitVon(pfade.vorgang), " unvollendet"_t);
    for (const auto tabelle : alleSechs) {
        const auto neu = fassungNeben(dateien.ziel(pfade.von(tabelle)));
        if (dateien.istDatei(neu)) {
            dateien.verdopple(neu, ordner / pfade.von(tabelle).filename());
        }
    }
    dateien.sichereOrdner(ordner);
    dateien.lösche(pfade.vorgang);
    meldung(
        verbinde("Die letzte Eingabe war gespeichert, aber noch nicht in allen Tabellen, und die Tabellen wurden "
                 "seither von anderer Hand verändert. Sie bleiben, wie sie sind. Der gespeicherte Stand liegt in \""_t,
                 pfadtext(ordner), "\"."_t),
        Symbol::Stop);
}

void vollende(Dateien& dateien, const Bestandspfade& pfade, const std::vector<Vermerk>& vermerke,
              const Bestandsmeldung& meldung)
{
    std::vector<Vermerk> ausstehende;
    for (const auto& vermerk : vermerke) {
        switch (standVon(dateien, pfade, vermerk)) {
        case Stand::Ausstehend:
            ausstehende.push_back(vermerk);
            break;
        case Stand::Erledigt:
            break;
        case Stand::Unpassend:
            legeBeiseite(dateien, pfade, meldung);
            return;
        }
    }
    ersetzeDurchNeue(dateien, pfade, ausstehende, vermerke);
}

} // namespace

fs::path neuNeben(Dateien& dateien, const fs::path& tabelle)
{
    return fassungNeben(dateien.ziel(tabelle));
}

void schreibeNieder(Dateien& dateien, const Bestandspfade& pfade, const Bestandsmeldung& meldung,
                    const std::vector<Schreibauftrag>& aufträge)
{
    if (aufträge.empty()) {
        return;
    }
    if (dateien.istDatei(pfade.vorgang)) { // left by a repair whose failure was passed over
        vollendeVorgang(dateien, pfade, meldung);
    }
    std::vector<Vermerk> vermerke;
    try {
        vermerke = schreibeNeue(dateien, pfade, aufträge);
        legeVermerkHin(dateien, pfade, vermerke);
    } catch (const Laufzeitfehler&) {
        verwirfNeue(dateien, pfade, aufträge);
        throw;
    }
    try {
        ersetzeDurchNeue(dateien, pfade, vermerke, vermerke);
    } catch (const Laufzeitfehler& fehler) {
        throw UnvollendeterVorgang(
            verbinde("Die Eingabe ist gespeichert und wird beim nächsten Start vollendet. "_t, fehler.text()));
    }
}

void vollendeVorgang(Dateien& dateien, const Bestandspfade& pfade, const Bestandsmeldung& meldung)
{
    if (!dateien.istOrdner(pfade.daten)) {
        return;
    }
    if (dateien.istDatei(pfade.vorgang)) {
        if (const auto vermerke = leseVermerke(dateien.lies(pfade.vorgang)->text(), pfade)) {
            vollende(dateien, pfade, *vermerke, meldung);
        } else {
            dateien.lösche(pfade.vorgang);
        }
    }
    dateien.entferne(fassungNeben(pfade.vorgang));
    for (const auto tabelle : alleSechs) {
        dateien.entferne(neuNeben(dateien, pfade.von(tabelle)));
    }
    entferneAngefangeneSicherungen(dateien, pfade);
}
