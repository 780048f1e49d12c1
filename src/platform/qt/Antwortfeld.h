#pragma once

#include <QColor>
#include <QWidget>

class Ansicht;
class triCtlJaNein;

/// The answer field, the one painted widget.
class Antwortfeld : public QWidget {
public:
    Antwortfeld(triCtlJaNein& element, Ansicht& ansicht);

    /// What it shows.
    QString text() const;
    /// The ground it is painted on while it takes input.
    QColor hintergrund() const;
};
