#include "care/Arbeitssatz.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"
#include "satz/Zeilenfelder.h"

#include <array>

namespace {

/// A piece of the care record: the fields of one page, up to the next piece.
struct Satzstück {
    std::string Arbeitskopie::*text;
    int von;
};

constexpr std::array<Satzstück, 6> betreuungsstücke{{
    {&Arbeitskopie::DSBetrHaupt, feld::betr::wieder},
    {&Arbeitskopie::DSBetrA, feld::betr::substitut},
    {&Arbeitskopie::DSBetrB, feld::betr::famSta},
    {&Arbeitskopie::DSBetrC, feld::betr::lebUntV},
    {&Arbeitskopie::DSBetrDiag, feld::betr::hdOhne},
    {&Arbeitskopie::DSBetrE, feld::betr::kontakte},
}};

std::string alsSatzanfang(const Betreuungsschlüssel& schlüssel)
{
    return verbinde(alsText(schlüssel.kernID), trenner, alsText(schlüssel.betrID), trenner);
}

} // namespace

void zerlegeBetrDS(Arbeitskopie& kopie)
{
    int dahinter = feld::betr::memo;
    for (auto stück = betreuungsstücke.rbegin(); stück != betreuungsstücke.rend(); ++stück) {
        kopie.*stück->text = felder(kopie.aktBetrDS, stück->von, dahinter - 1);
        dahinter = stück->von;
    }
    kopie.DSDiag = felder(kopie.aktDiagDS, feld::diag::ersteAntwort, feld::diag::anzahl);
}

std::string memoBAus(std::string_view betrDS)
{
    return std::string(getFeld(betrDS, feld::betr::memo));
}

std::string memoKAus(std::string_view kernDS)
{
    return std::string(getFeld(kernDS, feld::kern::memo));
}

std::string baueBetrDS(const Betreuungsschlüssel& schlüssel, std::string_view von, std::string_view bis,
                       const Arbeitskopie& kopie, std::string_view memoB)
{
    std::string satz = verbinde(alsSatzanfang(schlüssel), von, trenner, bis, trenner);
    for (const Satzstück& stück : betreuungsstücke) {
        satz += kopie.*stück.text;
    }
    satz += memoB;
    return satz;
}

std::string baueDiagDS(const Betreuungsschlüssel& schlüssel, const Arbeitskopie& kopie)
{
    return alsSatzanfang(schlüssel) + kopie.DSDiag;
}

std::string baueKernDS(std::string_view kernDS, std::string_view betrao, std::string_view memoK)
{
    return verbinde(felder(kernDS, feld::kern::leer, feld::kern::kernID), betrao, trenner,
                    felder(kernDS, feld::kern::nachname, feld::kern::geburtsdatum), memoK);
}
