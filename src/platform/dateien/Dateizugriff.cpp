#include "platform/dateien/Dateizugriff.h"

#include <algorithm>

std::unique_ptr<Dateiinhalt> Dateizugriff::lies(const Pfad& pfad, std::uint64_t ab)
{
    const auto griff = öffneZumLesen(pfad);
    const auto länge = längeVon(griff);
    std::string text(static_cast<std::size_t>(länge - std::min(länge, ab)) + 1, '\0'); // one more, to see the end
    std::size_t gelesen = 0;
    while (const auto menge = liesAb(griff, ab + gelesen, std::span(text).subspan(gelesen))) {
        gelesen += menge;
        if (gelesen == text.size()) {
            text.resize(2 * text.size());
        }
    }
    text.resize(gelesen);
    return std::make_unique<Dateiinhalt>(std::move(text));
}

std::uint64_t Dateizugriff::länge(const Pfad& pfad)
{
    return längeVon(öffneZumLesen(pfad));
}

void OffeneDatei::schließe()
{
    prüfeSystem(m_griff.schließe());
}
