#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A day of the calendar. The order of the members is the order of comparison: year, month, day.
struct Datum {
    int jahr = 1899;
    int monat = 12;
    int tag = 30;

    auto operator<=>(const Datum&) const = default;
};

/// Whether the day exists in the (Gregorian) calendar; years 1 to 9999.
bool istTagImKalender(const Datum& datum);

/// Days counted from 30.12.1899 (= 0), the count on which date values of the older systems rest.
std::int64_t alsTageszahl(const Datum& datum);
Datum ausTageszahl(std::int64_t tage);

/// "TT.MM.JJJJ": day and month with two digits; the year as it is, four digits at least.
std::string alsDatumstext(const Datum& datum);

/// Reads d.m.yyyy or d.m.yy (00 to 29 are 20yy, 30 to 99 are 19yy), a day of the calendar, blanks
/// around it allowed; anything else is no date.
std::optional<Datum> leseDatum(std::string_view text);

/// The years that a date input takes: one below is a slip of the keyboard.
inline constexpr int erstesDatumsjahr = 100;
inline constexpr int letztesDatumsjahr = 9999;

/// Reads a date as a person types it: as leseDatum does, besides without the year (d.m. or d.m: that of `heute`) and
/// without points (TTMMJJ, TTMMJJJJ). A year before `erstesDatumsjahr` is no date.
std::optional<Datum> leseDatumseingabe(std::string_view text, const Datum& heute);
