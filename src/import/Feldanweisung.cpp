#include "import/Feldanweisung.h"

#include "platform/text/Text.h"

std::string_view schlageNach(const Feldanweisung& anweisung, std::string_view wert, std::string& ablage)
{
    for (const auto& [ergebnis, code] : anweisung.paare) {
        if (code == "<sonst>") {
            return ergebnis == "<text>" ? wert : std::string_view(ergebnis);
        }
        if (code == wert) {
            return ergebnis == "<leer>" ? std::string_view{} : std::string_view(ergebnis);
        }
    }
    if (wert.empty()) {
        return {};
    }
    ablage = verbinde('\'', wert, "' nicht gefunden"_t);
    return ablage;
}
