#include "Mitschrift.h"

#include <algorithm>
#include <ostream>

void Mitschrift::gibAus(std::ostream& ziel, std::size_t höchstens) const
{
    const std::size_t anzahl = std::min(höchstens, m_schritte.size());
    for (std::size_t i = m_schritte.size() - anzahl; i < m_schritte.size(); ++i) {
        for (const auto& anweisung : m_schritte[i]) {
            ziel << anweisung << '\n';
        }
    }
}
