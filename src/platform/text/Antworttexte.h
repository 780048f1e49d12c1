#pragma once

#include "platform/text/Text.h"

/// The three answers that the value lists, the answer field and the rules of the screens speak of: spelt here alone.
namespace antworttext {

inline constexpr auto keine = "k.A."_t;
inline constexpr auto nein = "nein"_t;
inline constexpr auto ja = "ja"_t;

} // namespace antworttext
