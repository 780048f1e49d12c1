#pragma once

#include "platform/text/Eingabe.h"

#include <QString>

#include <cstddef>
#include <string_view>

class QWidget;

/// What the field takes of a change: it held `bisher`, its widget now shows `jetzt` with the cursor behind `marke`
/// of Qt's characters.
Feldänderung filtere(std::string_view bisher, const QString& jetzt, int marke, bool mehrzeilig,
                     std::size_t höchstlänge);

/// Says beside the field that a character was replaced or not taken, or that the text is too long.
void meldeFilter(QWidget& feld, const Eingabeergebnis& ergebnis, std::size_t höchstlänge);
