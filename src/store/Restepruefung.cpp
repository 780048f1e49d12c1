#include "store/Restepruefung.h"

#include "platform/text/Text.h"
#include "store/Niederschrift.h"
#include "store/Vollzugsvermerk.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace {

Fundort anDatei(const fs::path& pfad, const fs::path& wurzel)
{
    return {.tabelle = {}, .datei = pfadtext(pfad.lexically_relative(wurzel))};
}

/// The tables for which a whole record promises a new content.
std::vector<Vermerk> prüfeVermerk(Dateien& dateien, const Bestandspfade& pfade, const fs::path& wurzel,
                                  Befundliste& befunde)
{
    if (!dateien.istDatei(pfade.vorgang)) {
        return {};
    }
    const auto vermerke = leseVermerke(dateien.lies(pfade.vorgang)->text(), pfade);
    befunde.melde(vermerke ? Befundart::VermerkGanz : Befundart::VermerkUnvollständig, anDatei(pfade.vorgang, wurzel));
    return vermerke.value_or(std::vector<Vermerk>());
}

void prüfeArbeitsdateien(Dateien& dateien, const Bestandspfade& pfade, const fs::path& wurzel, Befundliste& befunde)
{
    const auto versprochen = prüfeVermerk(dateien, pfade, wurzel, befunde);
    for (const auto tabelle : alleSechs) {
        const auto neu = neuNeben(dateien, pfade.von(tabelle));
        if (dateien.istDatei(neu)) {
            const bool gehörtDazu = std::ranges::find(versprochen, tabelle, &Vermerk::tabelle) != versprochen.end();
            befunde.melde(Befundart::Arbeitsdatei, anDatei(neu, wurzel), {},
                          gehörtDazu ? "kommt beim nächsten Start an ihre Stelle"_t : std::string_view());
        }
    }
    for (const auto& pfad : {neuNeben(dateien, pfade.vorgang), pfade.probe}) {
        if (dateien.istDatei(pfad)) {
            befunde.melde(Befundart::Arbeitsdatei, anDatei(pfad, wurzel));
        }
    }
    for (const auto& pfad : {pfade.dummyDatei, wurzel / "Tolvekdummy.txt"}) {
        if (dateien.istDatei(pfad)) {
            befunde.melde(Befundart::AlteArbeitsdatei, anDatei(pfad, wurzel));
        }
    }
}

void prüfeSicherungen(Dateien& dateien, const Bestandspfade& pfade, const fs::path& wurzel, Befundliste& befunde)
{
    if (!dateien.istOrdner(pfade.sicherungen)) {
        return;
    }
    for (const auto& name : dateien.ordnerIn(pfade.sicherungen)) {
        if (istFassungNeben(name)) {
            befunde.melde(Befundart::SicherungAngefangen, anDatei(pfade.sicherungen / name, wurzel));
        } else if (pfadtext(name).ends_with("unvollendet"_t)) {
            befunde.melde(Befundart::SicherungUnvollendet, anDatei(pfade.sicherungen / name, wurzel));
        }
    }
}

} // namespace

void prüfeReste(Dateien& dateien, const Bestandspfade& pfade, Befundliste& befunde)
{
    const auto wurzel = pfade.dummyDatei.parent_path();
    prüfeArbeitsdateien(dateien, pfade, wurzel, befunde);
    prüfeSicherungen(dateien, pfade, wurzel, befunde);
    if (dateien.istOrdner(pfade.importordner)) {
        befunde.melde(Befundart::Importordner, anDatei(pfade.importordner, wurzel));
    }
}
