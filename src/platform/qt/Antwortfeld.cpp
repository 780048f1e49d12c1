#include "platform/qt/Antwortfeld.h"

#include "platform/elemente/triCtlJaNein.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesen.h"
#include "platform/text/Antworttexte.h"

#include <QPainter>

#include <utility>

namespace {

constexpr int ring = 3; ///< room around the field for the focus line, in hairlines
constexpr int rundung = 3;
constexpr float deckungGesperrt = 0.45F;
constexpr double lesbar = 4.5; ///< least contrast of a text

/// The colour behind the number (red + 256 × green + 65536 × blue).
QColor alsQColor(Farbe farbe)
{
    return {farbe & 0xFF, (farbe >> 8) & 0xFF, (farbe >> 16) & 0xFF};
}

/// The colour on the ground of the page, through which a disabled field lets it shine.
QColor blass(const QColor& farbe, const QColor& grund)
{
    const auto mische = [](float a, float b) { return a * deckungGesperrt + b * (1 - deckungGesperrt); };
    return QColor::fromRgbF(mische(farbe.redF(), grund.redF()), mische(farbe.greenF(), grund.greenF()),
                            mische(farbe.blueF(), grund.blueF()));
}

} // namespace

Antwortfeld::Antwortfeld(triCtlJaNein& element, Ansicht& ansicht, QWidget* eltern)
    : QAbstractButton(eltern), m_element(element), m_ansicht(ansicht)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this, [this] { m_ansicht.ereignis([this] { m_element.klicke(); }); });
    ansicht.binde(element, *this, [this] { übernimm(); });
}

void Antwortfeld::übernimm()
{
    const QString vorher = std::exchange(m_text, alsQString(m_element.text()));
    m_hintergrund = alsQColor(m_element.hintergrund());
    m_randfarbe = alsQColor(m_element.randfarbe());
    update();
    if (vorher != m_text) {
        meldeWert(*this, gesprochenerText());
    }
}

QString Antwortfeld::gesprochenerText() const
{
    return m_element.text() == antworttext::keine ? m_text + QStringLiteral(" (offen)") : m_text;
}

QSize Antwortfeld::sizeHint() const
{
    return {em(3.0) + 2 * ring, em(1.08) + 2 * ring};
}

void Antwortfeld::paintEvent(QPaintEvent* /*ereignis*/)
{
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    const QRectF feld = QRectF(rect()).adjusted(ring, ring, -ring, -ring);
    if (hasFocus()) {
        maler.setPen(QPen(farben().fokus, 2));
        maler.drawRoundedRect(feld.adjusted(-2, -2, 2, 2), rundung + 2, rundung + 2);
    }
    maler.setOpacity(isEnabled() ? 1.0 : deckungGesperrt);
    maler.setPen(QPen(m_randfarbe, 1));
    maler.setBrush(m_hintergrund);
    maler.drawRoundedRect(feld.adjusted(0.5, 0.5, -0.5, -0.5), rundung, rundung);
    maler.setOpacity(1.0);
    const auto gesperrteSchrift = [this] {
        const auto grund = blass(m_hintergrund, farben().flaeche);
        return kontrast(farben().schrift, grund) >= lesbar ? farben().schrift : QColor(Qt::black);
    };
    maler.setPen(isEnabled() ? QColor(Qt::black) : gesperrteSchrift());
    QFont schriftart = font();
    schriftart.setBold(m_hintergrund == Qt::white);
    maler.setFont(schriftart);
    maler.drawText(feld, Qt::AlignCenter, m_text);
}
