#include "sprache/Schreibhand.h"

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

void Schreibhand::fasse(Textfeld& feld)
{
    if (m_feld != &feld || m_text != feld.text()) {
        m_feld = &feld;
        merke(feld.schreibmarke(), feld.schreibmarke());
    }
}

void Schreibhand::merke(std::size_t schreibmarke, std::size_t anker)
{
    m_text = m_feld->text();
    m_schreibmarke = schreibmarke;
    m_anker = anker;
}

void Schreibhand::fügeEin(std::u32string_view zeichen)
{
    const auto von = std::min(m_schreibmarke, m_anker);
    const auto bis = std::max(m_schreibmarke, m_anker);
    const bool mehrzeilig = m_feld->istMehrzeilig();
    auto jetzt = alsFeldtext(std::string_view(m_text).substr(0, von), mehrzeilig);
    jetzt += zeichen;
    const auto marke = jetzt.size();
    jetzt += alsFeldtext(std::string_view(m_text).substr(bis), mehrzeilig);
    const auto änderung = nimmÄnderung(m_text, jetzt, marke, mehrzeilig, m_feld->höchstlänge());
    m_feld->gibEin(änderung.ergebnis.text, änderung.schreibmarke);
    merke(änderung.schreibmarke, änderung.anker);
}

void Schreibhand::lösche(bool rückwärts)
{
    auto von = std::min(m_schreibmarke, m_anker);
    auto bis = std::max(m_schreibmarke, m_anker);
    if (von == bis) {
        von -= rückwärts ? schrittZurück(m_text, von) : 0;
        bis += rückwärts ? 0 : schrittVor(m_text, bis);
    }
    m_feld->gibEin(m_text.substr(0, von) + m_text.substr(bis), von);
    merke(von, von);
}

bool Schreibhand::bewege(std::size_t ziel, const Tastendruck& druck)
{
    merke(ziel, druck.umschalt ? m_anker : ziel);
    return true;
}

bool Schreibhand::bewegeCursor(const Tastendruck& druck)
{
    const bool mehrzeilig = m_feld->istMehrzeilig();
    const bool gewählt = m_schreibmarke != m_anker && !druck.umschalt;
    switch (druck.art) {
    case Taste::Art::Links:
        return bewege(gewählt ? std::min(m_schreibmarke, m_anker)
                              : m_schreibmarke - schrittZurück(m_text, m_schreibmarke),
                      druck);
    case Taste::Art::Rechts:
        return bewege(gewählt ? std::max(m_schreibmarke, m_anker) : m_schreibmarke + schrittVor(m_text, m_schreibmarke),
                      druck);
    case Taste::Art::Auf:
    case Taste::Art::Ab:
        return mehrzeilig && bewege(nachbarzeile(m_text, m_schreibmarke, druck.art == Taste::Art::Ab), druck);
    case Taste::Art::Pos1:
        return bewege(mehrzeilig ? zeilenanfang(m_text, m_schreibmarke) : 0, druck);
    case Taste::Art::Ende:
        return bewege(mehrzeilig ? zeilenende(m_text, m_schreibmarke) : m_text.size(), druck);
    default:
        return false;
    }
}

/// The combinations that texts have everywhere: all of it, its start, its end.
bool Schreibhand::drückeMitStrg(const Tastendruck& druck)
{
    if (druck.alt) {
        return false;
    }
    if (druck.art == Taste::Art::Pos1 || druck.art == Taste::Art::Ende) {
        return bewege(druck.art == Taste::Art::Pos1 ? 0 : m_text.size(), druck);
    }
    const bool alles = druck.art == Taste::Art::Zeichen && (druck.zeichen == U'a' || druck.zeichen == U'A');
    if (alles) {
        merke(m_text.size(), 0);
    }
    return alles;
}

bool Schreibhand::drücke(Textfeld& feld, const Tastendruck& druck)
{
    fasse(feld);
    if (druck.strg || druck.alt) {
        return drückeMitStrg(druck);
    }
    switch (druck.art) {
    case Taste::Art::Zeichen: // as it is, since a mark is composed with the letter before it
        fügeEin(std::u32string_view(&druck.zeichen, 1));
        return true;
    case Taste::Art::Eingabe:
        if (feld.istMehrzeilig()) {
            fügeEin(U"\n");
        }
        return feld.istMehrzeilig();
    case Taste::Art::Rück:
    case Taste::Art::Entf:
        lösche(druck.art == Taste::Art::Rück);
        return true;
    default:
        return bewegeCursor(druck);
    }
}

void Schreibhand::ersetzeAlles(Textfeld& feld, std::u32string_view text)
{
    fasse(feld);
    merke(m_text.size(), 0);
    fügeEin(text);
}

namespace {

void ersetze(Datumsfeld& feld, std::size_t von, std::size_t bis, std::string_view text)
{
    auto neu = feld.anzeige();
    neu.replace(von, bis - von, text);
    feld.gibEin(neu, von + text.size());
}

void löscheIn(Datumsfeld& feld, std::size_t von, std::size_t bis, bool rückwärts)
{
    if (von == bis && rückwärts) {
        von -= std::min<std::size_t>(von, 1);
    } else if (von == bis) {
        bis = std::min(bis + 1, feld.anzeige().size());
    }
    if (von != bis) {
        ersetze(feld, von, bis, {});
    }
}

} // namespace

bool drückeInDatum(Datumsfeld& feld, const Taste& taste)
{
    const auto marke = feld.schreibmarke();
    const auto von = std::min(marke, feld.anker());
    const auto bis = std::max(marke, feld.anker());
    const bool gewählt = von != bis && !taste.umschalt;
    const auto gehe = [&](std::size_t ziel) {
        feld.setzeStelle(ziel, taste.umschalt ? feld.anker() : ziel);
        return true;
    };
    switch (taste.art) {
    case Taste::Art::Zeichen:
        ersetze(feld, von, bis, std::string_view(&taste.zeichen, 1));
        return true;
    case Taste::Art::Rück:
    case Taste::Art::Entf:
        löscheIn(feld, von, bis, taste.art == Taste::Art::Rück);
        return true;
    case Taste::Art::Links:
        return gehe(gewählt ? von : marke - std::min<std::size_t>(marke, 1));
    case Taste::Art::Rechts:
        return gehe(gewählt ? bis : marke + 1);
    case Taste::Art::Pos1:
        return gehe(0);
    case Taste::Art::Ende:
        return gehe(feld.anzeige().size());
    default:
        return false;
    }
}
