#include "platform/dateien/Zeilensuche.h"

std::string_view Zeilensuche::finde(const std::string& schlüssel)
{
    if (const auto bekannt = m_gelesen.find(schlüssel); bekannt != m_gelesen.end()) {
        return bekannt->second;
    }
    while (const auto zeile = m_zeilen.nächste()) {
        const auto [eintrag, neu] = m_gelesen.try_emplace(m_schlüssel(*zeile), *zeile);
        if (neu && eintrag->first == schlüssel) {
            return *zeile;
        }
    }
    return {};
}
