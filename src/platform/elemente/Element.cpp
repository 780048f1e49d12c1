#include "platform/elemente/Element.h"

void Element::zeige(bool sichtbar)
{
    if (m_sichtbar != sichtbar) {
        m_sichtbar = sichtbar;
        meldeÄnderung();
    }
}

void Element::gibFrei(bool frei)
{
    if (m_frei != frei) {
        m_frei = frei;
        meldeÄnderung();
    }
}

void Element::setzeHinweis(std::string_view hinweis)
{
    m_hinweis = hinweis;
    meldeÄnderung();
}

void Element::setzeHintergrund(Farbe farbe)
{
    m_hintergrund = farbe;
    meldeÄnderung();
}

bool Element::taste(const Taste& /*taste*/)
{
    return false;
}
