#include "satz/WeitereDiagnosen.h"

#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

/// Four fields of each kind, in their order on the page.
struct Diagnoseart {
    bool mitBuchstabe; ///< typed with its letter; else `zusatz` tells which one is added on output
    std::string_view form;
    std::string_view zusatz;
};

constexpr std::array<Diagnoseart, 3> arten{{
    {false, "##.##"_t, "(Das 'F' wird automatisch hinzugefügt)\r\n"_t},
    {false, "##.##"_t, "(Das 'G' wird automatisch hinzugefügt)\r\n"_t},
    {true, "A11.11"_t, ""_t},
}};

const Diagnoseart& artVon(int nummer)
{
    return arten.at(static_cast<std::size_t>((nummer - 1) / 4));
}

constexpr std::array<std::string_view, 3> muster{"##"_t, "##.#"_t, "##.##"_t};

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
    const std::string_view ziffern = artVon(nummer).mitBuchstabe ? text.substr(1) : text;
    return std::ranges::any_of(muster, [ziffern](std::string_view form) { return passt(ziffern, form); });
}

std::string meldungZuWeitererDiagnose(int nummer)
{
    const Diagnoseart& art = artVon(nummer);
    return verbinde("In diesem Feld ist nur folgendes Format erlaubt: "_t, art.form, "\r\n"_t, art.zusatz,
                    "Eingabe wird zurückgesetzt"_t);
}
