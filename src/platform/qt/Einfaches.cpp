#include "platform/qt/Einfaches.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Stil.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QSignalBlocker>
#include <QStyleOptionProgressBar>
#include <QStylePainter>

#include <algorithm>

namespace {

/// The program's sign: three answers below each other, the first one ticked.
QPixmap maleZeichen(int seite, double schärfe)
{
    QPixmap bild(QSize(seite, seite) * schärfe);
    bild.setDevicePixelRatio(schärfe);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.scale(seite / 96.0, seite / 96.0);
    maler.setPen(Qt::NoPen);
    maler.setBrush(farben().band);
    maler.drawRoundedRect(QRectF(2, 2, 92, 92), 14, 14);
    maler.setBrush(farben().aufband);
    for (const int oben : {20, 42, 64}) {
        maler.drawRoundedRect(QRectF(40, oben + 3, 40, 7), 3, 3);
        maler.drawRoundedRect(QRectF(16, oben, 14, 14), 3, 3);
    }
    maler.setBrush(Qt::NoBrush);
    maler.setPen(QPen(farben().akzent, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath haken(QPointF(18.5, 27));
    haken.lineTo(22, 31);
    haken.lineTo(28, 23);
    maler.drawPath(haken);
    return bild;
}

} // namespace

Fortschritt::Fortschritt(Fortschrittsbalken& element, Ansicht& ansicht, QWidget* eltern) : QProgressBar(eltern)
{
    setTextVisible(false);
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
    setPixmap(maleZeichen(em(6), devicePixelRatioF()));
    ansicht.binde(element, *this);
}
