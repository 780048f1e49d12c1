#include "care/frmBetreuungZeitraum.h"

#include "platform/text/Text.h"
#include "satz/moHelferlein.h"
#include "zustand/Fehlerort.h"
#include "zustand/Zustand.h"

#include <utility>

frmBetreuungZeitraum::frmBetreuungZeitraum(std::int32_t kernID, bool istNeu, std::string von, std::string bis)
    : Bildschirm("frmBetreuungZeitraum"_t), strVon(std::move(von)), strBis(std::move(bis)), m_kernID(kernID),
      m_istNeu(istNeu)
{
    istKindfenster = true;
    breiteEm = 29;
    for (auto* feld : {&DTPickerVon, &DTPickerBis}) {
        feld->heute = [] { return zustand().umgebung.heute(); };
        feld->setzeDatum(zustand().umgebung.heute());
    }
    ordneAn();
    beiEingabe = &cmdOK;
    beiEscape = &cmdExit;

    cmdIsOffen.beiKlick = [this] { beiIsOffen(); };
    cmdOffenEintragen.beiKlick = [this] { beiOffenEintragen(); };
    cmdVonVerbessern.beiKlick = [this] { beiVonVerbessern(); };
    cmdOK.beiKlick = [this] { beiOK(); };
    cmdExit.beiKlick = [this] { beiExit(); };
}

void frmBetreuungZeitraum::ordneAn()
{
    using namespace anordnung;
    using anordnung::feld;
    constexpr double datumsbreite = 9;
    constexpr double knopfbreite = 8.5;
    constexpr double beschriftungsbreite = 2.5;
    const auto offen = stapel({element(cmdIsOffen, knopfbreite), element(cmdOffenEintragen, knopfbreite)});
    kopfband.titel = &lblHeader;
    aufbau = karte({}, formular({feld(lblVon, {element(DTPickerVon, datumsbreite),
                                               platzhaltend(element(cmdVonVerbessern, knopfbreite))}),
                                 feld(lblBis, {platzhaltend(element(DTPickerBis, datumsbreite)), platzhaltend(offen)})},
                                beschriftungsbreite));
    leiste.rechts = {&cmdOK, &cmdExit};
}

void frmBetreuungZeitraum::beiÖffnung()
{
    setzeTitel(zustand().titel);
    mitDatumsort(m_kernID, [this] {
        m_zeitraumListe = leseZeitraumListe(m_kernID);
        setzeStufeEins();
    });
}

void frmBetreuungZeitraum::setzeStufeEins()
{
    m_stufe = Stufe::Beginn;
    if (m_istNeu) {
        strVon = findeFreienTag(m_zeitraumListe, zustand().umgebung.heute());
        strBis = strVon;
    } else {
        DTPickerBis.setzeDatum(datumAusText(istOffenesEnde(strBis) ? strVon : strBis).value_or(Datum{}));
    }
    DTPickerVon.setzeDatum(datumAusText(strVon).value_or(Datum{}));
    m_altVon = strVon;
    m_altBis = strBis;
    zeigeStufe();
}

void frmBetreuungZeitraum::zeigeStufe()
{
    const bool amEnde = m_stufe == Stufe::Ende;
    DTPickerVon.gibFrei(!amEnde);
    cmdVonVerbessern.zeige(amEnde);
    lblBis.zeige(amEnde);
    DTPickerBis.zeige(amEnde);
    zeigeEnde();
}

void frmBetreuungZeitraum::zeigeEnde()
{
    const bool amEnde = m_stufe == Stufe::Ende;
    const bool offen = istOffenesEnde(strBis);
    cmdIsOffen.zeige(amEnde && offen);
    cmdOffenEintragen.zeige(amEnde && !offen);
    DTPickerBis.gibFrei(!offen);
    DTPickerBis.streicheDurch(offen);
    if (amEnde) {
        setzeFokusAufsEnde();
    } else {
        setzeFokus(&DTPickerVon);
    }
}

/// An open end is taken with Return, as most of them are; a dated one is typed.
void frmBetreuungZeitraum::setzeFokusAufsEnde()
{
    setzeFokus(cmdIsOffen.istSichtbar() ? static_cast<Element*>(&cmdOK) : &DTPickerBis);
}

Nachbarn frmBetreuungZeitraum::nachbarn() const
{
    return {m_zeitraumListe, m_istNeu ? std::nullopt : std::optional<std::string_view>(m_altVon)};
}

void frmBetreuungZeitraum::beiOK()
{
    mitDatumsort(m_kernID, [this] {
        if (m_stufe == Stufe::Beginn) {
            übernimmVon();
        } else {
            übernimmBis();
        }
    });
}

void frmBetreuungZeitraum::übernimmVon()
{
    const std::string kandidat = DTPickerVon.text();
    if (!prüfeVon(nachbarn(), kandidat)) {
        zeigeMeldung("Das eingetragene Datum kann nicht angelegt werden.\n"
                     "Möglicherweise liegt es innerhalb eines schon angelegten Betreuungszeitraums.\n"
                     "Bitte geben Sie ein neues Datum an."_t,
                     Symbol::Warnung);
        setzeFokus(&DTPickerVon);
        return;
    }
    strVon = kandidat;
    if (m_istNeu) {
        strBis = "offen"_t;
    }
    m_stufe = Stufe::Ende;
    zeigeStufe();
}

void frmBetreuungZeitraum::übernimmBis()
{
    const std::string kandidat = cmdIsOffen.istSichtbar() ? std::string("offen"_t) : DTPickerBis.text();
    if (!prüfeBis(nachbarn(), strVon, kandidat)) {
        zeigeMeldung("Der eingegebene Zeitraum kann nicht angelegt werden.\n"
                     "Möglicherweise überlappt dieser Zeitraum einen schon angelegten.\n"
                     "Bitte korrigieren Sie die Angaben."_t,
                     Symbol::Warnung);
        setzeFokusAufsEnde();
        return;
    }
    strBis = kandidat;
    m_angenommen = true;
    zustand().folge.schließe(*this);
}

void frmBetreuungZeitraum::beiIsOffen()
{
    DTPickerBis.setzeDatum(DTPickerVon.datum());
    strBis = DTPickerBis.text();
    zeigeEnde();
}

void frmBetreuungZeitraum::beiOffenEintragen()
{
    strBis = "offen"_t;
    zeigeEnde();
}

void frmBetreuungZeitraum::beiVonVerbessern()
{
    strVon = m_altVon;
    strBis = m_altBis;
    setzeStufeEins();
}

void frmBetreuungZeitraum::beiExit()
{
    zeigeMeldung("Betreuungszeitraum wurde nicht verändert"_t);
    zustand().folge.schließe(*this);
}
