#include "platform/elemente/Elemente.h"

#include <algorithm>

namespace {

constexpr int rücktaste = 8;

} // namespace

void Auswahlfeld::setzeText(std::string_view text)
{
    const bool ganz = istTippbar() && hatFokus();
    const bool anders = m_text != text || m_schreibmarke != 0 || m_ganzGewählt != ganz;
    m_text = text;
    m_schreibmarke = 0;
    m_ganzGewählt = ganz;
    if (anders) {
        meldeÄnderung();
    }
}

void Auswahlfeld::setzeListe(std::vector<std::string> liste)
{
    m_liste = std::move(liste);
    meldeÄnderung();
}

void Auswahlfeld::fülle(std::vector<std::string> liste, std::string_view vorgabe)
{
    setzeListe(std::move(liste));
    setzeText(vorgabe);
}

void Auswahlfeld::setzeSchreibmarke(std::size_t ort)
{
    m_schreibmarke = std::min(ort, m_text.size());
    m_ganzGewählt = false;
    meldeÄnderung();
}

void Auswahlfeld::wähle(std::size_t eintrag)
{
    setzeText(m_liste.at(eintrag));
    rufe(beiWahl);
}

void Auswahlfeld::gibEin(std::string_view text, std::size_t schreibmarke)
{
    m_text = text;
    setzeSchreibmarke(schreibmarke);
}

void Auswahlfeld::wähleNachbar(bool vor)
{
    const auto ort = std::ranges::find(m_liste, m_text);
    if (ort == m_liste.end()) {
        if (!m_liste.empty()) {
            wähle(0);
        }
        return;
    }
    const auto stelle = static_cast<std::size_t>(ort - m_liste.begin());
    if (vor && stelle + 1 < m_liste.size()) {
        wähle(stelle + 1);
    } else if (!vor && stelle > 0) {
        wähle(stelle - 1);
    }
}

bool Auswahlfeld::taste(const Taste& taste)
{
    if (taste.art == Taste::Art::Auf || taste.art == Taste::Art::Ab) {
        wähleNachbar(taste.art == Taste::Art::Ab);
        return true;
    }
    return istTippbar() ? tasteTippbar(taste) : tasteNurWahl(taste);
}

bool Auswahlfeld::tasteNurWahl(const Taste& taste)
{
    if (taste.art == Taste::Art::Pos1 || taste.art == Taste::Art::Ende) {
        if (!m_liste.empty()) {
            wähle(taste.art == Taste::Art::Pos1 ? 0 : m_liste.size() - 1);
        }
        return true;
    }
    if (taste.art != Taste::Art::Zeichen) {
        return false;
    }
    const auto jetzt = std::ranges::find(m_liste, m_text);
    const auto anfang = jetzt == m_liste.end() ? 0 : static_cast<std::size_t>(jetzt - m_liste.begin()) + 1;
    for (std::size_t i = 0; i < m_liste.size(); ++i) {
        const auto stelle = (anfang + i) % m_liste.size();
        if (!m_liste[stelle].empty() && klein(m_liste[stelle].front()) == klein(taste.zeichen)) {
            wähle(stelle);
            break;
        }
    }
    return true;
}

/// Without a type-ahead what is selected makes way for what is typed; with one the text left of the cursor counts.
void Auswahlfeld::weicheAuswahl()
{
    if (m_ganzGewählt && !beiTastendruck) {
        gibEin({}, 0);
    }
}

void Auswahlfeld::setzeEin(int code)
{
    auto neu = m_text;
    if (code == rücktaste) {
        if (m_schreibmarke > 0) {
            neu.erase(m_schreibmarke - 1, 1);
            gibEin(neu, m_schreibmarke - 1);
        }
    } else if (code != 0) {
        neu.insert(m_schreibmarke, 1, static_cast<char>(static_cast<unsigned char>(code)));
        gibEin(neu, m_schreibmarke + 1);
    }
}

bool Auswahlfeld::tasteTippbar(const Taste& taste)
{
    switch (taste.art) {
    case Taste::Art::Zeichen:
    case Taste::Art::Rück: {
        int code = taste.art == Taste::Art::Rück ? rücktaste : static_cast<unsigned char>(taste.zeichen);
        if (beiTastendruck) {
            beiTastendruck(code);
        }
        weicheAuswahl();
        setzeEin(code);
        return true;
    }
    case Taste::Art::Entf:
        if (const bool hatAuswahl = m_ganzGewählt; !beiTastendruck) { // with a type-ahead Delete is swallowed
            weicheAuswahl();
            if (!hatAuswahl && m_schreibmarke < m_text.size()) {
                auto neu = m_text;
                neu.erase(m_schreibmarke, 1);
                gibEin(neu, m_schreibmarke);
            }
        }
        return true;
    default:
        return bewegeCursor(taste);
    }
}

bool Auswahlfeld::bewegeCursor(const Taste& taste)
{
    switch (taste.art) {
    case Taste::Art::Links:
        setzeSchreibmarke(m_schreibmarke == 0 ? 0 : m_schreibmarke - 1);
        return true;
    case Taste::Art::Rechts:
        setzeSchreibmarke(m_ganzGewählt ? m_text.size() : m_schreibmarke + 1);
        return true;
    case Taste::Art::Pos1:
        setzeSchreibmarke(0);
        return true;
    case Taste::Art::Ende:
        setzeSchreibmarke(m_text.size());
        return true;
    default:
        return false;
    }
}

void Auswahlfeld::fokusGewechselt(bool gekommen)
{
    if (istTippbar()) {
        m_schreibmarke = 0;
        m_ganzGewählt = gekommen;
        meldeÄnderung();
    }
}

void Auswahlfeld::fokusErneuert()
{
    fokusGewechselt(true);
}
