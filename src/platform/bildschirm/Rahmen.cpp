#include "platform/bildschirm/Rahmen.h"

void Rahmen::setzeTitel(std::string_view titel)
{
    m_titel = titel;
    geändert.melde();
}

void Rahmen::zeige(bool sichtbar)
{
    m_sichtbar = sichtbar;
    geändert.melde();
}

void Rahmen::setzeLage(double oben, double links)
{
    m_oben = oben;
    m_links = links;
    geändert.melde();
}

void Rahmen::setzeGröße(double breite, double höhe)
{
    m_breite = breite;
    m_höhe = höhe;
    geändert.melde();
    rufe(beiGrößenänderung);
}

void Rahmen::maximiere(bool maximiert)
{
    if (m_maximiert != maximiert) {
        m_maximiert = maximiert;
        geändert.melde();
        rufe(beiGrößenänderung);
    }
}

void Rahmen::benutzerVerschiebt(double oben, double links)
{
    m_oben = oben;
    m_links = links;
}

void Rahmen::benutzerÄndertGröße(double breite, double höhe)
{
    m_breite = breite;
    m_höhe = höhe;
    rufe(beiGrößenänderung);
}

void Rahmen::benutzerMaximiert(bool maximiert)
{
    if (m_maximiert != maximiert) {
        m_maximiert = maximiert;
        rufe(beiGrößenänderung);
    }
}

bool Rahmen::benutzerSchließt()
{
    return !beiSchließwunsch || beiSchließwunsch();
}
