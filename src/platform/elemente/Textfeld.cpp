#include "platform/elemente/Elemente.h"

#include "platform/text/Eingabe.h"

#include <algorithm>

namespace {

/// How many characters belong together at a place: a line break of two counts as one step.
std::size_t schrittVor(std::string_view text, std::size_t ort)
{
    if (ort >= text.size()) {
        return 0;
    }
    return text.substr(ort, 2) == "\r\n" ? 2 : 1;
}

std::size_t schrittZurück(std::string_view text, std::size_t ort)
{
    if (ort == 0) {
        return 0;
    }
    return ort >= 2 && text.substr(ort - 2, 2) == "\r\n" ? 2 : 1;
}

std::size_t zeilenanfang(std::string_view text, std::size_t ort)
{
    const auto umbruch = ort == 0 ? std::string_view::npos : text.rfind('\n', ort - 1);
    return umbruch == std::string_view::npos ? 0 : umbruch + 1;
}

std::size_t zeilenende(std::string_view text, std::size_t ort)
{
    const auto umbruch = text.find('\r', ort);
    return umbruch == std::string_view::npos ? text.size() : umbruch;
}

/// The same place in the line before or after, at its end where that line is shorter.
std::size_t nachbarzeile(std::string_view text, std::size_t ort, bool vor)
{
    const auto anfang = zeilenanfang(text, ort);
    const auto ende = zeilenende(text, ort);
    if (vor ? ende == text.size() : anfang == 0) {
        return vor ? text.size() : 0;
    }
    const auto ziel =
        vor ? std::min(ende + 2, text.size()) : zeilenanfang(text, anfang - std::min<std::size_t>(anfang, 2));
    return std::min(ziel + (ort - anfang), zeilenende(text, ziel));
}

} // namespace

void Textfeld::setzeText(std::string_view text)
{
    if (m_text != text) {
        m_text = text;
        m_schreibmarke = 0;
        m_anker = 0;
        meldeÄnderung();
    }
}

void Textfeld::gibEin(std::string_view text, std::size_t schreibmarke)
{
    const bool anders = m_text != text;
    m_text = text;
    m_schreibmarke = schreibmarke;
    m_anker = schreibmarke;
    meldeÄnderung();
    if (anders) {
        rufe(beiÄnderung);
    }
}

void Textfeld::wähleAlles()
{
    m_anker = 0;
    m_schreibmarke = m_text.size();
}

void Textfeld::fügeEin(std::u32string_view zeichen)
{
    const auto von = std::min(m_schreibmarke, m_anker);
    const auto bis = std::max(m_schreibmarke, m_anker);
    auto jetzt = alsFeldtext(std::string_view(m_text).substr(0, von), istMehrzeilig());
    jetzt += zeichen;
    const auto marke = jetzt.size();
    jetzt += alsFeldtext(std::string_view(m_text).substr(bis), istMehrzeilig());
    const auto änderung = nimmÄnderung(m_text, jetzt, marke, istMehrzeilig(), m_höchstlänge);
    gibEin(änderung.ergebnis.text, änderung.schreibmarke);
    m_anker = änderung.anker;
}

void Textfeld::ersetze(std::size_t von, std::size_t bis)
{
    gibEin(m_text.substr(0, von) + m_text.substr(bis), von);
}

void Textfeld::lösche(bool rückwärts)
{
    auto von = std::min(m_schreibmarke, m_anker);
    auto bis = std::max(m_schreibmarke, m_anker);
    if (von == bis) {
        von -= rückwärts ? schrittZurück(m_text, von) : 0;
        bis += rückwärts ? 0 : schrittVor(m_text, bis);
    }
    ersetze(von, bis);
}

bool Textfeld::bewege(std::size_t ziel, const Taste& taste)
{
    m_schreibmarke = ziel;
    m_anker = taste.umschalt ? m_anker : ziel;
    return true;
}

bool Textfeld::bewegeCursor(const Taste& taste)
{
    const bool gewählt = m_schreibmarke != m_anker && !taste.umschalt;
    switch (taste.art) {
    case Taste::Art::Links:
        return bewege(gewählt ? std::min(m_schreibmarke, m_anker)
                              : m_schreibmarke - schrittZurück(m_text, m_schreibmarke),
                      taste);
    case Taste::Art::Rechts:
        return bewege(gewählt ? std::max(m_schreibmarke, m_anker) : m_schreibmarke + schrittVor(m_text, m_schreibmarke),
                      taste);
    case Taste::Art::Auf:
    case Taste::Art::Ab:
        return istMehrzeilig() && bewege(nachbarzeile(m_text, m_schreibmarke, taste.art == Taste::Art::Ab), taste);
    case Taste::Art::Pos1:
        return bewege(istMehrzeilig() ? zeilenanfang(m_text, m_schreibmarke) : 0, taste);
    case Taste::Art::Ende:
        return bewege(istMehrzeilig() ? zeilenende(m_text, m_schreibmarke) : m_text.size(), taste);
    default:
        return false;
    }
}

/// The combinations that texts have everywhere: all of it, its start, its end.
bool Textfeld::tasteMitStrg(const Taste& taste)
{
    if (taste.alt) {
        return false;
    }
    if (taste.art == Taste::Art::Pos1 || taste.art == Taste::Art::Ende) {
        return bewege(taste.art == Taste::Art::Pos1 ? 0 : m_text.size(), taste);
    }
    const bool alles = taste.art == Taste::Art::Zeichen && klein(taste.zeichen) == 'a';
    if (alles) {
        wähleAlles();
    }
    return alles;
}

bool Textfeld::taste(const Taste& taste)
{
    if (taste.istKombination()) {
        return tasteMitStrg(taste);
    }
    switch (taste.art) {
    case Taste::Art::Zeichen:
        fügeEin(alsFeldtext(std::string_view(&taste.zeichen, 1), false));
        return true;
    case Taste::Art::Eingabe:
        if (istMehrzeilig()) {
            fügeEin(U"\n");
        }
        return istMehrzeilig();
    case Taste::Art::Rück:
    case Taste::Art::Entf:
        lösche(taste.art == Taste::Art::Rück);
        return true;
    default:
        return bewegeCursor(taste);
    }
}

void Textfeld::fokusGewechselt(bool gekommen)
{
    if (gekommen) {
        m_schreibmarke = m_text.size();
        m_anker = m_schreibmarke;
    }
}
