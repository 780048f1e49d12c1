#pragma once

/// Columns of the two export rows, from 1, that the tables of the records don't place: they belong to no field or to
/// several. Export and import read them here.
namespace exportspalte {

inline constexpr int tsnr = 1; ///< in both rows
inline constexpr int kernID = 2;
inline constexpr int betrID = 3;

namespace kern {
inline constexpr int dauer = 6;
} // namespace kern

namespace diag {
inline constexpr int hauptdiagnose = 159;
inline constexpr int alterErstkonsum = 160;
} // namespace diag

} // namespace exportspalte
