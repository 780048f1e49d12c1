#include "ablauf/Anweisungen.h"
#include "ablauf/Programmdateien.h"
#include "ablauf/Vergleich.h"
#include "sprache/Unicode.h"
#include "umgebung/Meldungsworte.h"

#include "platform/text/Eingabe.h"
#include "platform/text/Text.h"

namespace {

Meldung nimmMeldung(Lauf& lauf, const std::string& erwartet)
{
    auto& meldungen = lauf.umgebung().meldungen;
    if (meldungen.empty()) {
        throw Scheitern("die Meldung " + zeige(erwartet), "keine");
    }
    Meldung meldung = std::move(meldungen.front());
    meldungen.pop_front();
    return meldung;
}

void prüfeOption(const Anweisung& anweisung, const std::string& name, std::string_view gefunden)
{
    if (const auto option = anweisung.optionen.find(name); option != anweisung.optionen.end()) {
        vergleicheText(name, mitEinfachenUmbrüchen(alsTabellentext(option->second)), gefunden);
    }
}

void prüfeMerkmale(const Anweisung& anweisung, const Meldung& meldung)
{
    prüfeOption(anweisung, "symbol", wortFür(meldung.symbol));
    prüfeOption(anweisung, "knöpfe", wortFür(meldung.knöpfe));
    prüfeOption(anweisung, "vorgabe", wortFür(meldung.vorgabe));
    prüfeOption(anweisung, "titel", mitEinfachenUmbrüchen(meldung.titel));
}

void meldung(Lauf& lauf, const Anweisung& anweisung)
{
    const std::string erwartet = mitEinfachenUmbrüchen(alsTabellentext(anweisung.argument(0)));
    const Meldung gefunden = nimmMeldung(lauf, erwartet);
    vergleicheText("die Meldung", erwartet, mitEinfachenUmbrüchen(gefunden.text));
    prüfeMerkmale(anweisung, gefunden);
}

void meldungMit(Lauf& lauf, const Anweisung& anweisung)
{
    const std::string erwartet = mitEinfachenUmbrüchen(alsTabellentext(anweisung.argument(0)));
    const Meldung gefunden = nimmMeldung(lauf, erwartet);
    vergleicheTeil("die Meldung", erwartet, mitEinfachenUmbrüchen(gefunden.text));
    prüfeMerkmale(anweisung, gefunden);
}

void sichereMeldungen(Lauf& lauf, const Anweisung& anweisung)
{
    std::string texte;
    for (const auto& meldung : lauf.umgebung().meldungen) {
        texte += ersetzt(alsUtf8(mitEinfachenUmbrüchen(meldung.text)), "\n", "\\n") + "\n";
    }
    lauf.umgebung().meldungen.clear();
    schreibeDatei(lauf.draußen(anweisung.argument(0)), texte);
}

void ende(Lauf& lauf, const Anweisung& /*anweisung*/)
{
    if (!lauf.wurdeGestartet() || lauf.läuft()) {
        throw Scheitern("das Ende des Programms", lauf.läuft() ? "es läuft" : "es wurde nicht gestartet");
    }
    if (!lauf.absturz().empty()) {
        throw Scheitern("ein ordentliches Ende", zeige(lauf.absturz()));
    }
    vergleicheZahl("Endestatus", 0, lauf.status());
}

void absturz(Lauf& lauf, const Anweisung& anweisung)
{
    if (lauf.absturz().empty()) {
        throw Scheitern("einen Absturz", lauf.läuft() ? "das Programm läuft" : "ein ordentliches Ende");
    }
    lauf.sprichAbsturzAn();
    if (anweisung.hatArgument(0)) {
        vergleicheTeil("einen Absturz", alsTabellentext(anweisung.argument(0)), mitEinfachenUmbrüchen(lauf.absturz()));
    }
}

} // namespace

Handlertafel meldungserwartungen()
{
    return {
        {"erwarte meldung", meldung}, {"erwarte meldung-mit", meldungMit}, {"sichere-meldungen", sichereMeldungen},
        {"erwarte ende", ende},       {"erwarte absturz", absturz},
    };
}
