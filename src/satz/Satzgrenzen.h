#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

/// How long and how high the records go. What older versions and other programs read are 16-bit numbers.
namespace satzgrenze {

inline constexpr int höchsteNummer = std::numeric_limits<std::int16_t>::max(); ///< of a client or an episode
inline constexpr std::size_t zeilenlänge = std::numeric_limits<std::int16_t>::max();
/// With all the other fields of its record it must stay below the length of a line.
inline constexpr std::size_t memolänge = 10000;
inline constexpr std::size_t eingabelänge = 255; ///< of a field of the client form

} // namespace satzgrenze
