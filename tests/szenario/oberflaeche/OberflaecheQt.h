#pragma once

#include "oberflaeche/Oberflaeche.h"
#include "oberflaeche/Schirm.h"

#include <memory>

/// The real windows on Qt's offscreen platform: every action is the events of a mouse and a keyboard on the
/// real widgets, every reading reads them. Makes the application; one a process.
std::unique_ptr<Oberfläche> erzeugeOberflächeQt(const Schirm& schirm = {});
