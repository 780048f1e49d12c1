#include "clients/frmHauptmenue.h"

#include "clients/Listenzeilen.h"
#include "platform/text/Zahl.h"
#include "store/Sicherungen.h"
#include "zustand/Zustand.h"

#include <utility>

namespace {

/// A list with the buttons of its commands below it, the deleting one apart.
Anordnung listenkarte(std::string_view titel, Anordnung liste, Schaltfläche& hinzufügen, Schaltfläche& bearbeiten,
                      Schaltfläche& löschen)
{
    using namespace anordnung;
    return füllend(karte(titel, spalte({füllend(std::move(liste)), zeile({element(hinzufügen), element(bearbeiten),
                                                                          dehnung(), element(löschen)})})));
}

/// The id in a cell of a row; 0 without a row.
std::int32_t idAus(const Liste& liste, std::size_t nummer, std::size_t spalte)
{
    return nummer == 0 ? 0 : static_cast<std::int32_t>(führendeZahl(liste.zelle(nummer, spalte)));
}

} // namespace

frmHauptmenü::frmHauptmenü(std::function<void()> aufräumen)
    : Bildschirm("frmHauptmenü"_t), m_aufräumen(std::move(aufräumen))
{
    setzeTitel(verbinde(zustand().titel, " - Hauptmenü"_t));
    baueMenü();
    ordneAn();
    verbindeRegeln();
}

void frmHauptmenü::baueMenü()
{
    menü = {{.titel = &mnDatei, .einträge = {&mnHandakte, &mnExcel, &mnBeenden}},
            {.titel = &Export, .einträge = {&mnExport}},
            {.titel = &mnFragezeichen, .einträge = {&mnInfo}}};
    mnExcel.beiKlick = [this] { zeigeExcel(); };
    mnBeenden.beiKlick = [this] { beende(); };
    mnExport.beiKlick = [this] { zeigeExport(); };
    mnInfo.beiKlick = [this] { zeigeInfo(); };
}

void frmHauptmenü::ordneAn()
{
    using namespace anordnung;
    kopfband.titel = &lblHeader;
    // lists fill the page: wider than a card of fields, also on a wide screen
    constexpr double breiteDerKlienten = 66;
    constexpr double breiteDerBetreuungen = 42;
    // and at least so wide that heads, numbers and dates are whole
    constexpr double listeDerKlienten = 27;
    constexpr double listeDerBetreuungen = 18;
    auto klienten = spalte({listenkarte("Klienten"_t, element(lvwKlienten, listeDerKlienten), cmdKlientenHinzufügen,
                                        cmdKlientenBearbeiten, cmdKlientenLöschen)});
    auto betreuungen =
        spalte({listenkarte("Betreuungen des ausgewählten Klienten"_t, element(lvwBetreuungen, listeDerBetreuungen),
                            cmdBetreuungHinzufügen, cmdBetreuungBearbeiten, cmdBetreuungLöschen)});
    aufbau =
        karten({breit(std::move(klienten), breiteDerKlienten), breit(std::move(betreuungen), breiteDerBetreuungen)});
    // no Escape: leaving the program by one stray key would cost the rollback
    leiste = {.links = {&cmdRollback, &cmdDatenübernahme}, .rechts = {&cmdExit}};
}

void frmHauptmenü::verbindeRegeln()
{
    lvwKlienten.beiKlick = [this] { beiKlientenKlick(); };
    lvwKlienten.beiDoppelklick = [this] { bearbeiteKlienten(); };
    lvwKlienten.beiKopfklick = [this](std::size_t spalte) { lvwKlienten.sortiereNach(spalte); };
    lvwKlienten.beiTastendruck = [this](const Taste& taste) { return beiKlientenTaste(taste); };
    lvwBetreuungen.beiKlick = [this] { beiBetreuungsKlick(); };
    lvwBetreuungen.beiDoppelklick = [this] { bearbeiteBetreuung(); };

    cmdKlientenHinzufügen.beiKlick = [this] { fügeKlientenHinzu(); };
    cmdKlientenBearbeiten.beiKlick = [this] { bearbeiteKlienten(); };
    cmdKlientenLöschen.beiKlick = [this] { löscheKlienten(); };
    cmdBetreuungHinzufügen.beiKlick = [this] { fügeBetreuungHinzu(); };
    cmdBetreuungBearbeiten.beiKlick = [this] { bearbeiteBetreuung(); };
    cmdBetreuungLöschen.beiKlick = [this] { löscheBetreuung(); };
    cmdRollback.beiKlick = [this] { verwerfeEingaben(); };
    cmdDatenübernahme.beiKlick = [this] { zustand().folge.öffneStatt(*this, m_datenÜbernahme.neu()); };
    cmdExit.beiKlick = [this] { beende(); };
}

void frmHauptmenü::beiAktivierung()
{
    if (!zustand().sitzungGesichert) {
        sichereDateien(zustand().bestand);
        zustand().aktKernID = 0;
        zustand().sitzungGesichert = true;
    }
    leseListen();
}

void frmHauptmenü::leseListen()
{
    fülleKlientenListe();
    wähleAktuellenKlienten();
    if (lvwKlienten.istLeer()) {
        fülleBetreuungsListe(-1);
    }
    if (zustand().aktKernID != 0) {
        fülleBetreuungsListe(zustand().aktKernID);
    }
    cmdDatenübernahme.zeige(lvwKlienten.istLeer());
}

void frmHauptmenü::fülleKlientenListe()
{
    lvwKlienten.setzeZeilen(klientenzeilen());
}

void frmHauptmenü::wähleAktuellenKlienten()
{
    auto& aktKernID = zustand().aktKernID;
    if (aktKernID == 0 && !lvwKlienten.istLeer()) {
        aktKernID = idAus(lvwKlienten, 1, 1);
    }
    for (std::size_t nummer = 1; nummer <= lvwKlienten.anzahl(); ++nummer) {
        if (idAus(lvwKlienten, nummer, 1) == aktKernID) {
            lvwKlienten.wähleUndZeige(nummer);
            return;
        }
    }
}

void frmHauptmenü::fülleBetreuungsListe(std::int32_t kernID)
{
    lvwBetreuungen.setzeZeilen(betreuungszeilen(kernID));
    lvwBetreuungen.wähleUndZeige(lvwBetreuungen.anzahl());
    zustand().aktBetrID = gewählteBetrID();
}

void frmHauptmenü::beiKlientenKlick()
{
    if (lvwKlienten.auswahl() == 0) {
        return;
    }
    lvwKlienten.wähleUndZeige(lvwKlienten.auswahl());
    zustand().aktKernID = gewählteKernID();
    fülleBetreuungsListe(zustand().aktKernID);
}

bool frmHauptmenü::beiKlientenTaste(const Taste& taste)
{
    // the click handling sees the row that is left, so the care list follows one step behind
    if (taste.art == Taste::Art::Auf || taste.art == Taste::Art::Ab) {
        beiKlientenKlick();
        return false;
    }
    return true; // a letter must not jump in the list
}

void frmHauptmenü::beiBetreuungsKlick()
{
    if (lvwBetreuungen.auswahl() != 0) {
        zustand().aktBetrID = gewählteBetrID();
    }
}

std::int32_t frmHauptmenü::gewählteKernID() const
{
    return idAus(lvwKlienten, lvwKlienten.auswahl(), 1);
}

std::int32_t frmHauptmenü::gewählteBetrID() const
{
    return betrIDIn(lvwBetreuungen.auswahl());
}

std::int32_t frmHauptmenü::betrIDIn(std::size_t zeile) const
{
    return idAus(lvwBetreuungen, zeile, 2);
}
