#include "ablauf/Ausfuehrung.h"

#include "ablauf/Anweisungen.h"
#include "sprache/Unicode.h"

#include <exception>
#include <stdexcept>

namespace {

Handlertafel sammle()
{
    Handlertafel alle;
    for (auto tafel : {aufbauhandler(), elementhandler(), rahmenhandler(), bildschirmerwartungen(), listenerwartungen(),
                       meldungserwartungen(), dateierwartungen(), mappenerwartungen()}) {
        alle.merge(tafel);
    }
    for (const auto& form : anweisungsformen()) {
        if (!alle.contains(form.wort)) {
            throw std::logic_error("keine Ausführung für " + std::string(form.wort));
        }
    }
    return alle;
}

void hörtSchiedsrichter(Lauf& lauf, const Anweisungsform& form)
{
    if (form.wort == "starte") {
        lauf.schiedsrichter().vorStart();
    } else if (form.schreibtDateien) {
        lauf.schiedsrichter().vermerkeFremdesSchreiben();
    } else if (form.gattung == Gattung::Handlung) {
        lauf.schiedsrichter().vorHandlung();
    }
}

void führeAus(Lauf& lauf, const Anweisung& anweisung)
{
    if (anweisung.form->gattung == Gattung::Handlung) {
        lauf.prüfeAngesprochen();
    }
    hörtSchiedsrichter(lauf, *anweisung.form);
    alleHandler().at(anweisung.form->wort)(lauf, anweisung);
    lauf.nachAnweisung();
}

void schließeAb(Lauf& lauf)
{
    lauf.prüfeAngesprochen();
    lauf.umgebung().prüfeVorrat();
    lauf.schiedsrichter().prüfe();
}

} // namespace

const Handlertafel& alleHandler()
{
    static const Handlertafel tafel = sammle();
    return tafel;
}

std::optional<Fehlschlag> führeAus(const Szenario& szenario, Oberfläche& oberfläche, const Beobachter& beobachter)
{
    std::size_t zeile = 0;
    try {
        Lauf lauf(szenario, oberfläche);
        for (const auto& anweisung : szenario.anweisungen) {
            zeile = anweisung.zeile;
            if (beobachter) {
                beobachter(zeile);
            }
            führeAus(lauf, anweisung);
        }
        schließeAb(lauf);
    } catch (const Scheitern& fehler) {
        return Fehlschlag{zeile, fehler.what()};
    } catch (const std::exception& fehler) {
        return Fehlschlag{zeile, std::string("erwartet eine ausführbare Anweisung gefunden ") + fehler.what()};
    }
    return std::nullopt;
}
