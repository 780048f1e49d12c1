#pragma once

#include <QProgressBar>

class Ansicht;
class Fortschrittsbalken;

/// The progress bar.
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
