#include "platform/qt/Datumsbox.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Stil.h"

#include <QCalendarWidget>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTextCharFormat>
#include <QWheelEvent>

namespace {

QDate alsQDate(const Datum& datum)
{
    return {datum.jahr, datum.monat, datum.tag};
}

} // namespace

Datumsbox::Datumsbox(Datumsfeld& element, Ansicht& ansicht, QWidget* eltern)
    : QDateEdit(eltern), m_element(element), m_ansicht(ansicht)
{
    setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
    setCalendarPopup(true);
    setKeyboardTracking(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    richteKalenderEin();
    connect(this, &QDateEdit::dateChanged, this, [this](QDate datum) {
        m_ansicht.ereignis([&] { m_element.wähle({datum.year(), datum.month(), datum.day()}); });
    });
    ansicht.binde(element, *this, [this] { übernimm(); });
}

void Datumsbox::richteKalenderEin()
{
    auto* kalender = new QCalendarWidget(this);
    kalender->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    kalender->setFirstDayOfWeek(locale().firstDayOfWeek());
    QTextCharFormat wochenende;
    wochenende.setForeground(farben().fehler);
    kalender->setWeekdayTextFormat(Qt::Saturday, wochenende);
    kalender->setWeekdayTextFormat(Qt::Sunday, wochenende);
    QTextCharFormat heute;
    heute.setFontWeight(QFont::Bold);
    kalender->setDateTextFormat(alsQDate(m_ansicht.heute()), heute);
    setCalendarWidget(kalender);
}

void Datumsbox::übernimm()
{
    const QSignalBlocker still(this);
    setDate(alsQDate(m_element.datum()));
    if (QFont schriftart = font(); schriftart.strikeOut() != m_element.istDurchgestrichen()) {
        schriftart.setStrikeOut(m_element.istDurchgestrichen());
        setFont(schriftart);
    }
}

QSize Datumsbox::sizeHint() const
{
    return {em(10), QDateEdit::sizeHint().height()};
}

void Datumsbox::wheelEvent(QWheelEvent* ereignis)
{
    if (hasFocus()) {
        QDateEdit::wheelEvent(ereignis);
    } else {
        ereignis->ignore(); // the page scrolls
    }
}

void Datumsbox::keyPressEvent(QKeyEvent* ereignis)
{
    QDateEdit::keyPressEvent(ereignis);
}

void Datumsbox::focusInEvent(QFocusEvent* ereignis)
{
    QDateEdit::focusInEvent(ereignis);
    if (ereignis->reason() != Qt::PopupFocusReason && ereignis->reason() != Qt::ActiveWindowFocusReason) {
        setSelectedSection(QDateTimeEdit::DaySection);
    }
}
