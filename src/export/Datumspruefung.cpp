#include "export/Datumspruefung.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Betreuungsfelder.h"

#include <algorithm>

namespace {

int jahrVon(std::string_view datum, int feld, std::string_view bezeichnung)
{
    constexpr std::size_t stellen = 4;
    const auto jahr = leseGanzzahl16(datum.substr(datum.size() - std::min(datum.size(), stellen)));
    if (!jahr) {
        throw Laufzeitfehler(verbinde("Feld "_t, std::to_string(feld), ": Das Datum \""_t, datum, "\" der Betreuung "_t,
                                      bezeichnung, " hat keine Jahreszahl."_t));
    }
    return *jahr;
}

} // namespace

bool berührtJahr(std::string_view beginn, std::string_view ende, int jahr, std::string_view bezeichnung)
{
    if (jahr < jahrVon(beginn, feld::betr::beginn, bezeichnung)) {
        return false;
    }
    return klein(ende) == "offen"_t || jahr <= jahrVon(ende, feld::betr::ende, bezeichnung);
}
