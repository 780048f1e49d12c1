// The listing of the diagnosis page: its rows, their mark, and scrolling.

#include "diagnosis/frmBetrDiagnose.h"
#include "satz/Diagnosesatz.h"
#include "satz/Zeilenfelder.h"
#include "zustand/Zustand.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace {

/// The last row that the search for the mark looks at: rows 16 to 30 can be marked, but neither edited nor
/// deleted. A deliberate limit.
constexpr int letzteMarkierbare = 15;

} // namespace

bool Listungsleiste::taste(const Taste& taste)
{
    if (taste.art == Taste::Art::Zeichen && taste.zeichen == ' ' && beiLeertaste) {
        beiLeertaste();
        return true;
    }
    return Bildlaufleiste::taste(taste);
}

void frmBetrDiagnose::setzeRollbereich()
{
    const double höhe = frameVorne.höhe();
    const double überstand = std::max(0.0, höhe - frameHinten.höhe());
    VScroll1.setzeBereich(0, static_cast<int>(std::floor(überstand)) + 1, static_cast<int>(höhe / letzteZeile),
                          static_cast<int>(höhe * 7 / letzteZeile));
}

void frmBetrDiagnose::zeigeDiagnosen()
{
    const std::string& satz = zustand().arbeitskopie.DSDiag;
    const auto zeigeGruppe = [&](int zeile, int gruppe) {
        schreibeZeile(zeile, verbinde(aryProblem.at(static_cast<std::size_t>(gruppe)), trenner,
                                      zerlegeDSDiag(satz, gruppe).block));
    };
    const int hauptgruppe = getHDGruppenNr(satz);
    if (hauptgruppe < 1) {
        schreibeZeile(0, {});
    } else {
        zeigeGruppe(0, hauptgruppe);
    }
    int zeile = 0;
    for (const int gruppe : vorhandeneGruppen(satz)) {
        if (gruppe != hauptgruppe) {
            zeigeGruppe(++zeile, gruppe);
        }
    }
    while (++zeile <= letzteZeile) {
        schreibeZeile(zeile, {});
    }
    markiereZeile(-1);
}

void frmBetrDiagnose::schreibeZeile(int zeile, std::string_view text)
{
    for (int spalte = 1; auto* beschriftungen : m_spalten) {
        (*beschriftungen)(zeile).setzeText(getFeld(text, spalte++));
    }
}

std::string frmBetrDiagnose::leseZeile(int zeile) const
{
    std::string ergebnis;
    for (const Elementreihe<Beschriftung>* beschriftungen : m_spalten) {
        ergebnis += verbinde((*beschriftungen)(zeile).text(), trenner);
    }
    return ergebnis;
}

/// The colour of a row is its mark. Rows behind `letzteMarkierbare` keep theirs until the page closes.
void frmBetrDiagnose::markiereZeile(int zeile)
{
    const auto färbe = [this](int z, Beschriftung::Zeilenart art) {
        for (Elementreihe<Beschriftung>* beschriftungen : m_spalten) {
            (*beschriftungen)(z).setzeZeilenart(art);
        }
    };
    färbe(0, Beschriftung::Zeilenart::Hauptdiagnose);
    for (int z = 1; z <= letzteMarkierbare; ++z) {
        färbe(z, Beschriftung::Zeilenart::Gewöhnlich);
    }
    if (zeile >= 0) {
        färbe(zeile, Beschriftung::Zeilenart::Markiert);
    }
}

int frmBetrDiagnose::getMarkierteZeile() const
{
    for (int zeile = 0; zeile <= letzteMarkierbare; ++zeile) {
        if (lblProblem(zeile).zeilenart() == Beschriftung::Zeilenart::Markiert) {
            return zeile;
        }
    }
    return -1;
}

bool frmBetrDiagnose::istLeereZeile(int zeile) const
{
    return leseZeile(zeile) == std::string(spaltenzahl, trenner);
}

void frmBetrDiagnose::beiZeilenklick(int zeile)
{
    if (!istLeereZeile(zeile)) {
        markiereZeile(zeile);
    }
}

/// For those who work without a mouse: the next row that can be edited or deleted, round and round.
void frmBetrDiagnose::markiereNächsteZeile()
{
    int zeile = getMarkierteZeile();
    for (int schritt = 0; schritt <= letzteMarkierbare; ++schritt) {
        zeile = (zeile + 1) % (letzteMarkierbare + 1);
        if (!istLeereZeile(zeile)) {
            markiereZeile(zeile);
            rolleZu(zeile);
            return;
        }
    }
}

/// Row 0 stands still, the others move.
void frmBetrDiagnose::rolleZu(int zeile)
{
    const double unten = frameVorne.höhe() / letzteZeile * zeile;
    const double oben = unten - frameVorne.höhe() / letzteZeile;
    if (zeile > 0 && VScroll1.wert() > oben) {
        VScroll1.setzeWert(static_cast<int>(std::floor(oben)));
    } else if (zeile > 0 && VScroll1.wert() + frameHinten.höhe() < unten) {
        VScroll1.setzeWert(static_cast<int>(std::ceil(unten - frameHinten.höhe())));
    }
}
