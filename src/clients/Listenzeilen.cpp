#include "clients/Listenzeilen.h"

#include "platform/text/Text.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Klientenfelder.h"
#include "satz/Zeilenfelder.h"
#include "store/Lesestand.h"
#include "zustand/Zustand.h"

#include <algorithm>

namespace {

constexpr std::size_t stellenDerId = 4;

std::string klientenzeile(std::string_view satz)
{
    std::string zeile = idText(getFeld(satz, feld::kern::kernID));
    using namespace feld::kern;
    for (const int feld : {betrao, nachname, vorname, straße, plz, ort, geburtsdatum}) {
        zeile.push_back(trenner);
        zeile.append(getFeld(satz, feld));
    }
    std::erase(zeile, '\0');
    return zeile;
}

} // namespace

std::string idText(std::string_view id)
{
    return verbinde(std::string(stellenDerId - std::min(stellenDerId, id.size()), '0'), id);
}

std::vector<std::string> klientenzeilen()
{
    std::vector<std::string> zeilen;
    zustand().bestand.fürJedeZeile(Tabelle::Kern,
                                   [&](std::string_view satz, std::size_t) { zeilen.push_back(klientenzeile(satz)); });
    return zeilen;
}

std::vector<std::string> betreuungszeilen(std::int32_t kernID)
{
    const auto& tabelle = zustand().pfade.betrDat;
    std::vector<std::string> zeilen;
    zustand().bestand.fürJedeZeile(Tabelle::Betr, [&](std::string_view satz, std::size_t nummer) {
        if (leseSchlüssel(satz, feld::betr::kernID, 32, tabelle, nummer) == kernID) {
            auto& neue = zeilen.emplace_back(felder(satz, feld::betr::kernID, feld::betr::ende));
            neue.pop_back(); // the delimiter behind the last field
        }
    });
    return zeilen;
}
