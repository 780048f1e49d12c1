#include "care/frmBetreuungA.h"

#include "care/Arbeitssatz.h"
#include "platform/text/Text.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Klientenfelder.h"
#include "satz/moHelferlein.h"
#include "store/Vorgang.h"
#include "zustand/Zustand.h"

#include <array>
#include <utility>

namespace {

/// The reason with which questions about the relative come in.
constexpr auto codeProblemImUmfeld = "2"_t;

constexpr std::array kostenträgerarten{
    "Pauschal / institutionell finanziert (z.B. OGD)"_t,
    "Selbstzahler"_t,
    "Rentenversicherung"_t,
    "Krankenversicherung"_t,
    "Sozialhilfe"_t,
    "Jugendhilfe"_t,
    "Arbeitsagenturen, Jobcenter"_t,
    "Pflegeversicherung"_t,
    "Sonstiges"_t,
};

} // namespace

frmBetreuungA::frmBetreuungA(std::int32_t klient, std::int32_t nummer, bool neu)
    : Bildschirm("frmBetreuungA"_t), kernID(klient), betrID(nummer), istNeu(neu), m_zeitraumGesetzt(!neu)
{
    beschrifte(lblKosten, kostenträgerarten);
    baueTafel();
    m_tafel.fülleListen(); // the page is in view, behind the period dialogue, before it is loaded
    ordneAn();
    richteKnöpfeEin();
}

void frmBetreuungA::baueTafel()
{
    m_tafel.füge("Wieder"_t, comboWieder);
    m_tafel.füge("BetrGru"_t, comboBetrGru);
    m_tafel.füge("Angeho"_t, comboAngeho);
    m_tafel.füge("Problem"_t, comboProblem);
    m_tafel.füge("Nation"_t, comboNation);
    m_tafel.füge("Sprache"_t, comboSprache);
    m_tafel.füge("Migrant1"_t, comboMigrant1);
    m_tafel.füge("Migrant2"_t, comboMigrant2);
    m_tafel.füge("Vermitt"_t, comboVermitt);
    m_tafel.füge("Auflagen1"_t, comboAuflagen1);
    m_tafel.füge("Auflagen2"_t, comboAuflagen2);
    m_tafel.füge("Kosten"_t, triJaNeinKosten);
}

void frmBetreuungA::ordneAn()
{
    using namespace anordnung;
    kopfband.titel = &lblHeader;
    kopfband.name = &lblName;
    kopfband.werte = {{std::string("Beginn"_t), &lblBetrBeg}, {std::string("Ende"_t), &lblBetrEnd}};
    kopfband.knopf = &cmdBearbeiteZeitraum;
    aufbau = karten({spalte({angaben()}), spalte({kostenträger()}),
                     spalte({element(cmdBetrA), element(cmdBetrB), element(cmdBetrC), element(cmdBetrDiagnose),
                             element(cmdBetrE)})});
    leiste.links = {&cmdMemo};
    leiste.rechts = {&cmdOK, &cmdExit};
}

Anordnung frmBetreuungA::angaben()
{
    using namespace anordnung;
    using anordnung::feld;
    constexpr double breite = 16.5;
    return karte(
        {}, spalte({formular({feld("Wiederaufnahme in dieser Einrichtung"_t, comboWieder),
                              feld("Betreuungsgrund"_t, comboBetrGru)},
                             breite),
                    decke(formular({feld("Angehöriger kommt als"_t, comboAngeho),
                                    feld("(Vorrangiges) Suchtproblem aus Sicht des Angehörigen"_t, comboProblem)},
                                   breite),
                          cmdIsEigeneProblematik),
                    formular({trennlinie(), feld("Aktuelle Staatsangehörigkeit des Klienten"_t, comboNation),
                              feld("Klient ist der deutschen Sprache mächtig"_t, comboSprache),
                              feld("Klient ist selbst migriert"_t, comboMigrant1),
                              feld("Klient ist als Kind von Migranten geboren"_t, comboMigrant2), trennlinie(),
                              feld("Vermittelnde Instanz:"_t, comboVermitt),
                              feld("Auflagen durch Gerichtsbeschluss zur Abwendung freiheitsbeschränkender Folgen"_t,
                                   comboAuflagen1),
                              feld("Weitere Auflagen durch"_t, comboAuflagen2)},
                             breite)}));
}

Anordnung frmBetreuungA::kostenträger()
{
    using namespace anordnung;
    std::vector<Anordnung> zeilen;
    for (int i = lblKosten.von(); i <= lblKosten.bis(); ++i) {
        zeilen.push_back(tabellenzeile(lblKosten(i), {&triJaNeinKosten(i)}));
    }
    return karte({}, tabelle("Kosten-/Leistungsträger"_t, {{{}, {}, &cmdSchnellFüller}}, zeilen));
}

void frmBetreuungA::richteKnöpfeEin()
{
    beiEscape = &cmdExit;
    comboBetrGru.beiWahl = [this] { zeigeBetrGru(); };
    richteFüllerEin(cmdSchnellFüller, triJaNeinKosten);
    cmdBearbeiteZeitraum.beiKlick = [this] { zeigeZeitraum(); };
    cmdBetrA.beiKlick = [this] { öffneSeite(m_betrA); };
    cmdBetrB.beiKlick = [this] { öffneSeite(m_betrB); };
    cmdBetrC.beiKlick = [this] { öffneSeite(m_betrC); };
    cmdBetrDiagnose.beiKlick = [this] { öffneSeite(m_betrDiagnose); };
    cmdBetrE.beiKlick = [this] { öffneEnde(); };
    cmdMemo.beiKlick = [this] { zustand().zeigeMemo(*this, false); };
    cmdOK.beiKlick = [this] { beiOK(); };
    cmdExit.beiKlick = [this] { beiExit(); };
}

void frmBetreuungA::beiÖffnung()
{
    setzeTitel(zustand().titel);
    if (istNeu) {
        zustand().arbeitskopie.betrBeg.clear(); // nothing of the episode edited before
        zustand().arbeitskopie.betrEnd.clear();
        zeigeZeitraum();
    } else {
        ladeSeite();
    }
}

void frmBetreuungA::ladeSeite()
{
    ladeArbeitskopie();
    m_tafel.fülleListen();
    zeigeBeginnUndEnde();
    zeigeDaten();
}

void frmBetreuungA::ladeArbeitskopie()
{
    Arbeitskopie& kopie = zustand().arbeitskopie;
    kopie.aktKernDS = zustand().bestand.getKernDS(kernID);
    if (istNeu) {
        kopie.aktBetrDS = zustand().defaultBetrDS;
        kopie.aktDiagDS = zustand().defaultDiagDS;
    } else {
        kopie.aktBetrDS = zustand().bestand.getBetrDS(kernID, betrID);
        kopie.aktDiagDS = zustand().bestand.getDiagDS(kernID, betrID);
        kopie.betrBeg = getFeld(kopie.aktBetrDS, feld::betr::beginn);
        kopie.betrEnd = getFeld(kopie.aktBetrDS, feld::betr::ende);
    }
    zerlegeBetrDS(kopie);
    zustand().memoBText = memoBAus(kopie.aktBetrDS);
    zustand().memoKText = memoKAus(kopie.aktKernDS);
}

void frmBetreuungA::zeigeBeginnUndEnde()
{
    lblBetrBeg.setzeText(zustand().arbeitskopie.betrBeg);
    lblBetrEnd.setzeText(zustand().arbeitskopie.betrEnd);
}

void frmBetreuungA::zeigeDaten()
{
    lblName.setzeText(klientenname(zustand().arbeitskopie.aktKernDS));
    if (istNeu) { // the lists' defaults count, not those of the default record
        return;
    }
    m_tafel.lade(zustand().arbeitskopie.DSBetrHaupt);
    zeigeBetrGru();
}

void frmBetreuungA::zeigeBetrGru()
{
    cmdIsEigeneProblematik.zeige(!hatProblemImUmfeld());
}

bool frmBetreuungA::hatProblemImUmfeld() const
{
    const auto* code = werte::codeZu(werte::betrGru, comboBetrGru.text());
    return code != nullptr && *code == codeProblemImUmfeld;
}

std::string frmBetreuungA::sammleSeitenDaten()
{
    if (!hatProblemImUmfeld()) {
        comboAngeho.setzeText("keine Angaben"_t);
        comboProblem.setzeText("keine Angaben"_t);
    }
    return m_tafel.sammle();
}

template <class F> void frmBetreuungA::öffneSeite(Bildschirmplatz<F>& platz)
{
    zustand().folge.öffneStatt(*this, platz.neu());
}

void frmBetreuungA::öffneEnde()
{
    if (klein(zustand().arbeitskopie.betrEnd) == "offen"_t) {
        zeigeMeldung("Das Betreuungsende ist offen, bitte erst einen Zeitpunkt fürs Betreuungsende eintragen"_t,
                     Symbol::Info);
        return;
    }
    öffneSeite(m_betrE);
}

void frmBetreuungA::zeigeZeitraum()
{
    const Arbeitskopie& kopie = zustand().arbeitskopie;
    const std::string heute = alsDatumstext(zustand().umgebung.heute());
    auto& dialog = m_zeitraum.neu(kernID, istNeu, istNeu ? heute : kopie.betrBeg, istNeu ? heute : kopie.betrEnd);
    zustand().folge.öffneÜber(*this, dialog, [this, &dialog] { nimmZeitraum(dialog); });
}

void frmBetreuungA::nimmZeitraum(const frmBetreuungZeitraum& dialog)
{
    if (dialog.istAngenommen()) {
        zustand().arbeitskopie.betrBeg = dialog.strVon;
        zustand().arbeitskopie.betrEnd = dialog.strBis;
        zeigeBeginnUndEnde();
        if (!std::exchange(m_zeitraumGesetzt, true)) {
            ladeSeite();
        }
    } else if (!m_zeitraumGesetzt) {
        zeigeMeldung("Es wurde keine Betreuung angelegt, nichts wurde verändert"_t);
        zustand().folge.schließe(*this);
    }
}

void frmBetreuungA::beiOK()
{
    zustand().arbeitskopie.DSBetrHaupt = sammleSeitenDaten();
    speichere();
    zustand().folge.schließe(*this);
}

void frmBetreuungA::speichere()
{
    const Arbeitskopie& kopie = zustand().arbeitskopie;
    const Betreuungsschlüssel schlüssel{kernID, betrID};
    const auto betrDS = baueBetrDS(schlüssel, lblBetrBeg.text(), lblBetrEnd.text(), kopie, zustand().memoBText);
    const auto diagDS = baueDiagDS(schlüssel, kopie);
    Vorgang vorgang(zustand().bestand);
    if (istNeu) {
        vorgang.anfügeBetrDS(betrDS);
        vorgang.löscheDiagReste(kernID, betrID);
        vorgang.anfügeDiagDS(diagDS);
    } else {
        vorgang.ersetzeBetrDS(kernID, betrID, betrDS);
        if (!vorgang.ersetzeDiagDS(kernID, betrID, diagDS)) {
            vorgang.anfügeDiagDS(diagDS); // the diagnosis that was confirmed must not be lost
        }
    }
    // the state is read from the care table, so the episode has to lie there by now
    const auto betrao = vorgang.betrStatusVon(getFeld(kopie.aktKernDS, feld::kern::kernID));
    vorgang.ersetzeKernDS(kernID, baueKernDS(kopie.aktKernDS, betrao, zustand().memoKText));
    vorgang.bestätige();
}

void frmBetreuungA::beiExit()
{
    const Antwort antwort = zeigeMeldung("Es werden alle Veränderungen, die nach Aufruf dieser BETREUUNG "
                                         "vorgenommen wurden, verworfen"_t,
                                         Symbol::Frage, Knöpfe::OKAbbrechen);
    if (antwort == Antwort::OK) {
        zustand().folge.schließe(*this);
    }
}
