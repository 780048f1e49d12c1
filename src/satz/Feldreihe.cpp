#include "satz/Feldreihe.h"

#include "platform/text/Text.h"

namespace {

Satzfeld feldAus(const Feldreihe& reihe, std::string_view nummer, int versatz)
{
    const auto& spalten = reihe.spalten;
    return {.name = reihe.stamm.empty() ? std::string() : verbinde(reihe.stamm, nummer),
            .art = reihe.art,
            .blatt = spalten.blatt,
            .spalte = spalten.blatt == 0 ? 0 : spalten.erste + (spalten.gemeinsam ? 0 : versatz),
            .werte = reihe.werte == nullptr ? Werteliste{} : *reihe.werte,
            .vorgabe = std::string(reihe.vorgabe)};
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

std::vector<Satzfeld> entfalte(std::span<const Feldreihe> reihen)
{
    std::vector<Satzfeld> felder;
    for (const auto& reihe : reihen) {
        hängeAn(felder, reihe);
    }
    return felder;
}
