#include "import/moimp2TolvekExportTOaltKDS.h"

#include "import/AltKDSZeile.h"
#include "import/Altfelder.h"
#include "import/Altnummer.h"
#include "import/Anweisungsdatei.h"
#include "import/Eingabedatei.h"
#include "platform/dateien/Dateien.h"
#include "platform/text/Datum.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/moHelferlein.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <unordered_map>

namespace {

constexpr auto ohneEintrag = "0"_t;
constexpr auto zwei = "2"_t;

/// The client's values that the core row needs; empty for a client that is missing.
struct Klientenwerte {
    std::string_view gebJahr;
    std::string_view geschl;
    std::string_view natio;
};

struct Codewort {
    std::string_view text;
    std::string_view code;
};
constexpr std::array geschlechter{Codewort{"Männlich"_t, "1"_t}, Codewort{"Weiblich"_t, "2"_t}};
constexpr std::array nationalitäten{Codewort{"Deutsche(r)"_t, "1"_t}, Codewort{"Bürger eines EU-Landes"_t, "2"_t},
                                    Codewort{"Sonstige"_t, "3"_t}};

template <std::size_t N> std::string_view codeVon(const std::array<Codewort, N>& liste, std::string_view text)
{
    const auto ort = std::find_if(liste.begin(), liste.end(), [&](const Codewort& w) { return w.text == text; });
    return ort == liste.end() ? ohneEintrag : ort->code;
}

class Klientenverzeichnis {
public:
    Klientenverzeichnis(Dateien& dateien, const std::filesystem::path& pfad) : m_datei(dateien, pfad)
    {
        m_datei.fürJedeZeile([this](std::string_view zeile) {
            m_werte.try_emplace(führendeZahl(zeile), Klientenwerte{getFeld(zeile, altfeld::klient::geburt),
                                                                   getFeld(zeile, altfeld::klient::geschlecht),
                                                                   getFeld(zeile, altfeld::klient::nationalität)});
        });
    }

    Klientenwerte werte(std::int64_t nummer) const
    {
        const auto ort = m_werte.find(nummer);
        return ort == m_werte.end() ? Klientenwerte{} : ort->second;
    }

private:
    Eingabedatei m_datei;
    std::unordered_map<std::int64_t, Klientenwerte> m_werte;
};

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
std::string_view alter(const Klientenwerte& klient, const Betreuungssatz& satz)
{
    const bool ohneJahr = klein(klient.gebJahr) == "unbekannt"_t || klient.gebJahr.empty() || klient.gebJahr == " ";
    if (ohneJahr || !istNichtNach(verbinde("01.07."_t, klient.gebJahr), satz.feld(altfeld::betreuung::beginn))) {
        return {};
    }
    return satz.feld(altfeld::betreuung::alter);
}

void baueKernzeile(AltKDSZeile& zeile, const Klientenwerte& klient, const Betreuungssatz& satz,
                   const std::vector<Spaltenanweisung>& anweisungen)
{
    for (int spalte = 1; spalte <= altspalte::kern::anzahl; ++spalte) {
        switch (spalte) {
        case altspalte::tsnr:
            zeile.wert(zwei);
            break;
        case altspalte::kern::geschlecht:
            zeile.wert(codeVon(geschlechter, klient.geschl));
            break;
        case altspalte::kern::alter:
            zeile.wert(alter(klient, satz));
            break;
        case altspalte::kern::nationalität:
            zeile.wert(codeVon(nationalitäten, klient.natio));
            break;
        default:
            zeile.führeAus(anweisungen[static_cast<std::size_t>(spalte - 1)], spalte);
        }
    }
}

/// Whether the digits of any group from `von` to `bis` hold something.
bool istEineBelegt(const Betreuungssatz& satz, int von, int bis)
{
    for (int gruppe = von; gruppe <= bis; ++gruppe) {
        if (!satz.istLeer(altfeld::betreuung::gruppe(gruppe))) {
            return true;
        }
    }
    return false;
}

std::string_view klassencode(const Betreuungssatz& satz, int spalte)
{
    const int feld = altfeld::betreuung::gruppe(altfeld::gruppe::f10 + spalte - altspalte::diag::f10);
    if (satz.istLeer(feld)) {
        return ohneEintrag;
    }
    return satz.feld(feld) == "10" ? "1"_t : zwei;
}

/// The columns of the diagnosis row that no instruction fills; nothing for the others.
std::optional<std::string_view> festeDiagnosespalte(const Betreuungssatz& satz, int spalte)
{
    const auto belegt = [&](int von, int bis) { return istEineBelegt(satz, von, bis) ? zwei : ohneEintrag; };
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

void baueDiagnosezeile(AltKDSZeile& zeile, const Betreuungssatz& satz, const std::vector<Spaltenanweisung>& anweisungen)
{
    for (int spalte = 1; spalte <= altspalte::diag::anzahl; ++spalte) {
        if (const auto wert = festeDiagnosespalte(satz, spalte)) {
            zeile.wert(*wert);
        } else {
            zeile.führeAus(anweisungen[static_cast<std::size_t>(spalte - 1)], spalte);
        }
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
    const Klientenverzeichnis klienten(dateien, kernExp);
    const Eingabedatei betreuungen(dateien, betreuungenExp);

    const auto kern =
        leseSpaltenanweisungen(dateien, anweisungsdatei(ort, kernanweisungsdatei), altspalte::kern::anzahl);
    const Zeitraumfelder zeitraum{kern[altspalte::kern::beginn - 1].quelle, kern[altspalte::kern::ende - 1].quelle};
    fürJedenSatz(ort.bestand, betreuungen, aKDSKern, zeitraum, [&](AltKDSZeile& zeile, const Betreuungssatz& satz) {
        baueKernzeile(zeile, klienten.werte(leseAltnummer(satz.feld(altfeld::betreuung::nummer), betreuungenExp)), satz,
                      kern);
    });

    const auto diagnose =
        leseSpaltenanweisungen(dateien, anweisungsdatei(ort, diagnoseanweisungsdatei), altspalte::diag::anzahl);
    fürJedenSatz(ort.bestand, betreuungen, aKDSDiagnose, zeitraum,
                 [&](AltKDSZeile& zeile, const Betreuungssatz& satz) { baueDiagnosezeile(zeile, satz, diagnose); });
}
