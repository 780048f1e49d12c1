#pragma once

#include "platform/qt/Vorlesekinder.h"

#include <QAccessibleWidget>

/// An area that scrolls, as a screen reader meets it: what stands still in it (the head of a table), then what
/// scrolls, then the scroll bars that are to be seen.
class Vorlesebereich : public Vorlesekinder<QAccessibleWidget> {
public:
    explicit Vorlesebereich(QWidget& bereich) : Vorlesekinder(&bereich, QAccessible::Client) {}

protected:
    QWidgetList kinder() const override;
};

/// A page or a drawn part of it (header band, button bar, hairline), or a hint. The toolkit calls every frame a window.
class Vorleseteil : public QAccessibleWidget {
public:
    explicit Vorleseteil(QWidget& teil, QAccessible::Role rolle) : QAccessibleWidget(&teil, rolle) {}
};

/// The window of a screen that stands over another one.
class Vorlesefenster : public QAccessibleWidget {
public:
    explicit Vorlesefenster(QWidget& fenster) : QAccessibleWidget(&fenster, QAccessible::Dialog) {}
};
