#include "platform/qt/Einfaches.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Stil.h"

#include <QIcon>
#include <QPixmap>
#include <QSignalBlocker>
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

Laufleiste::Laufleiste(Bildlaufleiste& element, Ansicht& ansicht, QWidget* eltern) : QScrollBar(Qt::Vertical, eltern)
{
    connect(this, &QScrollBar::valueChanged, this,
            [&element, &ansicht](int wert) { ansicht.ereignis([&] { element.setzeWert(wert); }); });
    ansicht.binde(element, *this, [this, &element] {
        const QSignalBlocker still(this);
        setRange(element.kleinstes(), element.größtes());
        setSingleStep(element.kleinerSchritt());
        setPageStep(element.großerSchritt());
        setValue(element.wert());
    });
}

Bildfläche::Bildfläche(Bild& element, Ansicht& ansicht, QWidget* eltern) : QLabel(eltern)
{
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
    setPixmap(programmzeichen().pixmap(QSize(em(6), em(6)), devicePixelRatioF()));
    ansicht.binde(element, *this);
}
