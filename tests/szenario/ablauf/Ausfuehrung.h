#pragma once

#include "oberflaeche/Oberflaeche.h"
#include "sprache/Szenariodatei.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

/// Where and why a scenario failed (UTF-8).
struct Fehlschlag {
    std::size_t zeile = 0;
    std::string text; ///< "erwartet … gefunden …"
};

/// Told the line of each statement before it runs.
using Beobachter = std::function<void(std::size_t zeile)>;

/// Runs the scenario in a fresh program folder; nothing when it passes.
std::optional<Fehlschlag> führeAus(const Szenario& szenario, Oberfläche& oberfläche, const Beobachter& beobachter = {});
