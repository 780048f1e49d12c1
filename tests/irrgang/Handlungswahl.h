#pragma once

#include "Zufall.h"

#include "oberflaeche/Oberflaeche.h"

#include <optional>
#include <string>

/// The next action on an element as a statement of the scenario language, chosen at random among those that
/// fit its kind; nothing where a person can do nothing with it.
std::optional<std::string> wähleHandlung(Element& element, const Oberfläche& oberfläche, Zufall& zufall,
                                         const Datum& heute);
