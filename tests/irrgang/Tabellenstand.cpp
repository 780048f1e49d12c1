#include "Tabellenstand.h"

#include "ablauf/Programmdateien.h"

#include "platform/text/Datum.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"

#include <iterator>
#include <optional>

namespace {

constexpr int höchsteNummer = 32767;
constexpr std::size_t klientenfelderzahl = 11;
constexpr std::size_t betreuungsfelderzahl = 192;
constexpr std::size_t diagnosefelderzahl = 247;

std::vector<std::string> zeilenVon(std::string_view inhalt, std::string_view tabelle, Verstöße& verstöße)
{
    std::vector<std::string> zeilen;
    while (!inhalt.empty()) {
        const auto ende = inhalt.find("\r\n");
        if (ende == std::string_view::npos) {
            verstöße.push_back(verbinde(tabelle, ": die letzte Zeile hat kein Zeilenende"_t));
            return zeilen;
        }
        zeilen.emplace_back(inhalt.substr(0, ende));
        if (zeilen.back().find_first_of("\r\n") != std::string::npos) {
            verstöße.push_back(verbinde(tabelle, ": ein Zeilenumbruch mitten in "_t, zeilen.back()));
        }
        inhalt.remove_prefix(ende + 2);
    }
    return zeilen;
}

/// The key in the field (from 0), 0 when it is none.
int schlüssel(const std::vector<std::string_view>& felder, std::size_t feld)
{
    const auto zahl = feld < felder.size() ? leseGanzzahl32(felder[feld]) : std::nullopt;
    return zahl && *zahl >= 1 && *zahl <= höchsteNummer ? *zahl : 0;
}

constexpr auto keinSchlüssel = "kein Schlüssel: "_t; // Clang 14 loses literals inside templates
constexpr auto doppelterSchlüssel = "doppelter Schlüssel: "_t;

template <class S>
void nimmAuf(std::map<S, std::string>& sätze, const S& nummer, bool gültig, const std::string& zeile,
             Verstöße& verstöße)
{
    if (!gültig) {
        verstöße.push_back(verbinde(keinSchlüssel, zeile));
    } else if (!sätze.emplace(nummer, zeile).second) {
        verstöße.push_back(verbinde(doppelterSchlüssel, zeile));
    }
}

void nimmSätzeAuf(std::map<Betreuungsschlüssel, std::string>& sätze, std::string_view inhalt, std::string_view tabelle,
                  Verstöße& verstöße)
{
    for (const auto& zeile : zeilenVon(inhalt, tabelle, verstöße)) {
        const auto felder = felderVon(zeile);
        const Betreuungsschlüssel nummer{schlüssel(felder, 0), schlüssel(felder, 1)};
        nimmAuf(sätze, nummer, nummer.first > 0 && nummer.second > 0, zeile, verstöße);
    }
}

void prüfe(bool gut, std::string_view was, std::string_view zeile, Verstöße& verstöße)
{
    if (!gut) {
        verstöße.push_back(verbinde(was, ": "_t, zeile));
    }
}

/// The field (from 0), empty beyond the last.
std::string_view feldVon(std::string_view satz, std::size_t feld)
{
    const auto felder = felderVon(satz);
    return feld < felder.size() ? felder[feld] : std::string_view();
}

struct Zeitraum {
    Datum von;
    Datum bis;
};

/// Nothing where the record holds no dates (older data can).
std::optional<Zeitraum> zeitraumVon(std::string_view betreuung)
{
    const auto von = leseDatum(feldVon(betreuung, 2));
    const auto ende = feldVon(betreuung, 3);
    const auto bis = ende == "offen"_t ? std::optional(Datum{10000, 1, 1}) : leseDatum(ende);
    return von && bis ? std::optional(Zeitraum{*von, *bis}) : std::nullopt;
}

bool teilenTag(std::string_view eine, std::string_view andere)
{
    const auto a = zeitraumVon(eine);
    const auto b = zeitraumVon(andere);
    return a && b && a->von <= b->bis && b->von <= a->bis;
}

} // namespace

std::vector<std::string_view> felderVon(std::string_view satz)
{
    std::vector<std::string_view> felder;
    for (auto ort = satz.find(trenner); ort != std::string_view::npos; ort = satz.find(trenner)) {
        felder.push_back(satz.substr(0, ort));
        satz.remove_prefix(ort + 1);
    }
    felder.push_back(satz);
    return felder;
}

Tabellenstand liesTabellen(const std::filesystem::path& daten, const std::string& endung, Verstöße& verstöße)
{
    Tabellenstand stand;
    stand.kern = liesDatei(daten / ("kernDat" + endung));
    stand.betr = liesDatei(daten / ("betrDat" + endung));
    stand.diag = liesDatei(daten / ("diagDat" + endung));
    for (const auto& zeile : zeilenVon(stand.kern, "kernDat"_t, verstöße)) {
        const int nummer = schlüssel(felderVon(zeile), 1);
        nimmAuf(stand.klienten, nummer, nummer > 0, zeile, verstöße);
    }
    nimmSätzeAuf(stand.betreuungen, stand.betr, "betrDat"_t, verstöße);
    nimmSätzeAuf(stand.diagnosen, stand.diag, "diagDat"_t, verstöße);
    return stand;
}

bool liegenDa(const Tabellenstand& stand, const std::filesystem::path& daten, const std::string& endung)
{
    return liesDatei(daten / ("kernDat" + endung)) == stand.kern &&
           liesDatei(daten / ("betrDat" + endung)) == stand.betr &&
           liesDatei(daten / ("diagDat" + endung)) == stand.diag;
}

void prüfeAufbau(const Tabellenstand& stand, Verstöße& verstöße)
{
    for (const auto& [nummer, zeile] : stand.klienten) {
        const auto felder = felderVon(zeile);
        // the form writes 11; an imported record may have its delimiter behind the last one
        prüfe(felder.size() == klientenfelderzahl || felder.size() == klientenfelderzahl + 1, "Felderzahl"_t, zeile,
              verstöße);
        prüfe(felder.front().empty(), "Feld 1 ist nicht leer"_t, zeile, verstöße);
    }
    for (const auto& [nummer, zeile] : stand.betreuungen) {
        const auto zeitraum = zeitraumVon(zeile);
        prüfe(felderVon(zeile).size() == betreuungsfelderzahl, "Felderzahl"_t, zeile, verstöße);
        prüfe(!zeitraum || zeitraum->von <= zeitraum->bis, "Ende vor Beginn"_t, zeile, verstöße);
        prüfe(stand.diagnosen.contains(nummer), "keine Diagnose zu"_t, zeile, verstöße);
        prüfe(stand.klienten.contains(nummer.first), "kein Klient zu"_t, zeile, verstöße);
    }
    for (const auto& [nummer, zeile] : stand.diagnosen) {
        prüfe(felderVon(zeile).size() >= diagnosefelderzahl, "Felderzahl"_t, zeile, verstöße);
        prüfe(stand.betreuungen.contains(nummer), "keine Betreuung zu"_t, zeile, verstöße);
    }
}

std::set<std::pair<Betreuungsschlüssel, Betreuungsschlüssel>> überschneidungen(const Tabellenstand& stand)
{
    std::set<std::pair<Betreuungsschlüssel, Betreuungsschlüssel>> paare;
    for (auto eine = stand.betreuungen.begin(); eine != stand.betreuungen.end(); ++eine) {
        for (auto andere = std::next(eine);
             andere != stand.betreuungen.end() && andere->first.first == eine->first.first; ++andere) {
            if (teilenTag(eine->second, andere->second)) {
                paare.emplace(eine->first, andere->first);
            }
        }
    }
    return paare;
}

std::string statusVon(const Tabellenstand& stand, int kernID)
{
    std::string status;
    for (auto ort = stand.betreuungen.lower_bound({kernID, 0});
         ort != stand.betreuungen.end() && ort->first.first == kernID; ++ort) {
        status = status == "o" || feldVon(ort->second, 3) == "offen"_t ? "o" : "a";
    }
    return status;
}

std::string gespeicherterStatus(std::string_view klient)
{
    const auto feld = feldVon(klient, 2);
    return feld == std::string_view("\0", 1) ? std::string() : std::string(feld);
}
