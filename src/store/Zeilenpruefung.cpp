#include "store/Zeilenpruefung.h"

#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"
#include "satz/Satzgrenzen.h"
#include "store/Bruchstuecke.h"

#include <algorithm>
#include <array>

namespace {

/// The layout of a table's lines.
struct Zeilenform {
    std::size_t felder;
    int memofeld;
};

Zeilenform formVon(Tabelle tabelle)
{
    switch (tabelle) {
    case Tabelle::Betr:
        return {feld::betr::anzahl, feld::betr::memo};
    case Tabelle::Diag:
        return {feld::diag::anzahl, 0};
    default:
        return {feld::kern::anzahl, feld::kern::memo};
    }
}

void prüfeFelderzahl(const Satzzeile& satz, Befundliste& befunde)
{
    const auto form = formVon(satz.tabelle);
    const auto gefunden = satz.felder.size();
    const auto genauer = [&] { return verbinde(std::to_string(gefunden), " statt "_t, std::to_string(form.felder)); };
    if (gefunden < form.felder) {
        befunde.melde(Befundart::FelderZuWenige, satz.ort(), genauer());
    }
    // a delimiter behind the last field belongs to some kinds of records and is never read
    const bool endetMitTrenner = gefunden == form.felder + 1 && satz.felder.back().empty();
    if (gefunden > form.felder && !endetMitTrenner) {
        befunde.melde(Befundart::FelderZuViele, satz.ort(), genauer());
    }
}

enum class Zeichenart { Gewöhnlich, Steuer, Unbelegt };

Zeichenart artVon(char zeichen)
{
    constexpr std::string_view unbelegte = "\x81\x8D\x8F\x90\x9D";
    const auto byte = static_cast<unsigned char>(zeichen);
    if (byte < 0x20U || byte == 0x7FU) {
        return Zeichenart::Steuer;
    }
    return byte >= 0x80U && unbelegte.find(zeichen) != std::string_view::npos ? Zeichenart::Unbelegt
                                                                              : Zeichenart::Gewöhnlich;
}

/// Tabs are text in a memo; code 0 alone is the status of a client without episodes.
bool istErlaubt(const Satzzeile& satz, int feld, char zeichen)
{
    return (zeichen == '\t' && feld == formVon(satz.tabelle).memofeld) ||
           (zeichen == '\0' && satz.tabelle == Tabelle::Kern && feld == feld::kern::betrao &&
            satz.feld(feld).size() == 1);
}

/// Each field is told once, by its first character that is not in order.
void prüfeZeichen(const Satzzeile& satz, Befundliste& befunde)
{
    for (int feld = 1; feld <= static_cast<int>(satz.felder.size()); ++feld) {
        const auto text = satz.feld(feld);
        const auto fund = std::ranges::find_if(text, [&](char zeichen) {
            return artVon(zeichen) != Zeichenart::Gewöhnlich && !istErlaubt(satz, feld, zeichen);
        });
        if (fund != text.end()) {
            const auto stelle = std::to_string(fund - text.begin() + 1);
            befunde.melde(
                artVon(*fund) == Zeichenart::Steuer ? Befundart::Steuerzeichen : Befundart::ZeichenUnbelegt,
                satz.ort(feld),
                verbinde("Code "_t, std::to_string(static_cast<unsigned char>(*fund)), " an Stelle "_t, stelle));
        }
    }
}

enum Zeilenende { CrLf, Lf, Cr, Keines };

Zeilenende endeVon(std::string_view ende)
{
    if (ende.empty()) {
        return Keines;
    }
    return ende == "\r\n" ? CrLf : ende == "\n" ? Lf : Cr;
}

} // namespace

void prüfeZeilenenden(Tabelle tabelle, std::string_view inhalt, Befundliste& befunde)
{
    constexpr std::array namen{"CR LF"_t, "LF"_t, "CR"_t};
    std::array<std::size_t, 4> erste{}; ///< the first line with each kind
    Zeilen zeilen(inhalt);
    while (const auto zeile = zeilen.nächste()) {
        const auto anfang = static_cast<std::size_t>(zeile->data() - inhalt.data()) + zeile->size();
        auto& stelle = erste.at(endeVon(inhalt.substr(anfang, zeilen.position() - anfang)));
        stelle = stelle == 0 ? zeilen.nummer() : stelle;
    }
    const auto ort = [&](std::size_t zeile) { return Fundort{.tabelle = tabelle, .datei = {}, .zeile = zeile}; };
    std::string arten;
    std::size_t wechsel = 0;
    int verschiedene = 0;
    for (const auto art : {CrLf, Lf, Cr}) {
        if (erste.at(art) > 0) {
            arten += verbinde(verschiedene++ == 0 ? ""_t : ", "_t, namen.at(art));
            wechsel = std::max(wechsel, erste.at(art));
        }
    }
    if (verschiedene > 1) {
        befunde.melde(Befundart::ZeilenendenGemischt, ort(wechsel), arten);
    } else if (erste[Lf] > 0 || erste[Cr] > 0) {
        befunde.melde(Befundart::ZeilenendenFremd, ort(wechsel), arten);
    }
    if (erste[Keines] > 0) {
        befunde.melde(Befundart::ZeilenendeFehlt, ort(erste[Keines]), {},
                      bruchstückIn(inhalt).empty()
                          ? std::string_view()
                          : "die Zeile ist nur halb da, sie wird beim nächsten Start herausgenommen und aufgehoben"_t);
    }
}

bool zerlegeZeile(Tabelle tabelle, std::string_view zeile, std::size_t nummer, Satzzeile& satz, Befundliste& befunde)
{
    satz.tabelle = tabelle;
    satz.nummer = nummer;
    satz.felder.clear();
    if (zeile.empty()) {
        befunde.melde(Befundart::ZeileLeer, satz.ort());
        return false;
    }
    if (zeile.size() > satzgrenze::zeilenlänge) {
        befunde.melde(Befundart::ZeileZuLang, satz.ort(), std::to_string(zeile.size()));
        return false;
    }
    for (auto ort = zeile.find(trenner); ort != std::string_view::npos; ort = zeile.find(trenner)) {
        satz.felder.push_back(zeile.substr(0, ort));
        zeile.remove_prefix(ort + 1);
    }
    satz.felder.push_back(zeile);
    return true;
}

void prüfeForm(const Satzzeile& satz, Befundliste& befunde)
{
    prüfeFelderzahl(satz, befunde);
    prüfeZeichen(satz, befunde);
}

std::optional<std::int32_t> prüfeSchlüssel(const Satzzeile& satz, int feld, Befundliste& befunde)
{
    const auto text = satz.feld(feld);
    const auto zahl = leseGanzzahl16(text);
    if (!zahl) {
        befunde.melde(leseGanzzahl64(text) ? Befundart::SchlüsselAußerhalb : Befundart::SchlüsselKeineZahl,
                      satz.ort(feld), alsZitat(text));
        return std::nullopt;
    }
    if (*zahl < 1) {
        befunde.melde(Befundart::SchlüsselAußerhalb, satz.ort(feld), alsZitat(text),
                      "wird gelesen, läßt sich aber nicht verläßlich bearbeiten"_t);
    } else if (alsText(*zahl) != text) {
        befunde.melde(Befundart::SchlüsselForm, satz.ort(feld), alsZitat(text));
    }
    return *zahl;
}
