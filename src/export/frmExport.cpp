#include "export/frmExport.h"

#include "export/Exportlauf.h"
#include "platform/dateien/Dateien.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Wertelisten.h"
#include "zustand/Zustand.h"

#include <optional>

namespace {

constexpr auto bereit = "Bereit"_t;

/// The export year, or nothing when the text is no whole number from 1 to 9999.
std::optional<int> leseJahr(std::string_view text)
{
    const auto jahr = leseGanzzahl16(text);
    return jahr && *jahr >= 1 && *jahr <= 9999 ? std::optional<int>(*jahr) : std::nullopt;
}

} // namespace

frmExport::frmExport() : Bildschirm("frmExport"_t)
{
    using namespace anordnung;
    using anordnung::feld;
    setzeTitel("Export"_t);
    istKindfenster = true;
    breiteEm = 30;
    kopfband.titel = &lblHeader;
    aufbau =
        spalte({formular({feld(Label1, comboJahr, 10)}), element(lblMeldung), platzhaltend(element(ProgressBar1))});
    leiste.rechts = {&cmdOK, &cmdExit};
    beiEscape = &cmdExit;

    // any other year can be typed
    constexpr int erstesJahr = 2006;
    constexpr int letztesJahr = 2020;
    comboJahr.fülle(werte::zahlen(alsText(erstesJahr), {erstesJahr + 1, letztesJahr}), alsText(erstesJahr));
    ProgressBar1.verberge();
    cmdOK.beiKlick = [this] { beiOK(); };
    cmdExit.beiKlick = [this] { beiExit(); };
}

void frmExport::beiOK()
{
    if (m_läuft) {
        return; // the surface lets events happen during the run
    }
    const auto jahr = leseJahr(comboJahr.text());
    if (!jahr) {
        zeigeMeldung("Bitte ein gültiges Exportjahr eingeben"_t);
        setzeFokus(&comboJahr);
        return;
    }
    const auto frage = verbinde("Es wird der Export der Daten für das Jahr "_t, alsText(*jahr), " durchgeführt."_t);
    if (zeigeMeldung(frage, Symbol::Keins, Knöpfe::OKAbbrechen) != Antwort::OK) {
        zeigeMeldung("Nichts wurde verändert"_t);
        return;
    }
    m_läuft = true;
    try {
        exportiere(*jahr);
    } catch (const Exportfehler& fehler) {
        ProgressBar1.verberge();
        lblMeldung.setzeText(bereit);
        zeigeMeldung(fehler.text, Symbol::Stop);
    }
    m_läuft = false;
}

void frmExport::exportiere(int jahr)
{
    const auto ordner = richteOrdnerEin(jahr);
    if (ordner.empty()) {
        zeigeMeldung("Nichts wurde verändert"_t, Symbol::Info);
        return;
    }
    ProgressBar1.zeige();
    lblMeldung.setzeText("Export wird erstellt..."_t);
    zustand().umgebung.zeichne();
    Exportlauf lauf(zustand().bestand, jahr, ordner);
    lauf.beiKlient = [&](std::int32_t nummer) { zeigeFortschritt(nummer, lauf.klientenzahl()); };
    const auto anzahl = lauf.führeAus();
    ProgressBar1.verberge();
    lblMeldung.setzeText(bereit);
    zeigeMeldung(verbinde("Exportierte Datensätze: "_t, alsText(anzahl)), Symbol::Info);
}

std::filesystem::path frmExport::richteOrdnerEin(int jahr)
{
    auto& dateien = zustand().umgebung.dateien();
    const auto exporte = zustand().pfade.programm / exportort::ordner;
    const auto ordner = exporte / verbinde(exportort::jahresordner, alsText(jahr));
    bool istNeu = false;
    beimSchreiben([&] {
        dateien.sorgeFürOrdner(exporte);
        istNeu = dateien.sorgeFürOrdner(ordner);
    });
    if (istNeu) {
        return ordner;
    }
    const auto frage = verbinde("Es gibt schon einen Export für das Jahr "_t, alsText(jahr), "\rÜberschreiben ?"_t);
    return zeigeMeldung(frage, Symbol::Frage, Knöpfe::OKAbbrechen) == Antwort::OK ? ordner : std::filesystem::path();
}

void frmExport::zeigeFortschritt(std::int32_t nummer, std::int32_t anzahl)
{
    lblMeldung.setzeText(verbinde("Klient "_t, alsText(nummer), " / "_t, alsText(anzahl)));
    ProgressBar1.setzeBereich(0, anzahl);
    ProgressBar1.setzeWert(nummer);
    zustand().umgebung.lasseEreignisseZu();
}

void frmExport::beiExit()
{
    if (m_läuft) {
        zeigeMeldung("Abbruch nicht möglich"_t);
        return;
    }
    zustand().folge.schließe(*this);
}
