#pragma once

#include "platform/elemente/Elemente.h"

#include <cstddef>

/// The list of a combo box while it is open: a highlight that the keys move, and that nothing follows until Return.
class OffeneListe {
public:
    bool istOffenAn(const Element* element) const { return m_feld != nullptr && m_feld == element; }
    void öffne(Auswahlfeld& feld);
    void schließe() { m_feld = nullptr; }
    /// Every key is the list's while it is open.
    void taste(const Taste& taste);

private:
    void bewege(std::size_t ziel);

    Auswahlfeld* m_feld = nullptr;
    std::size_t m_stelle = 0;
};
