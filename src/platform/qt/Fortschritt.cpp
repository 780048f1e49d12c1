#include "platform/qt/Fortschritt.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"

#include <QStyleOptionProgressBar>
#include <QStylePainter>

#include <algorithm>

Fortschritt::Fortschritt(Fortschrittsbalken& element, Ansicht& ansicht, QWidget* eltern) : QProgressBar(eltern)
{
    setTextVisible(false);
    setAccessibleName(QStringLiteral("Fortschritt"));
    ansicht.binde(element, *this, [this, &element] {
        // an empty range would make the bar wander
        setRange(element.kleinstes(), std::max(element.kleinstes() + 1, element.größtes()));
        setValue(std::clamp(element.wert(), minimum(), maximum()));
        m_anteil = element.anteil();
        update();
    });
}

/// The value of the bar counts the steps; what is drawn is the share of the work.
void Fortschritt::paintEvent(QPaintEvent* /*ereignis*/)
{
    constexpr int fein = 1000;
    QStyleOptionProgressBar bild;
    initStyleOption(&bild);
    bild.minimum = 0;
    bild.maximum = fein;
    bild.progress = static_cast<int>(m_anteil * fein);
    QStylePainter(this).drawControl(QStyle::CE_ProgressBar, bild);
}
