#include "oberflaeche/Datumseingabe.h"

#include "platform/text/Datum.h"

#include <algorithm>
#include <optional>

namespace {

/// At most eight digits, or groups of two, two and four between points.
bool istDatumsanfang(std::string_view text)
{
    if (std::all_of(text.begin(), text.end(), [](char z) { return z >= '0' && z <= '9'; })) {
        return text.size() <= 8;
    }
    std::size_t gruppe = 0;
    std::size_t ziffern = 0;
    for (const char zeichen : text) {
        if (zeichen == '.') {
            ++gruppe;
            ziffern = 0;
        } else if (zeichen < '0' || zeichen > '9' || ++ziffern > (gruppe == 2 ? 4U : 2U)) {
            return false;
        }
        if (gruppe > 2) {
            return false;
        }
    }
    return true;
}

std::optional<Datum> lies(std::string text)
{
    if (text.size() == 8 && text.find('.') == std::string::npos) {
        text.insert(4, 1, '.').insert(2, 1, '.');
    }
    return leseDatum(text);
}

/// The date with day (0), month (1) or year (2) moved, within the calendar.
Datum verstellt(Datum datum, std::ptrdiff_t teil, int schritte)
{
    constexpr int letzterMonat = 12;
    constexpr int letztesJahr = 9999;
    if (teil == 0) {
        const Datum neu{datum.jahr, datum.monat, datum.tag + schritte};
        return istTagImKalender(neu) ? neu : datum;
    }
    if (teil == 1) {
        datum.monat = std::clamp(datum.monat + schritte, 1, letzterMonat);
    } else {
        datum.jahr = std::clamp(datum.jahr + schritte, 100, letztesJahr);
    }
    while (!istTagImKalender(datum)) {
        --datum.tag;
    }
    return datum;
}

} // namespace

Datumseingabe::Datumseingabe(Datumsfeld& feld)
    : m_feld(feld), m_anfang(feld.datum()), m_text(feld.text()), m_marke(m_text.size())
{}

bool Datumseingabe::taste(const Taste& taste)
{
    switch (taste.art) {
    case Taste::Art::Zeichen:
        tippe(taste.zeichen);
        return true;
    case Taste::Art::Rück:
    case Taste::Art::Entf:
        lösche(taste.art == Taste::Art::Rück);
        return true;
    case Taste::Art::Auf:
    case Taste::Art::Ab:
        stelle(taste.art == Taste::Art::Auf ? 1 : -1);
        return true;
    case Taste::Art::Links:
    case Taste::Art::Pos1:
        m_marke = taste.art == Taste::Art::Pos1 || m_ganzGewählt ? 0 : m_marke - std::min<std::size_t>(m_marke, 1);
        break;
    case Taste::Art::Rechts:
    case Taste::Art::Ende:
        m_marke = taste.art == Taste::Art::Ende ? m_text.size() : std::min(m_marke + 1, m_text.size());
        break;
    default:
        return false;
    }
    m_ganzGewählt = false;
    return true;
}

void Datumseingabe::tippe(char zeichen)
{
    std::string neu = m_ganzGewählt ? std::string() : m_text;
    const std::size_t marke = m_ganzGewählt ? 0 : m_marke;
    neu.insert(marke, 1, zeichen);
    if (istDatumsanfang(neu)) {
        m_text = neu;
        m_marke = marke + 1;
        m_ganzGewählt = false;
    }
}

void Datumseingabe::lösche(bool rückwärts)
{
    if (m_ganzGewählt) {
        m_text.clear();
        m_marke = 0;
        m_ganzGewählt = false;
        return;
    }
    if (rückwärts && m_marke == 0) {
        return;
    }
    const std::size_t ort = rückwärts ? m_marke - 1 : m_marke;
    std::string neu = m_text;
    neu.erase(ort, 1);
    if (istDatumsanfang(neu)) {
        m_text = neu;
        m_marke = ort;
    }
}

void Datumseingabe::stelle(int schritte)
{
    const auto links = m_text.begin() + static_cast<std::ptrdiff_t>(m_marke);
    const auto teil = m_ganzGewählt ? 0 : std::count(m_text.begin(), links, '.');
    m_feld.wähle(verstellt(lies(m_text).value_or(m_anfang), teil, schritte));
    m_anfang = m_feld.datum();
    m_text = m_feld.text();
}

void Datumseingabe::übernimm()
{
    const auto datum = lies(m_text);
    if (datum && *datum != m_anfang && gilt()) {
        m_feld.wähle(*datum);
    }
}
