#include "import/moImp1TolvekToExport.h"

#include "import/Altfelder.h"
#include "import/Zeilenverzeichnis.h"
#include "platform/text/Datum.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/moHelferlein.h"

#include <string>

namespace {

constexpr auto unbekannt = "unbekannt"_t;

Datum leseAltdatum(std::string_view text, const std::filesystem::path& datei)
{
    const auto datum = leseDatum(text);
    if (!datum) {
        throw Laufzeitfehler(verbinde("\""_t, text, "\" in \""_t, pfadtext(datei), "\" ist kein Datum."_t));
    }
    return *datum;
}

std::string geburtsjahr(std::string_view geburt, const std::filesystem::path& datei)
{
    return klein(geburt) == unbekannt ? std::string(unbekannt) : alsText(leseAltdatum(geburt, datei).jahr);
}

/// Client lines without names; empty fields keep the others in their places.
void teileKlienten(const Eingabedatei& klienten, Schreiber& kernExp, Schreiber& extraExp)
{
    const std::string leereFelder(altfeld::klient::geburt - altfeld::klient::nummer, trenner);
    klienten.fürJedenSatz([&](std::string_view zeile) {
        const auto nummer = getFeld(zeile, altfeld::klient::nummer);
        klienten.leseNummer(nummer);
        kernExp.zeile(verbinde(
            nummer, leereFelder, geburtsjahr(getFeld(zeile, altfeld::klient::geburt), klienten.pfad()), trenner,
            getFeld(zeile, altfeld::klient::geschlecht), trenner, getFeld(zeile, altfeld::klient::nationalität)));
        extraExp.zeile(felder(zeile, altfeld::klient::nummer, altfeld::klient::anzahl));
    });
}

/// The last two digits of the year in which the days since birth end, counted from 30.12.1899: about the
/// completed years, and one less on a birthday. The value reaches no record.
std::string alterswert(std::string_view klient, std::string_view betreuung, const Eingabedatei& klienten,
                       const Eingabedatei& betreuungen)
{
    const auto geburt = getFeld(klient, altfeld::klient::geburt);
    if (geburt == unbekannt) {
        return std::string(unbekannt);
    }
    const auto geboren = leseAltdatum(geburt, klienten.pfad());
    const auto beginn = leseAltdatum(getFeld(betreuung, altfeld::betreuung::beginn), betreuungen.pfad());
    const int jahr = ausTageszahl(alsTageszahl(beginn) - alsTageszahl(geboren)).jahr;
    if (jahr < 100 || jahr > 9999) {
        throw Laufzeitfehler(verbinde("Von \""_t, geburt, "\" bis zum Betreuungsbeginn in \""_t,
                                      pfadtext(betreuungen.pfad()), "\" ist es zu weit."_t));
    }
    return verbinde(static_cast<char>('0' + jahr / 10 % 10), static_cast<char>('0' + jahr % 10));
}

void ergänzeBetreuungen(const Eingabedatei& betreuungen, const Eingabedatei& klienten, Schreiber& betreuungenExp)
{
    const Zeilenverzeichnis<std::string_view> verzeichnis(
        klienten, [](std::string_view zeile) { return getFeld(zeile, altfeld::klient::nummer); });
    betreuungen.fürJedenSatz([&](std::string_view zeile) {
        const auto nummer = getFeld(zeile, altfeld::betreuung::nummer);
        betreuungen.leseNummer(nummer);
        const auto klient = verzeichnis.findeOderLetzte(nummer);
        betreuungenExp.zeile(verbinde(zeile, trenner, alterswert(klient, zeile, klienten, betreuungen)));
    });
}

} // namespace

void moImp1TolvekToExport(Dateien& dateien, const std::filesystem::path& kernAlt,
                          const std::filesystem::path& betreuungenAlt, const std::filesystem::path& kernExp,
                          const std::filesystem::path& betreuungenExp, const std::filesystem::path& extraExp)
{
    const auto kern = dateien.schreibeNeu(kernExp);
    const auto betreuungenAus = dateien.schreibeNeu(betreuungenExp);
    const auto extra = dateien.schreibeNeu(extraExp);
    const Eingabedatei klienten(dateien, kernAlt);
    const Eingabedatei betreuungen(dateien, betreuungenAlt);
    teileKlienten(klienten, *kern, *extra);
    ergänzeBetreuungen(betreuungen, klienten, *betreuungenAus);
    for (const auto* aus : {&kern, &betreuungenAus, &extra}) {
        (*aus)->schließe();
    }
}
