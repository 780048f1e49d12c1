#include "oberflaeche/OffeneListe.h"

#include <algorithm>

void OffeneListe::öffne(Auswahlfeld& feld)
{
    const auto& liste = feld.liste();
    const auto ort = std::find(liste.begin(), liste.end(), feld.text());
    m_feld = liste.empty() ? nullptr : &feld;
    m_stelle = ort == liste.end() ? 0 : static_cast<std::size_t>(ort - liste.begin());
}

void OffeneListe::bewege(std::size_t ziel)
{
    m_stelle = std::min(ziel, m_feld->liste().size() - 1);
}

void OffeneListe::taste(const Taste& taste)
{
    if (taste.klapptAuf() || taste.art == Taste::Art::Esc) {
        schließe();
        return;
    }
    switch (taste.art) {
    case Taste::Art::Auf:
        bewege(m_stelle - std::min<std::size_t>(m_stelle, 1));
        break;
    case Taste::Art::Ab:
        bewege(m_stelle + 1);
        break;
    case Taste::Art::Pos1:
        bewege(0);
        break;
    case Taste::Art::Ende:
        bewege(m_feld->liste().size());
        break;
    case Taste::Art::Eingabe: {
        auto* feld = m_feld;
        schließe(); // before the rule of the choice, which may open another screen
        feld->wähle(m_stelle);
        break;
    }
    default:
        break;
    }
}
