#include "app/Einstellungen.h"

#include "platform/dateien/Dateien.h"
#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "zustand/Zustand.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace {

constexpr auto keinZeichen = std::string_view::npos;

std::string alsSchlüssel(std::string_view text)
{
    return klein(getrimmt(text));
}

/// The value behind the first "=" that has the key to its left.
std::optional<std::string> wertIn(std::string_view zeile, std::string_view gesucht)
{
    for (auto ort = zeile.find('='); ort != keinZeichen; ort = zeile.find('=', ort + 1)) {
        if (alsSchlüssel(zeile.substr(0, ort)) == gesucht) {
            return std::string(getrimmt(zeile.substr(ort + 1)));
        }
    }
    return std::nullopt;
}

/// The first "=" of a line; the writer can't go on without one.
std::size_t trennstelle(std::string_view zeile, std::size_t nummer)
{
    const auto ort = zeile.find('=');
    if (ort == keinZeichen) {
        throw Laufzeitfehler(verbinde("In "_t, pfadtext(zustand().pfade.ini), " fehlt in Zeile "_t,
                                      alsText(static_cast<std::int64_t>(nummer)), " das Gleichheitszeichen"_t));
    }
    return ort;
}

/// Copies the lines with the key's value replaced; whether the key was there.
bool kopiereMitWert(std::string_view inhalt, Schreiber& ziel, std::string_view gesucht, std::string_view wert)
{
    bool gefunden = false;
    Zeilen zeilen(inhalt);
    while (const auto zeile = zeilen.nächste()) {
        const auto ort = trennstelle(*zeile, zeilen.nummer());
        if (alsSchlüssel(zeile->substr(0, ort)) == gesucht) {
            ziel.zeile(verbinde(getrimmt(zeile->substr(0, ort + 1)), ' ', wert));
            gefunden = true;
        } else {
            ziel.zeile(*zeile);
        }
    }
    return gefunden;
}

} // namespace

std::string leseIni(std::string_view schlüssel)
{
    const auto gesucht = alsSchlüssel(schlüssel);
    const auto inhalt = zustand().umgebung.dateien().lies(zustand().pfade.ini);
    Zeilen zeilen(inhalt->text());
    while (const auto zeile = zeilen.nächste()) {
        if (auto wert = wertIn(*zeile, gesucht)) {
            return *wert;
        }
    }
    return {};
}

void schreibeIni(std::string_view schlüssel, std::string_view wert)
{
    const auto& pfade = zustand().pfade;
    auto& dateien = zustand().umgebung.dateien();
    const auto alt = dateien.lies(pfade.ini);
    dateien.ersetze(pfade.ini, pfade.dummyIni, [&](Schreiber& neu) {
        if (!kopiereMitWert(alt->text(), neu, alsSchlüssel(schlüssel), wert)) {
            neu.zeile(verbinde(schlüssel, " = "_t, wert));
        }
    });
}

double leseLage(std::string_view schlüssel)
{
    auto text = ersetzt(leseIni(schlüssel), ","_t, "."_t);
    if (text.starts_with('+') && !text.starts_with("+-")) {
        text.erase(0, 1);
    }
    double twips = 0;
    const char* const ende = text.data() + text.size();
    const auto [gelesen, fehler] = std::from_chars(text.data(), ende, twips, std::chars_format::fixed);
    // what no window can reach is damage, not a place
    const bool gilt =
        fehler == std::errc() && gelesen == ende && std::abs(twips) <= std::numeric_limits<std::int32_t>::max();
    return gilt ? twips : 0;
}

void schreibeLage(std::string_view schlüssel, double twips)
{
    schreibeIni(schlüssel, alsText(std::llround(twips)));
}
