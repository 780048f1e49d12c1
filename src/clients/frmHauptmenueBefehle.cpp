#include "clients/frmHauptmenue.h"

#include "platform/text/Zahl.h"
#include "satz/Klientenfelder.h"
#include "satz/Satzgrenzen.h"
#include "satz/Zeilenfelder.h"
#include "store/Sicherungen.h"
#include "store/Vorgang.h"
#include "zustand/Zustand.h"

#include <optional>

// The commands of the main menu.

namespace {

void meldeNichtsVerändert(Symbol symbol = Symbol::Keins)
{
    zeigeMeldung("Nichts wurde verändert"_t, symbol);
}

/// The number behind the highest one. The tables compare keys as 16-bit numbers, so a higher one could be
/// written but never be read again.
std::optional<std::int32_t> nächsteNummer(std::int32_t höchste)
{
    if (höchste >= satzgrenze::höchsteNummer) {
        zeigeMeldung("Es kann keine weitere Nummer vergeben werden, nichts wird verändert"_t);
        return std::nullopt;
    }
    return höchste + 1;
}

bool nimmtVerlustDesImportsHin()
{
    return zeigeMeldung(
               "Durch die Anlage eines Klienten in die Datenbank verlieren Sie die Möglichkeit, die Daten aus dem "
               "'alten' Tolvek automatisch zu übernehmen.\r\nWollen Sie fortfahren ?"_t,
               Symbol::Warnung, Knöpfe::JaNein, Antwort::Nein) == Antwort::Ja;
}

} // namespace

void frmHauptmenü::fügeKlientenHinzu()
{
    if (lvwKlienten.istLeer() && !nimmtVerlustDesImportsHin()) {
        meldeNichtsVerändert();
        return;
    }
    if (const auto kernID = nächsteNummer(zustand().bestand.höchsteKernID())) {
        zeigeStammdaten(*kernID, true);
    }
}

void frmHauptmenü::bearbeiteKlienten()
{
    if (lvwKlienten.auswahl() == 0) {
        zeigeMeldung("Es gibt keinen Klienten, der bearbeitet werden könnte, nichts wird verändert"_t, Symbol::Info);
        return;
    }
    zeigeStammdaten(zustand().aktKernID, false);
}

void frmHauptmenü::zeigeStammdaten(std::int32_t kernID, bool istNeu)
{
    zustand().folge.öffneStatt(*this, m_stammdaten.neu(kernID, istNeu));
}

void frmHauptmenü::löscheKlienten()
{
    if (lvwKlienten.auswahl() == 0) {
        zeigeMeldung("Es sind keine Klienten angelegt"_t);
        return;
    }
    // after arrow keys the care list may still show the neighbour, whose episodes must not go
    beiKlientenKlick();
    const auto antwort = zeigeMeldung(verbinde("Soll der Klient: "_t, lvwKlienten.zelle(lvwKlienten.auswahl(), 1),
                                               "\r\nund alle seine Betreuungen wirklich gelöscht werden ?"_t),
                                      Symbol::Frage, Knöpfe::OKAbbrechen);
    if (antwort != Antwort::OK) {
        meldeNichtsVerändert(Symbol::Info);
        return;
    }
    löscheGewähltenKlienten();
}

void frmHauptmenü::löscheGewähltenKlienten()
{
    const auto kernID = zustand().aktKernID;
    Vorgang vorgang(zustand().bestand);
    for (std::size_t nummer = 1; nummer <= lvwBetreuungen.anzahl(); ++nummer) {
        const auto betrID = betrIDIn(nummer);
        vorgang.löscheBetrDS(kernID, betrID);
        vorgang.löscheDiagDS(kernID, betrID);
    }
    vorgang.löscheAllesVon(kernID);
    vorgang.löscheKernDS(gewählteKernID());
    vorgang.bestätige();
    zustand().aktKernID = 0;
    leseListen();
}

void frmHauptmenü::fügeBetreuungHinzu()
{
    if (lvwKlienten.auswahl() == 0) {
        zeigeMeldung("Bitte zuerst einen Klienten anlegen"_t, Symbol::Info);
        return;
    }
    if (const auto betrID = nächsteNummer(zustand().bestand.höchsteBetrID(zustand().aktKernID))) {
        zeigeBetreuung(*betrID, true);
    }
}

void frmHauptmenü::bearbeiteBetreuung()
{
    if (lvwBetreuungen.auswahl() == 0) {
        zeigeMeldung("Es gibt keine Betreuung, die bearbeitet werden könnte, nichts wird verändert"_t, Symbol::Info);
        return;
    }
    zeigeBetreuung(gewählteBetrID(), false);
}

void frmHauptmenü::zeigeBetreuung(std::int32_t betrID, bool istNeu)
{
    zustand().folge.öffneStatt(*this, m_betreuung.neu(zustand().aktKernID, betrID, istNeu));
}

void frmHauptmenü::löscheBetreuung()
{
    if (lvwBetreuungen.auswahl() == 0) {
        zeigeMeldung("Es gibt keine zu löschende Betreuung, nichts wird verändert"_t, Symbol::Info);
        return;
    }
    const auto kernID = zustand().aktKernID;
    const auto betrID = gewählteBetrID();
    const auto antwort = zeigeMeldung(verbinde("Soll Betreuung kernID: "_t, alsText(kernID), " betrID: "_t,
                                               alsText(betrID), " wirklich gelöscht werden ?"_t),
                                      Symbol::Frage, Knöpfe::OKAbbrechen);
    if (antwort != Antwort::OK) {
        meldeNichtsVerändert();
        return;
    }
    Vorgang vorgang(zustand().bestand);
    vorgang.löscheBetrDS(kernID, betrID);
    vorgang.löscheDiagDS(kernID, betrID);
    const auto status = vorgang.betrStatusVon(alsText(kernID));
    vorgang.ersetzeKernDS(kernID, ersetzeFeld(vorgang.getKernDS(kernID), feld::kern::betrao, status));
    vorgang.bestätige();
    leseListen();
}

void frmHauptmenü::verwerfeEingaben()
{
    const auto antwort =
        zeigeMeldung("Wollen Sie wirklich die Eingaben dieser Sitzung verwerfen und die Datenbank auf den "
                     "Zustand zurücksetzen, auf dem sie vor ihrem Aufruf war ?"_t,
                     Symbol::Frage, Knöpfe::JaNein, Antwort::Nein);
    if (antwort != Antwort::Ja) {
        meldeNichtsVerändert();
        return;
    }
    verwerfeSitzung(zustand().bestand);
    leseListen();
}

void frmHauptmenü::zeigeExport()
{
    zustand().folge.öffneÜber(*this, m_export.neu());
}

void frmHauptmenü::zeigeExcel()
{
    zustand().folge.entlade(*this);
    zustand().folge.öffneStatt(*this, m_excel.neu());
}

void frmHauptmenü::zeigeInfo()
{
    // the menu stays in use meanwhile, so the window may be there already
    const bool istOffen = m_info.da() != nullptr && zustand().folge.istGeladen(*m_info.da());
    zustand().folge.zeige(istOffen ? *m_info.da() : m_info.neu());
}

void frmHauptmenü::beende()
{
    zustand().folge.entlade(*this);
    m_aufräumen();
}
