#include "satz/Auswahllisten.h"

#include "satz/Problemgruppen.h"
#include "satz/moNationen.h"

std::vector<std::string> auswahlliste(const Satzfeld& feld)
{
    if (const auto bereich = zahlenbereich(feld.art)) {
        return werte::zahlen(feld.vorgabe, *bereich);
    }
    if (feld.art != Feldart::nation) {
        return werte::texte(feld.werte);
    }
    std::vector<std::string> namen{feld.vorgabe};
    for (const auto& nation : nationen()) {
        namen.emplace_back(nation.name);
    }
    return namen;
}

std::optional<werte::Zahlenbereich> zahlenbereich(Feldart art)
{
    switch (art) {
    case Feldart::zuvor:
        return werte::maßnahmen;
    case Feldart::kinder:
        return werte::kinder;
    case Feldart::kontakte:
        return werte::kontakte;
    case Feldart::zahl:
        return werte::unterhalt;
    default:
        return std::nullopt;
    }
}

werte::Zahlenbereich antwortbereich(int platz)
{
    return platz == TageBeginn || platz == TageEnde ? werte::konsumtage : werte::alter;
}
