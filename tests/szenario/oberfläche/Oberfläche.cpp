#include "oberfläche/Oberfläche.h"

#include <charconv>
#include <optional>

namespace {

/// Index behind the name in "triJaNeinKosten(3)".
std::optional<int> indexIn(std::string_view name, std::string_view reihe)
{
    int index = 0;
    if (!name.starts_with(reihe) || name.substr(reihe.size(), 1) != "(") {
        return std::nullopt;
    }
    const char* const anfang = name.data() + reihe.size() + 1;
    const auto [ende, fehler] = std::from_chars(anfang, name.data() + name.size(), index);
    return fehler == std::errc() ? std::optional(index) : std::nullopt;
}

} // namespace

Element* nachbarInReihe(const Oberfläche& oberfläche, const Element& element, bool vor)
{
    const std::string_view reihe = std::string_view(element.name()).substr(0, element.name().find('('));
    const auto hier = indexIn(element.name(), reihe);
    Element* nachbar = nullptr;
    int abstand = 0;
    for (auto* anderes : element.bildschirm()->elemente()) {
        const auto index = indexIn(anderes->name(), reihe);
        if (!hier || !index || !oberfläche.istErreichbar(*anderes)) {
            continue;
        }
        const int weg = vor ? *index - *hier : *hier - *index;
        if (weg > 0 && (nachbar == nullptr || weg < abstand)) {
            nachbar = anderes;
            abstand = weg;
        }
    }
    return nachbar;
}
