#include "import/moimp2TolvekExportTOaltKDS.h"

#include "import/AltKDSZeile.h"
#include "import/Altfelder.h"
#include "import/Anweisungsdatei.h"
#include "import/Zeilenverzeichnis.h"
#include "platform/dateien/Dateien.h"
#include "platform/text/Datum.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Wertelisten.h"
#include "satz/moHelferlein.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace {

constexpr auto ohneEintrag = "0"_t;
constexpr auto zwei = "2"_t;

constexpr std::array geschlechter{Wertepaar{"Männlich"_t, "1"_t}, Wertepaar{"Weiblich"_t, zwei}};
constexpr std::array nationalitäten{Wertepaar{"Deutsche(r)"_t, "1"_t}, Wertepaar{"Bürger eines EU-Landes"_t, zwei},
                                    Wertepaar{"Sonstige"_t, "3"_t}};

std::string_view codeVon(Werteliste liste, std::string_view text)
{
    const auto* code = werte::codeZu(liste, text);
    return code == nullptr ? ohneEintrag : *code;
}

/// Day, month, year; a year of two digits as the older core data set took it.
std::optional<Datum> leseDatumDesAltKDS(std::string_view text)
{
    const auto teil = [&](int nummer) { return getFeld(text, nummer, '.'); };
    const auto tag = leseGanzzahl16(teil(1));
    const auto monat = leseGanzzahl16(teil(2));
    const auto jahr = leseGanzzahl16(teil(3));
    if (std::count(text.begin(), text.end(), '.') != 2 || !tag || !monat || !jahr || *jahr < 0) {
        return std::nullopt;
    }
    constexpr int erstesJahrImAltenJahrhundert = 66;
    const int jahrhundert = *jahr >= 100 ? 0 : (*jahr >= erstesJahrImAltenJahrhundert ? 1900 : 2000);
    const Datum datum{*jahr + jahrhundert, *monat, *tag};
    return istTagImKalender(datum) ? std::optional(datum) : std::nullopt;
}

/// The age value, unless the client is born behind the begin by its year alone: the first of July stands for
/// the unknown day.
std::string_view alter(std::string_view klient, const Betreuungssatz& satz)
{
    const auto jahr = getFeld(klient, altfeld::klient::geburt);
    const bool ohneJahr = klein(jahr) == "unbekannt"_t || jahr.empty() || jahr == " ";
    if (ohneJahr || !istNichtNach(verbinde("01.07."_t, jahr), satz.feld(altfeld::betreuung::beginn))) {
        return {};
    }
    return satz.feld(altfeld::betreuung::alter);
}

/// A column that no instruction fills; nothing for the others. An episode without client has an empty line for it.
std::optional<std::string_view> festeKernspalte(std::string_view klient, const Betreuungssatz& satz, int spalte)
{
    switch (spalte) {
    case altspalte::tsnr:
        return zwei;
    case altspalte::kern::geschlecht:
        return codeVon(geschlechter, getFeld(klient, altfeld::klient::geschlecht));
    case altspalte::kern::alter:
        return alter(klient, satz);
    case altspalte::kern::nationalität:
        return codeVon(nationalitäten, getFeld(klient, altfeld::klient::nationalität));
    default:
        return std::nullopt;
    }
}

std::string_view klassencode(const Betreuungssatz& satz, int spalte)
{
    const int feld = altfeld::betreuung::gruppe(altfeld::gruppe::f10 + spalte - altspalte::diag::f10);
    if (satz.istLeer(feld)) {
        return ohneEintrag;
    }
    return satz.feld(feld) == "10" ? "1"_t : zwei;
}

/// The same for the diagnosis row.
std::optional<std::string_view> festeDiagnosespalte(const Betreuungssatz& satz, int spalte)
{
    const auto belegt = [&](int von, int bis) { // whether the digits of any group hold something
        bool eine = false;
        for (int gruppe = von; gruppe <= bis; ++gruppe) {
            eine = eine || !satz.istLeer(altfeld::betreuung::gruppe(gruppe));
        }
        return eine ? zwei : ohneEintrag;
    };
    if (spalte >= altspalte::diag::f10 && spalte <= altspalte::diag::f19) {
        return klassencode(satz, spalte);
    }
    switch (spalte) {
    case altspalte::tsnr:
        return zwei;
    case altspalte::diag::f50:
        return belegt(altfeld::gruppe::f50, altfeld::gruppe::f50);
    case altspalte::diag::f55:
        return belegt(altfeld::gruppe::f550, altfeld::gruppe::f558);
    case altspalte::diag::f63:
        return belegt(altfeld::gruppe::f630, altfeld::gruppe::f630);
    default:
        return std::nullopt;
    }
}

/// The facility's own file goes before the one that the installation brings.
std::filesystem::path anweisungsdatei(const Importort& ort, const std::filesystem::path& name)
{
    auto& dateien = ort.bestand.dateien();
    const auto eigene = ort.programm / name;
    const auto mitgebrachte = ort.installation / name;
    return !dateien.istDatei(eigene) && dateien.istDatei(mitgebrachte) ? mitgebrachte : eigene;
}

/// The columns that `feste` knows, all others by their instructions.
template <class F> void baueZeile(AltKDSZeile& zeile, const std::vector<Spaltenanweisung>& anweisungen, F feste)
{
    for (int spalte = 1; const auto& anweisung : anweisungen) {
        if (const std::optional<std::string_view> wert = feste(spalte)) {
            zeile.wert(*wert);
        } else {
            zeile.führeAus(anweisung, spalte);
        }
        ++spalte;
    }
}

/// One pass over the care lines: each becomes the row that `baue` makes of it.
void fürJedenSatz(const Bestand& bestand, const Eingabedatei& betreuungen, const std::filesystem::path& ziel,
                  Zeitraumfelder zeitraum, const std::function<void(AltKDSZeile&, const Betreuungssatz&)>& baue)
{
    const auto aus = bestand.dateien().schreibeNeu(ziel);
    Betreuungssatz satz;
    AltKDSZeile zeile(satz, zeitraum, bestand.meldung());
    betreuungen.fürJedeZeile([&](std::string_view text) {
        satz.lies(text);
        zeile.beginne();
        baue(zeile, satz);
        aus->zeile(zeile.text());
    });
    aus->schließe();
}

} // namespace

bool istNichtNach(std::string_view a, std::string_view b)
{
    constexpr auto verboten = "/,"_t;
    if (a.find_first_of(verboten) != std::string_view::npos || b.find_first_of(verboten) != std::string_view::npos) {
        return false;
    }
    const auto erstes = leseDatumDesAltKDS(a);
    const auto zweites = leseDatumDesAltKDS(b);
    return erstes && zweites && *erstes <= *zweites;
}

void moimp2TolvekExportTOaltKDS(const Importort& ort, const std::filesystem::path& kernExp,
                                const std::filesystem::path& betreuungenExp, const std::filesystem::path& aKDSKern,
                                const std::filesystem::path& aKDSDiagnose)
{
    auto& dateien = ort.bestand.dateien();
    const Eingabedatei klienten(dateien, kernExp);
    const Eingabedatei betreuungen(dateien, betreuungenExp);
    const Zeilenverzeichnis<std::int64_t> klientenzeilen(klienten, führendeZahl);

    const auto kern =
        leseSpaltenanweisungen(dateien, anweisungsdatei(ort, kernanweisungsdatei), altspalte::kern::anzahl);
    const Zeitraumfelder zeitraum{kern[altspalte::kern::beginn - 1].quelle, kern[altspalte::kern::ende - 1].quelle};
    fürJedenSatz(ort.bestand, betreuungen, aKDSKern, zeitraum, [&](AltKDSZeile& zeile, const Betreuungssatz& satz) {
        const auto klient = klientenzeilen.finde(betreuungen.leseNummer(satz.feld(altfeld::betreuung::nummer)));
        baueZeile(zeile, kern, [&](int spalte) { return festeKernspalte(klient, satz, spalte); });
    });

    const auto diagnose =
        leseSpaltenanweisungen(dateien, anweisungsdatei(ort, diagnoseanweisungsdatei), altspalte::diag::anzahl);
    fürJedenSatz(ort.bestand, betreuungen, aKDSDiagnose, zeitraum, [&](AltKDSZeile& zeile, const Betreuungssatz& satz) {
        baueZeile(zeile, diagnose, [&](int spalte) { return festeDiagnosespalte(satz, spalte); });
    });
}
