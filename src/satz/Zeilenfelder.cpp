#include "satz/Zeilenfelder.h"

#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Satzgrenzen.h"

#include <algorithm>
#include <climits>
#include <limits>
#include <optional>

namespace {

/// What is left of the line from field `nummer` on, without a value when there is no such field.
std::optional<std::string_view> abFeld(std::string_view zeile, int nummer, char trennzeichen)
{
    if (nummer < 1) {
        return std::nullopt;
    }
    for (int feld = 1; feld < nummer; ++feld) {
        const auto ort = zeile.find(trennzeichen);
        if (ort == std::string_view::npos) {
            return std::nullopt;
        }
        zeile.remove_prefix(ort + 1);
    }
    return zeile;
}

} // namespace

void prüfeZeilenlänge(std::string_view zeile)
{
    if (zeile.size() > satzgrenze::zeilenlänge) {
        throw Laufzeitfehler(verbinde("Überlauf: Eine Zeile ist "_t, std::to_string(zeile.size()),
                                      " Zeichen lang, erlaubt sind "_t, std::to_string(satzgrenze::zeilenlänge)));
    }
}

std::string_view getFeld(std::string_view zeile, int nummer, char trennzeichen)
{
    prüfeZeilenlänge(zeile);
    const auto rest = abFeld(zeile, nummer, trennzeichen);
    return rest ? rest->substr(0, rest->find(trennzeichen)) : std::string_view();
}

std::string ersetzeFeld(std::string_view zeile, int nummer, std::string_view neu)
{
    const auto rest = abFeld(zeile, std::max(nummer, 2), trenner);
    if (!rest) {
        throw Laufzeitfehler(verbinde("Die Zeile hat kein Feld "_t, std::to_string(nummer), ", sie beginnt mit \""_t,
                                      zeile.substr(0, 40), "\""_t));
    }
    const auto kopf = zeile.substr(0, zeile.size() - rest->size());
    const auto ende = rest->find(trenner);
    return verbinde(kopf, neu, ende == std::string_view::npos ? std::string_view() : rest->substr(ende));
}

std::int16_t anzahlFelder(std::string_view zeile)
{
    prüfeZeilenlänge(zeile);
    if (zeile.empty()) {
        return 0;
    }
    const auto anzahl = std::ranges::count(zeile, trenner) + 1;
    if (anzahl > std::numeric_limits<std::int16_t>::max()) {
        throw Laufzeitfehler(std::string("Überlauf: Eine Zeile hat zu viele Felder"_t));
    }
    return static_cast<std::int16_t>(anzahl);
}

std::string maskiereTrenner(std::string_view text)
{
    std::string ergebnis(text);
    std::ranges::replace(ergebnis, trenner, '\xBF');
    return ergebnis;
}

std::string felder(std::string_view zeile, int von, int bis)
{
    prüfeZeilenlänge(zeile);
    std::string ergebnis;
    auto rest = abFeld(zeile, von, trenner);
    for (int feld = von; feld <= bis; ++feld) {
        ergebnis.append(rest ? rest->substr(0, rest->find(trenner)) : std::string_view()).push_back(trenner);
        rest = rest ? abFeld(*rest, 2, trenner) : rest;
    }
    return ergebnis;
}

std::string_view feldbereich(std::string_view zeile, int von, int bis)
{
    const auto bereich = abFeld(zeile, von, trenner).value_or(std::string_view{});
    if (bis == INT_MAX) {
        return bereich;
    }
    const auto dahinter = abFeld(bereich, bis - von + 2, trenner);
    return dahinter ? bereich.substr(0, bereich.size() - dahinter->size() - 1) : bereich;
}
