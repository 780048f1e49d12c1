#include "platform/mappe/Zellwert.h"

#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>

namespace {

constexpr std::size_t höchsteStellenzahl = 15;
constexpr std::size_t höchsteZahllänge = 100;
constexpr Datum ersterTag{1900, 1, 1};

bool istZiffer(char zeichen)
{
    return zeichen >= '0' && zeichen <= '9';
}

std::size_t ziffernAb(std::string_view text, std::size_t ort)
{
    std::size_t ende = ort;
    while (ende < text.size() && istZiffer(text[ende])) {
        ++ende;
    }
    return ende - ort;
}

/// A number taken apart: sign, digits in one piece without points, the place of the comma, the exponent.
class Zahlleser {
public:
    Zahlleser(std::string_view text, bool minusHinten) : m_text(text), m_minusHinten(minusHinten) {}

    std::optional<double> lies()
    {
        if (m_text.size() > höchsteZahllänge || !liesVorzeichen() || !liesGanzteil() || !liesNachkomma() ||
            !liesExponent()) {
            return std::nullopt;
        }
        if (m_ort != m_text.size() || m_stellen > höchsteStellenzahl) {
            return std::nullopt;
        }
        return alsDouble();
    }

private:
    bool liesVorzeichen()
    {
        if (m_text.empty()) {
            return false;
        }
        const bool vorne = m_text.front() == '-' || m_text.front() == '+';
        m_negativ = m_text.front() == '-';
        m_ort = vorne ? 1 : 0;
        if (m_minusHinten && !vorne && m_text.back() == '-') {
            m_negativ = true;
            m_text.remove_suffix(1);
        }
        return true;
    }

    bool liesGanzteil()
    {
        const std::size_t erste = ziffernAb(m_text, m_ort);
        if (erste == 0) {
            return false;
        }
        nimm(erste);
        if (m_ort == m_text.size() || m_text[m_ort] != '.') {
            return true;
        }
        m_gruppiert = true;
        return erste <= 3 && liesGruppen();
    }

    bool liesGruppen()
    {
        while (m_ort < m_text.size() && m_text[m_ort] == '.') {
            ++m_ort;
            if (ziffernAb(m_text, m_ort) != 3) {
                return false;
            }
            nimm(3);
        }
        return true;
    }

    bool liesNachkomma()
    {
        if (m_ort == m_text.size() || m_text[m_ort] != ',') {
            return true;
        }
        ++m_ort;
        const std::size_t anzahl = ziffernAb(m_text, m_ort);
        m_ziffern[m_länge++] = '.';
        m_ganzzahl = false;
        nimm(anzahl);
        return anzahl > 0;
    }

    bool liesExponent()
    {
        if (m_ort == m_text.size() || (m_text[m_ort] != 'E' && m_text[m_ort] != 'e')) {
            return true;
        }
        m_ganzzahl = false;
        m_ziffern[m_länge++] = 'e';
        ++m_ort;
        if (m_ort < m_text.size() && (m_text[m_ort] == '-' || m_text[m_ort] == '+')) {
            if (m_text[m_ort] == '-') {
                m_ziffern[m_länge++] = '-';
            }
            ++m_ort;
        }
        const std::size_t anzahl = ziffernAb(m_text, m_ort);
        std::copy_n(m_text.data() + m_ort, anzahl, m_ziffern.data() + m_länge);
        m_länge += anzahl;
        m_ort += anzahl;
        return anzahl > 0 && !m_gruppiert;
    }

    /// Takes digits of the number proper; leading zeros don't count as significant.
    void nimm(std::size_t anzahl)
    {
        for (std::size_t i = 0; i < anzahl; ++i) {
            const char ziffer = m_text[m_ort++];
            m_ziffern[m_länge++] = ziffer;
            m_stellen += (m_stellen > 0 || ziffer != '0') ? 1U : 0U;
        }
    }

    std::optional<double> alsDouble() const
    {
        double wert = 0;
        if (m_ganzzahl) {
            for (std::size_t i = 0; i < m_länge; ++i) {
                wert = wert * 10 + (m_ziffern[i] - '0');
            }
        } else {
            const auto [ende, fehler] = std::from_chars(m_ziffern.data(), m_ziffern.data() + m_länge, wert);
            if (fehler != std::errc{} || !std::isfinite(wert)) {
                return std::nullopt;
            }
        }
        return m_negativ && wert != 0 ? -wert : wert;
    }

    std::string_view m_text;
    bool m_minusHinten;
    std::size_t m_ort = 0;
    bool m_negativ = false;
    bool m_gruppiert = false;
    bool m_ganzzahl = true;
    std::size_t m_stellen = 0;
    std::array<char, höchsteZahllänge + 2> m_ziffern{};
    std::size_t m_länge = 0;
};

/// D.M.YYYY or D.M.YY, day and month of one or two digits; leseDatum knows the calendar and the century.
std::optional<Datum> liesTag(std::string_view text)
{
    const std::size_t tag = ziffernAb(text, 0);
    const std::size_t monat = ziffernAb(text, tag + 1);
    const std::size_t jahr = ziffernAb(text, tag + monat + 2);
    if (text.size() != tag + monat + jahr + 2 || tag > 2 || monat > 2 || (jahr != 2 && jahr != 4)) {
        return std::nullopt;
    }
    const auto datum = leseDatum(text);
    return datum && *datum >= ersterTag ? datum : std::nullopt;
}

bool istLeer(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char zeichen) { return zeichen == '\0'; });
}

std::string alsZahltext(double zahl)
{
    std::array<char, 400> puffer{};
    const double betrag = std::fabs(zahl);
    const bool glatt = betrag == 0 || (betrag >= 1e-6 && betrag < 1e21);
    const auto form = glatt ? std::chars_format::fixed : std::chars_format::scientific;
    const auto ergebnis = std::to_chars(puffer.data(), puffer.data() + puffer.size(), zahl, form);
    return {puffer.data(), ergebnis.ptr};
}

} // namespace

Zellwert leseZelle(std::string_view text, Zelltyp typ)
{
    Zellwert wert;
    wert.text = text;
    if (istLeer(text)) {
        return wert;
    }
    wert.art = Zellart::Text;
    const std::string_view kern = typ == Zelltyp::Text ? std::string_view{} : getrimmt(text);
    if (kern.empty() || (!istZiffer(kern.front()) && kern.front() != '-' && kern.front() != '+')) {
        return wert;
    }
    if (const auto zahl = Zahlleser(kern, typ == Zelltyp::AllgemeinMinusHinten).lies()) {
        wert.art = Zellart::Zahl;
        wert.zahl = *zahl;
    } else if (const auto datum = liesTag(kern)) {
        wert.art = Zellart::Datum;
        wert.datum = *datum;
    }
    return wert;
}

std::string alsText(const Zellwert& wert)
{
    switch (wert.art) {
    case Zellart::Leer:
        return {};
    case Zellart::Zahl:
        return alsZahltext(wert.zahl);
    case Zellart::Datum:
        return alsDatumstext(wert.datum);
    case Zellart::Text:
        break;
    }
    std::string text{wert.text};
    std::erase(text, '\0');
    return text;
}

std::string alsAnzeigetext(const Zellwert& wert)
{
    std::string text = alsText(wert);
    if (wert.art == Zellart::Zahl) {
        std::replace(text.begin(), text.end(), '.', ',');
    }
    return text;
}
