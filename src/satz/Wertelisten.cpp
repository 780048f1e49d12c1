#include "satz/Wertelisten.h"

#include <algorithm>

namespace werte {

std::vector<std::string> texte(Werteliste liste)
{
    std::vector<std::string> ergebnis;
    ergebnis.reserve(liste.size());
    for (const auto& paar : liste) {
        if (!paar.frühere) {
            ergebnis.emplace_back(paar.text);
        }
    }
    return ergebnis;
}

std::vector<std::string> zahlen(std::string_view vorne, Zahlenbereich bereich)
{
    std::vector<std::string> ergebnis{std::string(vorne)};
    for (int zahl = bereich.von; zahl <= bereich.bis; ++zahl) {
        ergebnis.push_back(std::to_string(zahl));
    }
    return ergebnis;
}

const std::string_view* codeZu(Werteliste liste, std::string_view text)
{
    const auto ort = std::ranges::find(liste, text, &Wertepaar::text);
    return ort == liste.end() ? nullptr : &ort->code;
}

const std::string_view* textZu(Werteliste liste, std::string_view code)
{
    const auto ort =
        std::ranges::find_if(liste, [&](const Wertepaar& paar) { return paar.code == code && !paar.frühere; });
    return ort == liste.end() ? nullptr : &ort->text;
}

std::string_view heutige(Werteliste liste, std::string_view text)
{
    const auto* code = codeZu(liste, text);
    const auto* heute = code == nullptr ? nullptr : textZu(liste, *code);
    return heute == nullptr ? text : *heute;
}

} // namespace werte
