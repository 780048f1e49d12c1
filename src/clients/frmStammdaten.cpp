#include "clients/frmStammdaten.h"

#include "platform/text/Zahl.h"
#include "satz/Klientenfelder.h"
#include "satz/Zeilenfelder.h"
#include "store/Vorgang.h"
#include "zustand/Zustand.h"

#include <array>

namespace {

constexpr auto unbekannt = "unbekannt"_t;

/// The client's line, found as the tables compare keys; empty without one.
std::string sucheKernDS(std::int32_t kernID)
{
    const auto& bestand = zustand().bestand;
    std::string gefunden;
    bestand.laufe(Tabelle::Kern, [&](std::string_view zeile, std::size_t nummer) {
        const bool trifft = leseSchlüssel(zeile, feld::kern::kernID, 16, bestand.pfade().kernDat, nummer) == kernID;
        if (trifft) {
            gefunden = zeile;
        }
        return !trifft;
    });
    return gefunden;
}

/// The text boxes with the record fields that they show.
template <class Form> auto textfelder(Form& form)
{
    using namespace feld::kern;
    return std::array{std::pair{nachname, &form.tbNachname}, std::pair{vorname, &form.tbVorname},
                      std::pair{straße, &form.tbStrasse}, std::pair{plz, &form.tbPLZ}, std::pair{ort, &form.tbOrt}};
}

} // namespace

frmStammdaten::frmStammdaten(std::int32_t klient, bool neu) : Bildschirm("frmStammdaten"_t), kernID(klient), istNeu(neu)
{
    ordneAn();
    DTPickerGeburtsdatum.heute = [] { return zustand().umgebung.heute(); };
    DTPickerGeburtsdatum.setzeDatum(zustand().umgebung.heute());
    cmdGebUnbekanntEintragen.verberge();

    cmdGebUnbekannt.beiKlick = [this] { setzeGebUnbekannt(false); };
    cmdGebUnbekanntEintragen.beiKlick = [this] { setzeGebUnbekannt(true); };
    cmdMemo.beiKlick = [this] { zustand().zeigeMemo(*this, true); };
    cmdOK.beiKlick = [this] { beiOK(); };
    cmdExit.beiKlick = [this] { beiExit(); };
}

void frmStammdaten::ordneAn()
{
    using namespace anordnung;
    using anordnung::feld;
    kopfband.titel = &lblHeader;
    auto felder =
        formular({feld("Nachname:"_t, tbNachname), feld("Vorname:"_t, tbVorname), feld("Straße:"_t, tbStrasse),
                  feld("PLZ:"_t, tbPLZ, 5), feld("Ort:"_t, tbOrt), feld("Geschlecht:"_t, comboGeschlecht, 10),
                  feld("Geburtsdatum:"_t,
                       {decke(element(DTPickerGeburtsdatum, 10), cmdGebUnbekannt), element(cmdGebUnbekanntEintragen)})},
                 7.5);
    aufbau = spalte({breit(karte({}, std::move(felder)), 33)});
    leiste = {.links = {&cmdMemo}, .rechts = {&cmdOK, &cmdExit}};
    beiEscape = &cmdExit;
}

void frmStammdaten::beiÖffnung()
{
    setzeTitel(verbinde(zustand().titel, " - Stammdaten"_t));
    comboGeschlecht.setzeListe(auswahlliste(feldAus(klientenfelder(), feld::kern::geschlecht)));
    lblHeader.setzeText(istNeu ? "neuer Klient"_t : "Klientendaten bearbeiten"_t);
    getFrmData();
}

void frmStammdaten::getFrmData()
{
    const std::string satz = istNeu ? zustand().defaultKernDS : sucheKernDS(kernID);
    if (satz.empty()) {
        zeigeMeldung("getFrmData aus frmStammdaten konnte ID nicht finden"_t, Symbol::Stop);
        return;
    }
    for (const auto& [nummer, textfeld] : textfelder(*this)) {
        textfeld->setzeText(getFeld(satz, nummer));
    }
    comboGeschlecht.setzeText(getFeld(satz, feld::kern::geschlecht));
    zeigeGeburtsdatum(getFeld(satz, feld::kern::geburtsdatum));

    m_kernDSBeimÖffnen = satz;
    m_betrao = getFeld(satz, feld::kern::betrao);
    zustand().memoKText = getFeld(satz, feld::kern::memo);
    zustand().memoBText = "dieses Feld ist nur da, um auf Betreuungsebene Memos einzutragen. Hier ist es ohne Sinn"_t;
}

void frmStammdaten::zeigeGeburtsdatum(std::string_view gespeichert)
{
    const auto datum = leseDatum(gespeichert);
    if (!datum && gespeichert != unbekannt) {
        zeigeMeldung(verbinde("Das gespeicherte Geburtsdatum '"_t, gespeichert, "' ist kein gültiges Datum."_t));
    }
    DTPickerGeburtsdatum.setzeDatum(datum.value_or(zustand().umgebung.heute()));
    cmdGebUnbekannt.zeige(!datum.has_value());
    cmdGebUnbekanntEintragen.zeige(datum.has_value());
}

void frmStammdaten::setzeGebUnbekannt(bool istUnbekannt)
{
    cmdGebUnbekannt.zeige(istUnbekannt);
    cmdGebUnbekanntEintragen.zeige(!istUnbekannt);
    // the button just pressed is gone: the work goes on at the place that it has made free
    setzeFokus(istUnbekannt ? static_cast<Element*>(&cmdGebUnbekannt) : &DTPickerGeburtsdatum);
}

std::string frmStammdaten::erstelleKernDS() const
{
    std::string satz = verbinde(trenner, alsText(kernID), trenner, m_betrao, trenner);
    for (const auto& eintrag : textfelder(*this)) {
        satz += verbinde(maskiereTrenner(eintrag.second->text()), trenner);
    }
    const auto geburtsdatum = cmdGebUnbekannt.istSichtbar() ? std::string(unbekannt) : DTPickerGeburtsdatum.text();
    return verbinde(satz, comboGeschlecht.text(), trenner, geburtsdatum, trenner, zustand().memoKText);
}

bool frmStammdaten::liegtNeuInDerZukunft(std::string_view satz) const
{
    return !cmdGebUnbekannt.istSichtbar() &&
           getFeld(satz, feld::kern::geburtsdatum) != getFeld(m_kernDSBeimÖffnen, feld::kern::geburtsdatum) &&
           DTPickerGeburtsdatum.datum() > zustand().umgebung.heute();
}

void frmStammdaten::beiOK()
{
    const auto satz = erstelleKernDS();
    if (liegtNeuInDerZukunft(satz) && zeigeMeldung("Geburtsdatum liegt in der Zukunft. Fortfahren ?"_t, Symbol::Frage,
                                                   Knöpfe::OKAbbrechen) != Antwort::OK) {
        setzeFokus(&DTPickerGeburtsdatum);
        return;
    }
    Vorgang vorgang(zustand().bestand);
    if (istNeu) {
        vorgang.anfügeKernDS(satz);
        zustand().aktKernID = kernID;
    } else {
        vorgang.ersetzeKernDS(kernID, satz);
    }
    vorgang.bestätige();
    zustand().folge.schließe(*this);
}

void frmStammdaten::beiExit()
{
    if (erstelleKernDS() != m_kernDSBeimÖffnen && zeigeMeldung("Veränderungen in diesem Fenster verwerfen ?"_t,
                                                               Symbol::Frage, Knöpfe::OKAbbrechen) != Antwort::OK) {
        return;
    }
    zustand().folge.schließe(*this);
}
