#include "import/Betreuungssatz.h"

#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

void Betreuungssatz::lies(std::string_view zeile)
{
    m_zeile = zeile;
    ++m_gelesene;
    std::size_t anfang = 0;
    for (std::size_t i = 0;; ++i) {
        if (i == m_felder.size()) {
            throw Laufzeitfehler(verbinde("Der Betreuungssatz Nr. "_t, std::to_string(m_gelesene), " hat mehr als "_t,
                                          std::to_string(höchsteFeldzahl), " Felder."_t));
        }
        const auto ende = zeile.find(trenner, anfang);
        m_felder[i] = zeile.substr(anfang, ende - anfang);
        if (ende == std::string_view::npos) {
            return;
        }
        anfang = ende + 1;
    }
}

std::string_view Betreuungssatz::feld(int nummer) const
{
    if (nummer < 1 || nummer > höchsteFeldzahl) {
        throw Laufzeitfehler(verbinde("Der Betreuungssatz hat kein Feld "_t, std::to_string(nummer), '.'));
    }
    return m_felder[static_cast<std::size_t>(nummer - 1)];
}

std::string_view Betreuungssatz::feldOhneLeerzeichen(int nummer) const
{
    const auto text = feld(nummer);
    return text == " " ? std::string_view{} : text;
}
