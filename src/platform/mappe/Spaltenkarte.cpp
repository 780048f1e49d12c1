#include "platform/mappe/Spaltenkarte.h"

int Spaltenkarte::ort(int spalte) const
{
    const auto stelle = static_cast<std::size_t>(spalte - 1);
    return stelle < m_orte.size() ? m_orte[stelle] : spalte + m_gelöscht;
}

void Spaltenkarte::lösche(int spalte, int anzahl)
{
    while (m_orte.size() < static_cast<std::size_t>(spalte + anzahl - 1)) {
        m_orte.push_back(ort(static_cast<int>(m_orte.size()) + 1));
    }
    const auto erste = m_orte.begin() + (spalte - 1);
    m_orte.erase(erste, erste + anzahl);
    m_gelöscht += anzahl;
}
