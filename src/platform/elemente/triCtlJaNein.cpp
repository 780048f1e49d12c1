#include "platform/elemente/triCtlJaNein.h"

#include "platform/text/Antworttexte.h"

#include <algorithm>
#include <array>

namespace {

struct Antwortwert {
    std::string_view text;
    Farbe hintergrund;
};

constexpr std::array<Antwortwert, 3> antwortwerte{{
    {antworttext::keine, farbe::rot},
    {antworttext::ja, farbe::weiß},
    {antworttext::nein, farbe::grau},
}};

constexpr Farbe randMitFokus = 13394787;
constexpr Farbe randOhneFokus = 4325412;

} // namespace

triCtlJaNein::triCtlJaNein(Elementträger& träger, std::string_view name)
    : Elementart(träger, name), m_randfarbe(randOhneFokus)
{
    färbe();
}

std::string triCtlJaNein::text() const
{
    return std::string(antwortwerte[m_stelle].text);
}

void triCtlJaNein::setzeText(std::string_view text)
{
    const auto ort = std::ranges::find(antwortwerte, text, &Antwortwert::text);
    setzeStelle(ort == antwortwerte.end() ? 0 : static_cast<std::size_t>(ort - antwortwerte.begin()));
}

void triCtlJaNein::setzeStelle(std::size_t stelle)
{
    const bool anders = m_stelle != stelle;
    m_stelle = stelle;
    färbe();
    if (anders) {
        rufe(beiÄnderung);
    }
}

void triCtlJaNein::färbe()
{
    setzeHintergrund(antwortwerte[m_stelle].hintergrund);
}

void triCtlJaNein::klicke()
{
    setzeStelle((m_stelle + 1) % antwortwerte.size());
    doppelklicke();
}

bool triCtlJaNein::taste(const Taste& taste)
{
    if (taste.art == Taste::Art::Rechts) {
        setzeStelle((m_stelle + 1) % antwortwerte.size());
        return true;
    }
    if (taste.art == Taste::Art::Links) {
        setzeStelle((m_stelle + antwortwerte.size() - 1) % antwortwerte.size());
        return true;
    }
    return false;
}

void triCtlJaNein::fokusGewechselt(bool gekommen)
{
    m_randfarbe = gekommen ? randMitFokus : randOhneFokus;
    meldeÄnderung();
}
