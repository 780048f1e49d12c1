#include "satz/Feldreihe.h"

#include "platform/text/Text.h"

#include <stdexcept>

namespace {

std::string quelleVon(const Spalten& spalten, int versatz)
{
    if (spalten.blatt == 0) {
        return {};
    }
    return verbinde(spalten.blatt, std::to_string(spalten.erste + (spalten.gemeinsam ? 0 : versatz)));
}

Satzfeld feldAus(const Feldreihe& reihe, std::string_view nummer, int versatz)
{
    return {reihe.stamm.empty() ? std::string() : verbinde(reihe.stamm, nummer), reihe.art,
            quelleVon(reihe.spalten, versatz), reihe.werte, std::string(reihe.vorgabe)};
}

void hängeAn(std::vector<Satzfeld>& felder, const Feldreihe& reihe)
{
    if (reihe.nummern.bis < reihe.nummern.von) {
        felder.push_back(feldAus(reihe, {}, 0));
        return;
    }
    for (int nummer = reihe.nummern.von; nummer <= reihe.nummern.bis; ++nummer) {
        felder.push_back(feldAus(reihe, std::to_string(nummer), nummer - reihe.nummern.von));
    }
}

} // namespace

std::vector<Satzfeld> entfalte(const std::vector<Feldreihe>& reihen, std::size_t anzahl)
{
    std::vector<Satzfeld> felder;
    felder.reserve(anzahl);
    for (const auto& reihe : reihen) {
        hängeAn(felder, reihe);
    }
    if (felder.size() != anzahl) {
        throw std::logic_error("record layout: " + std::to_string(felder.size()) + " fields instead of " +
                               std::to_string(anzahl));
    }
    return felder;
}
