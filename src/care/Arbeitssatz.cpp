#include "care/Arbeitssatz.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/moHelferlein.h"

#include <array>

namespace {

/// A piece of the care record: the fields of one page.
struct Satzstück {
    std::string Arbeitskopie::*text;
    int von;
    int bis;
};

constexpr std::array<Satzstück, 6> betreuungsstücke{{
    {&Arbeitskopie::DSBetrHaupt, 5, 24},
    {&Arbeitskopie::DSBetrA, 25, 104},
    {&Arbeitskopie::DSBetrB, 105, 117},
    {&Arbeitskopie::DSBetrC, 118, 149},
    {&Arbeitskopie::DSBetrDiag, 150, 163},
    {&Arbeitskopie::DSBetrE, 164, 191},
}};

constexpr int feldMemoB = 192;
constexpr int ersteDiagnose = 3;
constexpr int letzteDiagnose = 247;
constexpr int feldMemoK = 11;

std::string alsSatzanfang(const Betreuungsschlüssel& schlüssel)
{
    return verbinde(alsText(schlüssel.kernID), trenner, alsText(schlüssel.betrID), trenner);
}

} // namespace

void zerlegeBetrDS(Arbeitskopie& kopie)
{
    for (const Satzstück& stück : betreuungsstücke) {
        kopie.*stück.text = felder(kopie.aktBetrDS, stück.von, stück.bis);
    }
    kopie.DSDiag = felder(kopie.aktDiagDS, ersteDiagnose, letzteDiagnose);
}

std::string memoBAus(std::string_view betrDS)
{
    return std::string(getFeld(betrDS, feldMemoB));
}

std::string memoKAus(std::string_view kernDS)
{
    return std::string(getFeld(kernDS, feldMemoK));
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
    return verbinde(felder(kernDS, 1, 2), betrao, trenner, felder(kernDS, 4, feldMemoK - 1), memoK);
}
