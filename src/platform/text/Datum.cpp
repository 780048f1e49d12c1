#include "platform/text/Datum.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"

#include <algorithm>
#include <chrono>

namespace {

std::chrono::year_month_day alsKalendertag(const Datum& datum)
{
    return std::chrono::year(datum.jahr) / std::chrono::month(static_cast<unsigned>(datum.monat)) /
           std::chrono::day(static_cast<unsigned>(datum.tag));
}

constexpr std::chrono::sys_days nullpunkt = std::chrono::year(1899) / std::chrono::December / std::chrono::day(30);

std::string aufgefüllt(int zahl, std::size_t stellen)
{
    auto text = std::to_string(zahl);
    if (text.size() < stellen) {
        text.insert(0, stellen - text.size(), '0');
    }
    return text;
}

bool sindZiffern(std::string_view text, std::size_t höchstens)
{
    return !text.empty() && text.size() <= höchstens && text.find_first_not_of("0123456789") == std::string_view::npos;
}

} // namespace

bool istTagImKalender(const Datum& datum)
{
    return datum.jahr >= 1 && datum.jahr <= letztesDatumsjahr && datum.monat >= 1 && datum.tag >= 1 &&
           alsKalendertag(datum).ok();
}

std::int64_t alsTageszahl(const Datum& datum)
{
    return (std::chrono::sys_days(alsKalendertag(datum)) - nullpunkt).count();
}

Datum ausTageszahl(std::int64_t tage)
{
    const std::chrono::year_month_day tag{nullpunkt + std::chrono::days(tage)};
    return {static_cast<int>(tag.year()), static_cast<int>(static_cast<unsigned>(tag.month())),
            static_cast<int>(static_cast<unsigned>(tag.day()))};
}

std::string alsDatumstext(const Datum& datum)
{
    return verbinde(aufgefüllt(datum.tag, 2), '.', aufgefüllt(datum.monat, 2), '.', aufgefüllt(datum.jahr, 4));
}

std::optional<Datum> leseDatum(std::string_view text)
{
    text = getrimmt(text);
    const auto erster = text.find('.');
    const auto zweiter = text.rfind('.');
    if (erster == zweiter) {
        return std::nullopt;
    }
    const auto tag = text.substr(0, erster);
    const auto monat = text.substr(erster + 1, zweiter - erster - 1);
    const auto jahr = text.substr(zweiter + 1);
    const bool kurzesJahr = jahr.size() == 2;
    if (!sindZiffern(tag, 2) || !sindZiffern(monat, 2) || !sindZiffern(jahr, 4) || (!kurzesJahr && jahr.size() != 4)) {
        return std::nullopt;
    }
    Datum datum{*leseGanzzahl32(jahr), *leseGanzzahl32(monat), *leseGanzzahl32(tag)};
    if (kurzesJahr) {
        datum.jahr += datum.jahr < 30 ? 2000 : 1900;
    }
    if (!istTagImKalender(datum)) {
        return std::nullopt;
    }
    return datum;
}

std::optional<Datum> leseDatumseingabe(std::string_view text, const Datum& heute)
{
    auto mitPunkten = std::string(getrimmt(text));
    const auto punkte = std::ranges::count(mitPunkten, '.');
    if (punkte == 0 && (mitPunkten.size() == 6 || mitPunkten.size() == 8)) {
        mitPunkten.insert(4, 1, '.').insert(2, 1, '.');
    } else if (punkte == 1 || (punkte == 2 && mitPunkten.ends_with('.'))) {
        mitPunkten += punkte == 1 ? "." : "";
        mitPunkten += aufgefüllt(heute.jahr, 4);
    }
    const auto datum = leseDatum(mitPunkten);
    return datum && datum->jahr >= erstesDatumsjahr ? datum : std::nullopt;
}
