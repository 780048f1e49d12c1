#include "clients/frmMemo.h"

#include "platform/text/Zahl.h"
#include "satz/Klientenfelder.h"
#include "satz/Satzgrenzen.h"
#include "satz/Zeilenfelder.h"
#include "zustand/Zustand.h"

#include <algorithm>

namespace {

constexpr char absatzzeichen = '\xB6';

} // namespace

frmMemo::frmMemo(bool zeigeMemoB) : Bildschirm("frmMemo"_t), m_zeigeMemoB(zeigeMemoB)
{
    using namespace anordnung;
    kopfband.titel = &lblHeader;
    aufbau = spalte({füllend(karte("Klientenebene:"_t, füllend(element(tbMemoK)))),
                     füllend(karte("Betreuungenebene:"_t, füllend(stapel({element(tbMemoB), element(cmdDummy)}))))});
    leiste.rechts = {&cmdOK, &cmdExit};
    istKindfenster = true;
    breiteEm = 40;
    beiEscape = &cmdExit;

    cmdOK.beiKlick = [this] { beiOK(); };
    cmdExit.beiKlick = [this] { beiExit(); };
}

void frmMemo::beiÖffnung()
{
    setzeTitel(verbinde(zustand().titel, " - Memo"_t));
    tbMemoK.setzeText(alsAnzeigeform(zustand().memoKText));
    tbMemoB.setzeText(alsAnzeigeform(zustand().memoBText));
    const auto& klient = zustand().arbeitskopie.aktKernDS;
    lblHeader.setzeText(
        verbinde("memo: "_t, getFeld(klient, feld::kern::vorname), ' ', getFeld(klient, feld::kern::nachname)));
    cmdDummy.zeige(m_zeigeMemoB);
    tbMemoB.zeige(!m_zeigeMemoB);
}

void frmMemo::beiEntladen()
{
    zustand().umgebung.lasseEreignisseZu();
}

void frmMemo::beiOK()
{
    const auto memoK = alsSpeicherform(tbMemoK.text());
    const auto memoB = alsSpeicherform(tbMemoB.text());
    if (memoK.find(trenner) != std::string::npos || memoB.find(trenner) != std::string::npos) {
        zeigeMeldung(verbinde("Es ist das Zeichen >"_t, trenner, "< nicht erlaubt. Bitte korrigieren"_t));
        return;
    }
    if (std::max(memoK.size(), memoB.size()) > satzgrenze::memolänge) {
        zeigeMeldung(verbinde("Das Memo ist zu lang. Erlaubt sind "_t, alsText(satzgrenze::memolänge),
                              " Zeichen. Bitte kürzen"_t));
        return;
    }
    zustand().memoKText = memoK;
    zustand().memoBText = memoB;
    zustand().folge.schließe(*this);
}

void frmMemo::beiExit()
{
    const bool istGeändert = alsSpeicherform(tbMemoK.text()) != zustand().memoKText ||
                             alsSpeicherform(tbMemoB.text()) != zustand().memoBText;
    if (istGeändert &&
        zeigeMeldung("Veränderungen werden verworfen"_t, Symbol::Info, Knöpfe::OKAbbrechen) != Antwort::OK) {
        return;
    }
    zustand().folge.schließe(*this);
}

std::string alsAnzeigeform(std::string_view gespeichert)
{
    return ersetzt(gespeichert, std::string_view(&absatzzeichen, 1), "\r\n"_t);
}

std::string alsSpeicherform(std::string_view angezeigt)
{
    std::string gespeichert(angezeigt);
    std::erase(gespeichert, '\n');
    std::replace(gespeichert.begin(), gespeichert.end(), '\r', absatzzeichen);
    return gespeichert;
}
