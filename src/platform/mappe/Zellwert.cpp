#include "platform/mappe/Zellwert.h"

#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <system_error>

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

/// Takes the character from the front, if it stands there.
bool nimm(std::string_view& text, char zeichen)
{
    const bool da = text.starts_with(zeichen);
    text.remove_prefix(da ? 1 : 0);
    return da;
}

/// Takes the digits from the front and puts them behind the number; how many they were.
std::size_t nimmZiffern(std::string_view& text, std::string& zahl)
{
    const std::size_t anzahl = ziffernAb(text, 0);
    zahl += text.substr(0, anzahl);
    text.remove_prefix(anzahl);
    return anzahl;
}

/// Digits, with points between full groups of three, then perhaps a comma with digits, or an exponent where there are
/// no groups; as std::from_chars reads it, without a sign. False where the front is no number.
bool nimmBetrag(std::string_view& text, std::string& zahl)
{
    const std::size_t erste = nimmZiffern(text, zahl);
    const bool gruppiert = text.starts_with('.');
    if (erste == 0 || (gruppiert && erste > 3)) {
        return false;
    }
    while (nimm(text, '.')) {
        if (nimmZiffern(text, zahl) != 3) {
            return false;
        }
    }
    if (nimm(text, ',')) {
        zahl += '.';
        return nimmZiffern(text, zahl) > 0;
    }
    return true;
}

bool nimmExponent(std::string_view& text, std::string& zahl)
{
    zahl += 'e';
    if (nimm(text, '-')) {
        zahl += '-';
    } else {
        nimm(text, '+');
    }
    return nimmZiffern(text, zahl) > 0;
}

/// Leading zeros don't count.
std::size_t geltendeStellen(std::string_view zahl)
{
    if (zahl.size() <= höchsteStellenzahl) {
        return zahl.size(); // nearly always; fewer make no difference
    }
    zahl.remove_prefix(std::min(zahl.find_first_not_of("0."), zahl.size()));
    return static_cast<std::size_t>(std::ranges::count_if(zahl, istZiffer));
}

std::optional<double> liesZahl(std::string_view text, bool minusHinten)
{
    if (text.size() > höchsteZahllänge) {
        return std::nullopt;
    }
    const bool mitVorzeichen = text.starts_with('-') || text.starts_with('+');
    bool negativ = text.starts_with('-');
    if (mitVorzeichen) {
        text.remove_prefix(1);
    } else if (minusHinten && text.ends_with('-')) {
        negativ = true;
        text.remove_suffix(1);
    }
    std::string zahl;
    const bool gruppiert = text.find('.') != std::string_view::npos;
    if (!nimmBetrag(text, zahl) || geltendeStellen(zahl) > höchsteStellenzahl) {
        return std::nullopt;
    }
    if (!gruppiert && (nimm(text, 'E') || nimm(text, 'e')) && !nimmExponent(text, zahl)) {
        return std::nullopt;
    }
    double wert = 0;
    const auto [ende, fehler] = std::from_chars(zahl.data(), zahl.data() + zahl.size(), wert);
    if (!text.empty() || fehler != std::errc{}) {
        return std::nullopt;
    }
    return negativ && wert != 0 ? -wert : wert;
}

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
    return std::ranges::all_of(text, [](char zeichen) { return zeichen == '\0'; });
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
    if (const auto zahl = liesZahl(kern, typ == Zelltyp::AllgemeinMinusHinten)) {
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
        std::ranges::replace(text, '.', ',');
    }
    return text;
}
