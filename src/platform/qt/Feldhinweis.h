#pragma once

#include "platform/text/Eingabe.h"

#include <cstddef>

class QString;
class QWidget;

/// Says something about a field beside it, for four seconds, without taking focus or mouse: a date that could not be
/// read, a character that could not be stored. It is spoken by a screen reader. A new one takes the place of the last.
void zeigeFeldhinweis(QWidget& feld, const QString& text);

/// The object name of the hint.
inline constexpr auto feldhinweis = "feldhinweis";

/// Says beside the field that a character was replaced or not taken, or that the text is too long.
void meldeFilter(QWidget& feld, const Eingabeergebnis& ergebnis, std::size_t höchstlänge);
