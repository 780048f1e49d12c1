#include "platform/elemente/Element.h"

#include "platform/bildschirm/Bildschirm.h"

Element::Element(Bildschirm& bildschirm, std::string_view name) : m_bildschirm(bildschirm), m_name(name)
{
    m_bildschirm.nimmAuf(*this);
}

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

bool Element::hatFokus() const
{
    return m_bildschirm.fokus() == this;
}

bool Element::taste(const Taste& /*taste*/)
{
    return false;
}
