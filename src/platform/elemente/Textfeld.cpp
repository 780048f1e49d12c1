#include "platform/elemente/Elemente.h"

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

bool Textfeld::füge(std::string_view zeichen)
{
    if (m_höchstlänge > 0 && m_text.size() + zeichen.size() > m_höchstlänge) {
        return true;
    }
    auto neu = m_text;
    neu.insert(m_schreibmarke, zeichen);
    gibEin(neu, m_schreibmarke + zeichen.size());
    return true;
}

bool Textfeld::taste(const Taste& taste)
{
    const auto ohne = [this](std::size_t ort, std::size_t länge) {
        return m_text.substr(0, ort) + m_text.substr(ort + länge);
    };
    switch (taste.art) {
    case Taste::Art::Zeichen:
        return füge(std::string_view(&taste.zeichen, 1));
    case Taste::Art::Eingabe:
        return istMehrzeilig() && füge("\r\n");
    case Taste::Art::Rück: {
        const auto länge = schrittZurück(m_text, m_schreibmarke);
        gibEin(ohne(m_schreibmarke - länge, länge), m_schreibmarke - länge);
        return true;
    }
    case Taste::Art::Entf:
        gibEin(ohne(m_schreibmarke, schrittVor(m_text, m_schreibmarke)), m_schreibmarke);
        return true;
    case Taste::Art::Links:
        m_schreibmarke -= schrittZurück(m_text, m_schreibmarke);
        return true;
    case Taste::Art::Rechts:
        m_schreibmarke += schrittVor(m_text, m_schreibmarke);
        return true;
    case Taste::Art::Auf:
    case Taste::Art::Ab:
        if (istMehrzeilig()) {
            m_schreibmarke = nachbarzeile(m_text, m_schreibmarke, taste.art == Taste::Art::Ab);
        }
        return istMehrzeilig();
    case Taste::Art::Pos1:
        m_schreibmarke = istMehrzeilig() ? zeilenanfang(m_text, m_schreibmarke) : 0;
        return true;
    case Taste::Art::Ende:
        m_schreibmarke = istMehrzeilig() ? zeilenende(m_text, m_schreibmarke) : m_text.size();
        return true;
    default:
        return false;
    }
}

void Textfeld::fokusGewechselt(bool gekommen)
{
    if (gekommen) {
        m_schreibmarke = m_text.size();
    }
}
