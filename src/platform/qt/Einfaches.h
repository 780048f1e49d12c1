#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QScrollBar>

class Ansicht;
class Bild;
class Bildlaufleiste;
class Fortschrittsbalken;

class Fortschritt : public QProgressBar {
public:
    Fortschritt(Fortschrittsbalken& element, Ansicht& ansicht, QWidget* eltern);

    /// The share that is drawn, 0 to 1.
    double anteil() const { return m_anteil; }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    double m_anteil = 0;
};

class Laufleiste : public QScrollBar {
public:
    Laufleiste(Bildlaufleiste& element, Ansicht& ansicht, QWidget* eltern);
};

/// A picture that the program draws itself.
class Bildfläche : public QLabel {
public:
    Bildfläche(Bild& element, Ansicht& ansicht, QWidget* eltern);
};
