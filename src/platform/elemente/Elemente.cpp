#include "platform/elemente/Elemente.h"

#include <algorithm>

void Beschriftung::setzeZeilenart(Zeilenart art)
{
    if (m_zeilenart != art) {
        m_zeilenart = art;
        meldeÄnderung();
    }
}

bool Schaltfläche::taste(const Taste& taste)
{
    if (taste.art != Taste::Art::Eingabe && !taste.istLeertaste()) {
        return false;
    }
    klicke();
    return true;
}

void Textfeld::setzeText(std::string_view text)
{
    if (m_text != text) {
        m_text = text;
        m_schreibmarke = 0;
        meldeÄnderung();
    }
}

void Textfeld::gibEin(std::string_view text, std::size_t schreibmarke)
{
    const bool anders = m_text != text;
    m_text = text;
    m_schreibmarke = schreibmarke;
    meldeÄnderung();
    if (anders) {
        rufe(beiÄnderung);
    }
}

void Textfeld::fokusGewechselt(bool gekommen)
{
    if (gekommen) {
        m_schreibmarke = m_text.size();
    }
}

void Optionsgruppe::markiereNur(const Optionsfeld& feld)
{
    for (auto* anderes : m_felder) {
        if (anderes != &feld) {
            anderes->setze(false);
        }
    }
}

void Optionsfeld::setze(bool an)
{
    if (an && m_gruppe != nullptr) {
        m_gruppe->markiereNur(*this);
    }
    if (m_an != an) {
        m_an = an;
        meldeÄnderung();
    }
}

void Optionsfeld::trittBei(Optionsgruppe& gruppe)
{
    m_gruppe = &gruppe;
    gruppe.füge(*this);
}

void Optionsfeld::klicke()
{
    setze(true);
    rufe(beiKlick);
}

bool Optionsfeld::taste(const Taste& taste)
{
    if (taste.istLeertaste()) {
        klicke();
        return true;
    }
    if ((taste.art == Taste::Art::Rück || taste.art == Taste::Art::Entf) && beiLöschtaste) {
        beiLöschtaste();
        return true;
    }
    return false;
}

void Ankreuzfeld::setze(bool an)
{
    if (m_an != an) {
        m_an = an;
        meldeÄnderung();
        rufe(beiÄnderung);
    }
}

bool Ankreuzfeld::taste(const Taste& taste)
{
    if (!taste.istLeertaste()) {
        return false;
    }
    klicke();
    return true;
}

void Fortschrittsbalken::setzeBereich(int kleinstes, int größtes)
{
    m_kleinstes = kleinstes;
    m_größtes = größtes;
    meldeÄnderung();
}

void Fortschrittsbalken::setzeWert(int wert, std::optional<double> anteil)
{
    m_wert = wert;
    m_anteil = anteil;
    meldeÄnderung();
}

void Fortschrittsbalken::setzeAnteil(double anteil)
{
    m_anteil = anteil;
    meldeÄnderung();
}

double Fortschrittsbalken::anteil() const
{
    const int spanne = std::max(1, m_größtes - m_kleinstes);
    return std::clamp(m_anteil.value_or(static_cast<double>(m_wert - m_kleinstes) / spanne), 0.0, 1.0);
}

void Bildlaufleiste::setzeBereich(int kleinstes, int größtes, int kleinerSchritt, int großerSchritt)
{
    m_kleinstes = kleinstes;
    m_größtes = größtes;
    m_kleinerSchritt = kleinerSchritt;
    m_großerSchritt = großerSchritt;
    meldeÄnderung();
    setzeWert(m_wert);
}

void Bildlaufleiste::setzeWert(int wert)
{
    const int erlaubt = std::max(m_kleinstes, std::min(wert, m_größtes));
    if (erlaubt != m_wert) {
        m_wert = erlaubt;
        meldeÄnderung();
        rufe(beiÄnderung);
    }
}

bool Bildlaufleiste::taste(const Taste& taste)
{
    switch (taste.art) {
    case Taste::Art::Auf:
        setzeWert(m_wert - m_kleinerSchritt);
        return true;
    case Taste::Art::Ab:
        setzeWert(m_wert + m_kleinerSchritt);
        return true;
    case Taste::Art::BildAuf:
        setzeWert(m_wert - m_großerSchritt);
        return true;
    case Taste::Art::BildAb:
        setzeWert(m_wert + m_großerSchritt);
        return true;
    case Taste::Art::Pos1:
        setzeWert(m_kleinstes);
        return true;
    case Taste::Art::Ende:
        setzeWert(m_größtes);
        return true;
    default:
        return false;
    }
}

void Fläche::setzeHöhe(double höhe)
{
    if (m_höhe != höhe) {
        m_höhe = höhe;
        meldeÄnderung();
        rufe(beiGrößenänderung);
    }
}

void Fläche::setzeOben(double oben)
{
    if (m_oben != oben) {
        m_oben = oben;
        meldeÄnderung();
    }
}
