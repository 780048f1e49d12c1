#include "store/Zeilenpruefung.h"

#include "platform/dateien/Zeilen.h"
#include "platform/text/Zahl.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Klientenfelder.h"
#include "satz/Satzgrenzen.h"
#include "store/Bruchstuecke.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace {

using namespace befundart;

void prüfeFelderzahl(const Satzzeile& satz)
{
    const auto soll = satzfelder(satz.tabelle).size();
    const auto gefunden = satz.felder.size();
    const auto genauer = verbinde(std::to_string(gefunden), " statt "_t, std::to_string(soll));
    if (gefunden < soll) {
        satz.melde(FelderZuWenige, 0, genauer);
    }
    // a delimiter behind the last field belongs to some kinds of records and is never read
    const bool endetMitTrenner = gefunden == soll + 1 && satz.felder.back().empty();
    if (gefunden > soll && !endetMitTrenner) {
        satz.melde(FelderZuViele, 0, genauer);
    }
}

bool istSteuerzeichen(char zeichen)
{
    const auto byte = static_cast<unsigned char>(zeichen);
    return byte < 0x20U || byte == 0x7FU;
}

bool istUnbelegt(char zeichen)
{
    constexpr std::string_view unbelegte = "\x81\x8D\x8F\x90\x9D";
    return unbelegte.find(zeichen) != std::string_view::npos;
}

bool istMemo(Tabelle tabelle, int feld)
{
    return (tabelle == Tabelle::Kern && feld == feld::kern::memo) ||
           (tabelle == Tabelle::Betr && feld == feld::betr::memo);
}

/// Tabs are text in a memo; code 0 alone is the status of a client without episodes.
bool istErlaubt(const Satzzeile& satz, int feld, char zeichen)
{
    return (zeichen == '\t' && istMemo(satz.tabelle, feld)) ||
           (zeichen == '\0' && satz.tabelle == Tabelle::Kern && feld == feld::kern::betrao &&
            satz.feld(feld).size() == 1);
}

/// Each field is told once, by its first character that is not in order.
void prüfeZeichen(const Satzzeile& satz)
{
    for (int feld = 1; satz.hat(feld); ++feld) {
        const auto text = satz.feld(feld);
        const auto fund = std::ranges::find_if(text, [&](char zeichen) {
            return istUnbelegt(zeichen) || (istSteuerzeichen(zeichen) && !istErlaubt(satz, feld, zeichen));
        });
        if (fund != text.end()) {
            satz.melde(istSteuerzeichen(*fund) ? Steuerzeichen : ZeichenUnbelegt, feld,
                       verbinde("Code "_t, std::to_string(static_cast<unsigned char>(*fund)), " an Stelle "_t,
                                std::to_string(fund - text.begin() + 1)));
        }
    }
}

} // namespace

const std::vector<Satzfeld>& satzfelder(Tabelle tabelle)
{
    switch (tabelle) {
    case Tabelle::Betr:
        return betreuungsfelder();
    case Tabelle::Diag:
        return diagnosefelder();
    default:
        return klientenfelder();
    }
}

void prüfeZeilenenden(Tabelle tabelle, std::string_view inhalt, Befundliste& befunde)
{
    constexpr std::array arten{std::pair{"\r\n"_t, "CR LF"_t}, std::pair{"\n"_t, "LF"_t}, std::pair{"\r"_t, "CR"_t}};
    std::map<std::string_view, std::size_t> erste; ///< the first line with each line end
    Zeilen zeilen(inhalt);
    while (const auto zeile = zeilen.nächste()) {
        const auto ende = static_cast<std::size_t>(zeile->data() - inhalt.data()) + zeile->size();
        erste.try_emplace(inhalt.substr(ende, zeilen.position() - ende), zeilen.nummer());
    }
    std::string namen;
    std::size_t wechsel = 0;
    for (const auto& [ende, name] : arten) {
        if (const auto ort = erste.find(ende); ort != erste.end()) {
            namen += verbinde(namen.empty() ? ""_t : ", "_t, name);
            wechsel = std::max(wechsel, ort->second);
        }
    }
    if (namen.find(',') != std::string::npos) {
        befunde.melde(ZeilenendenGemischt, {tabelle, wechsel}, namen);
    } else if (!namen.empty() && namen != arten.front().second) {
        befunde.melde(ZeilenendenFremd, {tabelle, wechsel}, namen);
    }
    if (const auto ort = erste.find({}); ort != erste.end()) {
        befunde.melde(ZeilenendeFehlt, {tabelle, ort->second}, {},
                      bruchstückIn(inhalt).empty()
                          ? std::string_view()
                          : "die Zeile ist nur halb da, sie wird beim nächsten Start herausgenommen und aufgehoben"_t);
    }
}

bool zerlege(std::string_view zeile, Satzzeile& satz)
{
    satz.felder.clear();
    if (zeile.empty()) {
        satz.melde(ZeileLeer, 0);
        return false;
    }
    if (zeile.size() > satzgrenze::zeilenlänge) {
        satz.melde(ZeileZuLang, 0, std::to_string(zeile.size()));
        return false;
    }
    for (auto ort = zeile.find(trenner); ort != std::string_view::npos; ort = zeile.find(trenner)) {
        satz.felder.push_back(zeile.substr(0, ort));
        zeile.remove_prefix(ort + 1);
    }
    satz.felder.push_back(zeile);
    return true;
}

void prüfeForm(const Satzzeile& satz)
{
    prüfeFelderzahl(satz);
    prüfeZeichen(satz);
}

std::optional<std::int32_t> prüfeSchlüssel(const Satzzeile& satz, int feld)
{
    const auto text = satz.feld(feld);
    const auto zahl = leseGanzzahl16(text);
    if (!zahl) {
        satz.melde(leseGanzzahl64(text) ? SchlüsselAußerhalb : SchlüsselKeineZahl, feld, alsZitat(text));
        return std::nullopt;
    }
    if (*zahl < 1) {
        satz.melde(SchlüsselAußerhalb, feld, alsZitat(text),
                   "wird gelesen, läßt sich aber nicht verläßlich bearbeiten"_t);
    } else if (alsText(*zahl) != text) {
        satz.melde(SchlüsselForm, feld, alsZitat(text));
    }
    return *zahl;
}
