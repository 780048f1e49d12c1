#include "platform/qt/Datumsbox.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Stil.h"

#include <QCalendarWidget>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QTextCharFormat>
#include <QWheelEvent>

namespace {

QDate alsQDate(const Datum& datum)
{
    return {datum.jahr, datum.monat, datum.tag};
}

/// "02082007" as "02.08.2007".
QString mitPunkten(const QString& text)
{
    constexpr int ziffern = 8;
    const bool ohnePunkte = text.size() == ziffern && !text.contains(QChar('.'));
    return ohnePunkte ? text.left(2) + QChar('.') + text.mid(2, 2) + QChar('.') + text.mid(4) : text;
}

QDate lies(const QString& text)
{
    const auto datum = leseDatum(mitPunkten(text).toStdString());
    return datum ? alsQDate(*datum) : QDate();
}

bool hatVolleJahreszahl(const QString& text)
{
    return mitPunkten(text).section(QChar('.'), 2).size() == 4;
}

} // namespace

Datumsbox::Datumsbox(Datumsfeld& element, Ansicht& ansicht, QWidget* eltern)
    : QDateEdit(eltern), m_element(element), m_ansicht(ansicht)
{
    setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
    setCalendarPopup(true);
    setKeyboardTracking(false);
    // the cursor is to stay where it was put, not to select sections
    disconnect(lineEdit(), SIGNAL(cursorPositionChanged(int, int)), this, nullptr);
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
    if (QFont schriftart = lineEdit()->font(); schriftart.strikeOut() != m_element.istDurchgestrichen()) {
        schriftart.setStrikeOut(m_element.istDurchgestrichen());
        lineEdit()->setFont(schriftart);
    }
    if (!m_element.istFrei()) {
        lineEdit()->deselect(); // nothing there waits for the keyboard
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
    const bool blättert = ereignis->key() == Qt::Key_Up || ereignis->key() == Qt::Key_Down ||
                          ereignis->key() == Qt::Key_PageUp || ereignis->key() == Qt::Key_PageDown;
    if (blättert) {
        QDateEdit::keyPressEvent(ereignis);
    } else {
        QAbstractSpinBox::keyPressEvent(ereignis);
    }
}

void Datumsbox::stepBy(int schritte)
{
    interpretText();
    const auto links = lineEdit()->text().left(lineEdit()->cursorPosition());
    const auto punkte = lineEdit()->hasSelectedText() ? 0 : links.count(QChar('.'));
    setCurrentSection(punkte == 0 ? DaySection : punkte == 1 ? MonthSection : YearSection);
    QDateEdit::stepBy(schritte);
}

QValidator::State Datumsbox::validate(QString& text, int& /*marke*/) const
{
    static const QRegularExpression anfang(
        QStringLiteral("^(\\d{0,8}|\\d{0,2}\\.\\d{0,2}|\\d{0,2}\\.\\d{0,2}\\.\\d{0,4})$"));
    if (!anfang.match(text).hasMatch()) {
        return QValidator::Invalid;
    }
    const auto datum = lies(text);
    const bool gilt = hatVolleJahreszahl(text) && datum.isValid() && datum >= minimumDate();
    return gilt ? QValidator::Acceptable : QValidator::Intermediate;
}

/// A year of two digits is completed when the field is left.
void Datumsbox::fixup(QString& text) const
{
    if (const auto datum = lies(text); datum.isValid()) {
        text = datum.toString(displayFormat());
    }
}

QDateTime Datumsbox::dateTimeFromText(const QString& text) const
{
    return lies(text).startOfDay();
}

void Datumsbox::focusInEvent(QFocusEvent* ereignis)
{
    QAbstractSpinBox::focusInEvent(ereignis);
    if (ereignis->reason() == Qt::OtherFocusReason) {
        selectAll(); // what is typed replaces the date
    }
}
