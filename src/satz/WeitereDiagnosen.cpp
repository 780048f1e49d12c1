#include "satz/WeitereDiagnosen.h"

#include <algorithm>

namespace {

bool istZiffer(char zeichen)
{
    return zeichen >= '0' && zeichen <= '9';
}

/// "#" is one digit, every other character itself.
bool passt(std::string_view text, std::string_view form)
{
    return std::ranges::equal(
        text, form, [](char zeichen, char platz) { return platz == '#' ? istZiffer(zeichen) : zeichen == platz; });
}

} // namespace

bool istWeitereDiagnose(int nummer, std::string_view text)
{
    if (text.empty()) {
        return true;
    }
    if (text.find(trenner) != std::string_view::npos) {
        return false;
    }
    const std::string_view ziffern = diagnoseartVon(nummer).buchstabe.empty() ? text.substr(1) : text;
    return std::ranges::any_of(diagnosemuster, [ziffern](std::string_view form) { return passt(ziffern, form); });
}

std::string meldungZuWeitererDiagnose(int nummer)
{
    const auto buchstabe = diagnoseartVon(nummer).buchstabe;
    const bool wirdGetippt = buchstabe.empty();
    const auto form =
        wirdGetippt ? verbinde('A', ersetzt(diagnosemuster.back(), "#"_t, "1"_t)) : std::string(diagnosemuster.back());
    const auto zusatz =
        wirdGetippt ? std::string() : verbinde("(Das '"_t, buchstabe, "' wird automatisch hinzugefügt)\r\n"_t);
    return verbinde("In diesem Feld ist nur folgendes Format erlaubt: "_t, form, "\r\n"_t, zusatz,
                    "Eingabe wird zurückgesetzt"_t);
}
