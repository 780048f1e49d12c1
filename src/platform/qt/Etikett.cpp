#include "platform/qt/Etikett.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"

#include <QMouseEvent>

#include <utility>

Etikett::Etikett(const QString& text, QWidget* eltern) : QLabel(text, eltern)
{
    setTextFormat(Qt::PlainText);
    setIndent(em(0.08)); // else a "J" at the start loses a pixel
}

Etikett::Etikett(Beschriftung& element, Ansicht& ansicht, QWidget* eltern) : Etikett(QString(), eltern)
{
    m_element = &element;
    m_ansicht = &ansicht;
    ansicht.binde(element, *this, [this] {
        zeigeText(alsMehrzeiler(m_element->text()));
        zeichneZeilenart();
    });
}

void Etikett::zeigeText(const QString& neu)
{
    if (text() != neu) {
        setText(neu);
        updateGeometry();
    }
}

void Etikett::zeichneZeilenart()
{
    if (!m_istListenzelle && m_element->zeilenart() == Beschriftung::Zeilenart::Gewöhnlich) {
        return;
    }
    m_istListenzelle = true;
    const auto art = m_element->zeilenart();
    const bool markiert = art == Beschriftung::Zeilenart::Markiert;
    QPalette farbig;
    if (markiert) {
        farbig.setColor(QPalette::Window, farben().akzent);
        farbig.setColor(QPalette::WindowText, farben().aufakzent);
    } else if (art == Beschriftung::Zeilenart::Hauptdiagnose) {
        farbig.setColor(QPalette::Active, QPalette::WindowText, farben().akzent);
        farbig.setColor(QPalette::Inactive, QPalette::WindowText, farben().akzent);
    }
    setPalette(farbig);
    setAutoFillBackground(markiert);
    setFont(schrift(art == Beschriftung::Zeilenart::Hauptdiagnose ? Schriftrolle::Wert : Schriftrolle::Grund));
}

void Etikett::setzeUmbruchbreite(int breite)
{
    m_umbruchbreite = breite;
    setWordWrap(true);
    setFixedWidth(breite);
}

void Etikett::brichAmBindestrich()
{
    setText(text().replace(QStringLiteral("- "), QStringLiteral("-\n")));
}

QSize Etikett::sizeHint() const
{
    return m_umbruchbreite > 0 ? QSize(m_umbruchbreite, heightForWidth(m_umbruchbreite)) : QLabel::sizeHint();
}

QSize Etikett::minimumSizeHint() const
{
    return m_umbruchbreite > 0 ? sizeHint() : QLabel::minimumSizeHint();
}

void Etikett::mousePressEvent(QMouseEvent* ereignis)
{
    m_gedrückt = m_element != nullptr && ereignis->button() == Qt::LeftButton;
    ereignis->setAccepted(m_gedrückt);
}

void Etikett::mouseReleaseEvent(QMouseEvent* ereignis)
{
    if (std::exchange(m_gedrückt, false) && rect().contains(ereignis->position().toPoint())) {
        m_ansicht->ereignis([this] { m_element->klicke(); });
    }
}

void Etikett::mouseDoubleClickEvent(QMouseEvent* ereignis)
{
    if (m_element != nullptr && ereignis->button() == Qt::LeftButton) {
        m_ansicht->ereignis([this] { m_element->doppelklicke(); });
    }
}
