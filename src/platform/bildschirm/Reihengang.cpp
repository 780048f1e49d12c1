#include "platform/bildschirm/Reihengang.h"

#include "platform/bildschirm/Bildschirm.h"

#include <algorithm>
#include <iterator>

namespace {

std::string_view reihenname(const Element& element)
{
    return std::string_view(element.name()).substr(0, element.name().find('('));
}

Element* nachbar(const Bildschirm& bildschirm, const Element& element, bool vor)
{
    auto reihe = bildschirm.tabFolge();
    std::erase_if(reihe, [&](const Element* anderes) {
        return reihenname(*anderes) != reihenname(element) ||
               (anderes != &element && !bildschirm.istErreichbar(*anderes));
    });
    const auto ort = std::ranges::find(reihe, &element);
    if (ort == reihe.end() || (vor ? std::next(ort) == reihe.end() : ort == reihe.begin())) {
        return nullptr;
    }
    return vor ? *std::next(ort) : *std::prev(ort);
}

bool gehtMit(const Element& element, const Taste& taste)
{
    const bool senkrecht = taste.art == Taste::Art::Auf || taste.art == Taste::Art::Ab;
    const bool waagrecht = taste.art == Taste::Art::Links || taste.art == Taste::Art::Rechts;
    const bool istOption = dynamic_cast<const Optionsfeld*>(&element) != nullptr;
    const bool istAntwort = dynamic_cast<const triCtlJaNein*>(&element) != nullptr;
    return (istAntwort && senkrecht) || (istOption && (senkrecht || waagrecht));
}

} // namespace

bool gibTaste(Element& element, const Taste& taste)
{
    const bool kenntKombinationen = dynamic_cast<const Datumsfeld*>(&element) != nullptr;
    return (kenntKombinationen || !taste.istKombination()) && element.taste(taste);
}

bool geheInReihe(Element& element, const Taste& taste)
{
    if (taste.istKombination() || !gehtMit(element, taste)) {
        return false;
    }
    auto& bildschirm = bildschirmVon(element);
    auto* ziel = nachbar(bildschirm, element, taste.art == Taste::Art::Ab || taste.art == Taste::Art::Rechts);
    if (ziel != nullptr && bildschirm.fokussiere(ziel)) {
        if (auto* option = dynamic_cast<Optionsfeld*>(ziel); option != nullptr && option->pfeileMarkieren()) {
            option->klicke();
        }
    }
    return true;
}
