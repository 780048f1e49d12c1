#pragma once

#include <QAccessibleWidget>

/// An area that scrolls, as a screen reader meets it: what stands still in it (the head of a table), then what
/// scrolls, then the scroll bars that are to be seen. A child that is gone since it was counted is no child; the
/// toolkit's own areas reach past the end of their list there and end the program.
class Vorlesebereich : public QAccessibleWidget {
public:
    explicit Vorlesebereich(QWidget& bereich) : QAccessibleWidget(&bereich, QAccessible::Client) {}

    int childCount() const override;
    QAccessibleInterface* child(int stelle) const override;
    int indexOfChild(const QAccessibleInterface* kind) const override;

private:
    QWidgetList kinder() const;
};

/// A page or a drawn part of it (header band, button bar, hairline). The toolkit calls every frame a window.
class Vorleseteil : public QAccessibleWidget {
public:
    explicit Vorleseteil(QWidget& teil, QAccessible::Role rolle) : QAccessibleWidget(&teil, rolle) {}
};

/// The window of a screen that stands over another one.
class Vorlesefenster : public QAccessibleWidget {
public:
    explicit Vorlesefenster(QWidget& fenster) : QAccessibleWidget(&fenster, QAccessible::Dialog) {}
};
