#pragma once

#include "ablauf/Lauf.h"

#include <map>
#include <string_view>

/// What each statement does. A handler throws Scheitern.
using Handler = void (*)(Lauf& lauf, const Anweisung& anweisung);
using Handlertafel = std::map<std::string_view, Handler>;

Handlertafel aufbauhandler();
Handlertafel elementhandler();
Handlertafel rahmenhandler();
Handlertafel bildschirmerwartungen();
Handlertafel listenerwartungen();
Handlertafel meldungserwartungen();
Handlertafel dateierwartungen();
Handlertafel mappenerwartungen();

/// All of them; throws std::logic_error when a form of the language has no handler.
const Handlertafel& alleHandler();
