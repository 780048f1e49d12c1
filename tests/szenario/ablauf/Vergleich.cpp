#include "ablauf/Vergleich.h"

#include "umgebung/Scheitern.h"

#include "platform/text/Text.h"

#include <algorithm>

namespace {

std::string mitBezug(std::string_view was, const std::string& wert)
{
    return was.empty() ? wert : std::string(was) + " " + wert;
}

std::size_t ersterUnterschied(std::string_view a, std::string_view b)
{
    const auto [ort, anderer] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    return static_cast<std::size_t>(ort - a.begin());
}

/// A line of the text from `ort` on, its line end included.
std::string_view zeileAb(std::string_view text, std::size_t ort)
{
    const std::size_t ende = text.find('\n', ort);
    return text.substr(ort, ende == std::string_view::npos ? ende : ende - ort + 1);
}

std::string zeigeZeile(std::string_view zeile, std::size_t stelle)
{
    if (zeile.empty()) {
        return "das Dateiende";
    }
    std::string text = zeige(zeile.ends_with("\r\n") ? zeile.substr(0, zeile.size() - 2) : zeile, stelle);
    return zeile.ends_with("\r\n") ? text : text + " ohne CR LF";
}

} // namespace

std::string mitEinfachenUmbrüchen(std::string_view text)
{
    std::string ergebnis = ersetzt(text, "\r\n", "\n");
    std::replace(ergebnis.begin(), ergebnis.end(), '\r', '\n');
    return ergebnis;
}

void vergleicheText(std::string_view was, std::string_view erwartet, std::string_view gefunden)
{
    if (erwartet != gefunden) {
        const std::size_t stelle = ersterUnterschied(erwartet, gefunden);
        throw Scheitern(mitBezug(was, zeige(erwartet, stelle)), zeige(gefunden, stelle));
    }
}

void vergleicheTeil(std::string_view was, std::string_view erwarteterTeil, std::string_view gefunden)
{
    if (gefunden.find(erwarteterTeil) == std::string_view::npos) {
        throw Scheitern(mitBezug(was, "mit " + zeige(erwarteterTeil)), zeige(gefunden));
    }
}

void vergleicheZahl(std::string_view was, std::int64_t erwartet, std::int64_t gefunden)
{
    if (erwartet != gefunden) {
        throw Scheitern(mitBezug(was, std::to_string(erwartet)), std::to_string(gefunden));
    }
}

void vergleicheListe(std::string_view was, const std::vector<std::string>& erwartet,
                     const std::vector<std::string>& gefunden)
{
    const auto [ort, anderer] = std::mismatch(erwartet.begin(), erwartet.end(), gefunden.begin(), gefunden.end());
    if (ort == erwartet.end() && anderer == gefunden.end()) {
        return;
    }
    const auto anzahl = [](const auto& liste) { return " (von " + std::to_string(liste.size()) + ")"; };
    const std::string nummer = " " + std::to_string(ort - erwartet.begin() + 1);
    const std::size_t stelle =
        ort == erwartet.end() || anderer == gefunden.end() ? 0 : ersterUnterschied(*ort, *anderer);
    throw Scheitern(std::string(was) + nummer + " " + (ort == erwartet.end() ? "keine" : zeige(*ort, stelle)) +
                        anzahl(erwartet),
                    (anderer == gefunden.end() ? "keine" : zeige(*anderer, stelle)) + anzahl(gefunden));
}

void vergleicheInhalt(std::string_view erwartet, std::string_view gefunden)
{
    if (erwartet == gefunden) {
        return;
    }
    const std::size_t ort = ersterUnterschied(erwartet, gefunden);
    const std::string_view davor = erwartet.substr(0, ort);
    const std::size_t anfang = davor.rfind('\n') + 1; // npos + 1 is the start
    const std::size_t stelle = ort - anfang;
    const auto zeile = std::count(davor.begin(), davor.end(), '\n') + 1;
    const auto feld = std::count(davor.begin() + static_cast<std::ptrdiff_t>(anfang), davor.end(), trenner) + 1;
    const std::string bezug = "Zeile " + std::to_string(zeile) + " (ab Feld " + std::to_string(feld) + ") ";
    throw Scheitern(bezug + zeigeZeile(zeileAb(erwartet, anfang), stelle),
                    zeigeZeile(zeileAb(gefunden, anfang), stelle));
}
