#pragma once

#include "sprache/Tastenfolge.h"

#include <QPoint>
#include <Qt>

#include <string_view>

class Datumsbox;
class QComboBox;
class QDate;
class QTreeView;
class QWidget;

/// Mouse and keyboard on real widgets. The events go to the window, which finds the widget under the mouse
/// and the one that has the focus, as with a person's.
namespace qthand {

/// Where a person would press the widget.
QPoint griff(const QWidget& widget);

/// Turns the wheel over what cuts the widget off, until the place is in view or nothing moves any more.
void rolleMitRad(QWidget& widget, QPoint ort);

/// Turns the wheel over the middle of the widget.
void dreheRad(QWidget& widget, int schritte);

void klicke(QWidget& widget, QPoint ort);
/// The single click before it included.
void doppelklicke(QWidget& widget, QPoint ort);

/// A key to the window of the widget, or to the popup that is open.
void drücke(QWidget& fenster, Qt::Key taste, Qt::KeyboardModifiers zusatz = Qt::NoModifier);
void drücke(QWidget& fenster, const Tastendruck& druck);
void tippe(QWidget& fenster, std::u32string_view text);

/// Puts the text where the selection of the field is, through the clipboard.
void fügeEin(QWidget& fenster, std::u32string_view text);

/// Opens the list of the box and clicks on the entry.
void wähle(QComboBox& box, int eintrag);
/// Opens the calendar and clicks on the day.
void wähle(Datumsbox& feld, const QDate& datum);
/// The place of the row in the viewport of the list, scrolled into view.
QPoint zeilenort(QTreeView& liste, int zeile);
QPoint kopfort(QTreeView& liste, int spalte);

} // namespace qthand
