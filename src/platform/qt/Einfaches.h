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
