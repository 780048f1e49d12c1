#pragma once

#include <QProgressBar>

class Ansicht;
class Fortschrittsbalken;

/// The progress bar.
class Fortschritt : public QProgressBar {
public:
    Fortschritt(Fortschrittsbalken& element, Ansicht& ansicht, QWidget* eltern);

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    double m_anteil = 0; ///< of the work that is done, 0 to 1
};
