#pragma once

struct Anordnung;
class Ansicht;
class QWidget;

/// The diagnosis listing with its scroll bar: heads and the first row stand, the others move inside the element
/// `frameHinten` as `frameVorne` says. Sideways it scrolls as a whole.
QWidget* macheListung(const Anordnung& listung, Ansicht& ansicht, QWidget* eltern);
