#pragma once

/// Positions in the files of the older system and in the older core data set, from 1, as far as the program addresses
/// them by itself; the others stand in the instruction files and in the rules of stage 3.
namespace altfeld {

/// Its client file.
namespace klient {
inline constexpr int nummer = 1;
inline constexpr int nachname = 2; ///< from here to the town in the order of the client record
inline constexpr int ort = 6;
inline constexpr int geburt = 7; ///< stage 1 leaves the year alone
inline constexpr int geschlecht = 8;
inline constexpr int nationalität = 9;
inline constexpr int anzahl = nationalität;
} // namespace klient

/// Its care file.
namespace betreuung {
inline constexpr int nummer = 1;
inline constexpr int beginn = 3;
inline constexpr int kostenPauschal = 9;
inline constexpr int kostenKV = 10;
inline constexpr int kostenSelbst = 11;
inline constexpr int kostenSozial = 12;
inline constexpr int kostenRV = 13;
inline constexpr int kostenSonst = 14;
inline constexpr int alter = 152; ///< the value that stage 1 adds

inline constexpr int felderJeGruppe = 4;
/// The digits of problem group 1 to 19, with which its fields begin.
constexpr int gruppe(int nummer)
{
    return 47 + felderJeGruppe * nummer;
}
} // namespace betreuung

/// Problem groups of the care file.
namespace gruppe {
inline constexpr int f10 = 1;
inline constexpr int f19 = 10;
inline constexpr int f50 = 11;
inline constexpr int f550 = 12;
inline constexpr int f558 = 18;
inline constexpr int f630 = 19;
} // namespace gruppe

} // namespace altfeld

/// Columns of the two rows of the older core data set.
namespace altspalte {

inline constexpr int tsnr = 1; ///< in both rows

namespace kern {
inline constexpr int beginn = 4;
inline constexpr int ende = 5;
inline constexpr int geschlecht = 6;
inline constexpr int alter = 7;
inline constexpr int nationalität = 9;
inline constexpr int dauer = 163;
inline constexpr int anzahl = dauer;
} // namespace kern

namespace diag {
inline constexpr int f10 = 5; ///< one column for each class up to F19
inline constexpr int f19 = 14;
inline constexpr int f50 = 15;
inline constexpr int f55 = 16;
inline constexpr int f63 = 17;
inline constexpr int weitere = 204; ///< the first of twelve further diagnoses
inline constexpr int anzahl = 215;
} // namespace diag

} // namespace altspalte
