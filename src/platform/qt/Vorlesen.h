#pragma once

#include <QString>

#include <string_view>

class Ansicht;
class Element;
class QCalendarWidget;
class QLabel;
class QWidget;

// What a screen reader meets. The toolkit answers for its own widgets, but not for all that ours are: a combo's
// name is its value there (on Unix), a button's press goes past the field that has the focus, a list takes no focus
// on demand, and an area that scrolls crashes on a child that is gone. Those answers are given in Vorlesefeld,
// Vorleseliste and Vorlesebereich; this is what the drawing routines say to them.

/// From now on the widgets of the screens answer screen readers in these ways; once for a run.
void richteVorlesenEin();

/// The root of a page belongs to this Ansicht, through which the way to its elements leads.
void meldeWurzel(QWidget& wurzel, Ansicht& ansicht);
/// The Ansicht of the page that the widget stands on; nullptr outside the pages.
Ansicht* ansichtUm(const QWidget& widget);

/// The label says what the field asks; a field may have several (row and column of a table).
void beschrifte(QWidget& feld, QLabel& etikett);
/// What tells the field from others with the same first question: the column of a table.
void unterscheide(QWidget& feld, const QString& wodurch);
/// The name of the field for readers that don't follow labels; a combo hands it to the text inside it.
void benenne(QWidget& feld, const QString& name);

/// What stands on the widget without a label of its own, a list or a text of several lines, takes this name.
void benenneUnbenannte(QWidget& um, const QString& name);
/// The "!" is called after what it fills.
void benenneFüller(QWidget& füller, std::string_view gefülltes);

/// A text that a reader (or whoever dictates through it) puts into the widget comes to the element as a typed one does.
void nimmFremdeEingabe(QWidget& feld, const Element& element, Ansicht& ansicht);

/// The calendar says each day that the keys or the mouse come to; the toolkit's own keeps silent.
void sprichKalender(QCalendarWidget& kalender);

/// The widget shows another value now.
void meldeWert(QWidget& feld, const QString& wert);

/// A caption as it is spoken: without mnemonic, and without the hyphens and breaks that only the drawing needs.
QString gesprochen(const QString& beschriftung);
