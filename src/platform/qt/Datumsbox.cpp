#include "platform/qt/Datumsbox.h"

#include "platform/elemente/Datumsfeld.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Eingabewaechter.h"
#include "platform/qt/Feldhinweis.h"
#include "platform/qt/Fenster.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesen.h"

#include <QCalendarWidget>
#include <QFocusEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QScreen>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace {

QDate alsQDate(const Datum& datum)
{
    return {datum.jahr, datum.monat, datum.tag};
}

Datum alsDatum(const QDate& datum)
{
    return {datum.year(), datum.month(), datum.day()};
}

QCalendarWidget* erzeugeKalender(const QDate& heute, QWidget* eltern)
{
    auto* kalender = new QCalendarWidget(eltern);
    kalender->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    kalender->setFirstDayOfWeek(eltern->locale().firstDayOfWeek());
    kalender->setDateRange(QDate(erstesDatumsjahr, 1, 1), QDate(letztesDatumsjahr, 12, 31));
    QTextCharFormat wochenende;
    wochenende.setForeground(farben().fehler);
    kalender->setWeekdayTextFormat(Qt::Saturday, wochenende);
    kalender->setWeekdayTextFormat(Qt::Sunday, wochenende);
    QTextCharFormat heutiger;
    heutiger.setFontWeight(QFont::Bold);
    kalender->setDateTextFormat(heute, heutiger);
    sprichKalender(*kalender);
    return kalender;
}

} // namespace

/// The open calendar of a date, in a popup below the field. Its keys go to the element; the mouse picks a day.
class Datumsbox::Kalenderfenster : public QFrame {
public:
    explicit Kalenderfenster(Datumsbox& box)
        : QFrame(&box, Qt::Popup), m_box(box), m_kalender(erzeugeKalender(alsQDate(box.m_ansicht.heute()), this))
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setFrameStyle(QFrame::StyledPanel);
        ohneRand(new QVBoxLayout(this))->addWidget(m_kalender);
        for (auto* teil : m_kalender->findChildren<QWidget*>()) {
            teil->installEventFilter(this);
        }
        setFocusProxy(m_kalender);
        connect(m_kalender, &QCalendarWidget::clicked, this, [this](QDate tag) {
            m_box.m_ansicht.ereignis([&] {
                m_box.m_element.schließeKalender();
                m_box.m_element.wähle(alsDatum(tag));
            });
        });
    }

    QCalendarWidget* kalender() const { return m_kalender; }

    bool eventFilter(QObject* objekt, QEvent* ereignis) override
    {
        if (ereignis->type() != QEvent::KeyPress || objekt->inherits("QSpinBox")) {
            return QFrame::eventFilter(objekt, ereignis); // the year is typed into a box of its own
        }
        if (const auto taste = alsTaste(*static_cast<QKeyEvent*>(ereignis))) {
            m_box.m_ansicht.ereignis([&] { m_box.m_element.taste(*taste); });
        }
        return true;
    }

protected:
    /// A press beside it closes it too.
    void hideEvent(QHideEvent* ereignis) override
    {
        QFrame::hideEvent(ereignis);
        m_box.m_ansicht.ereignis([&] { m_box.m_element.schließeKalender(); });
    }

private:
    Datumsbox& m_box;
    QCalendarWidget* m_kalender;
};

Datumsbox::Datumsbox(Datumsfeld& element, Ansicht& ansicht, QWidget* eltern)
    : QLineEdit(eltern), m_element(element), m_ansicht(ansicht), m_knopf(new QToolButton(this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_knopf->setProperty("rolle", "kalender");
    m_knopf->setFocusPolicy(Qt::NoFocus);
    m_knopf->setCursor(Qt::ArrowCursor);
    m_knopf->setAccessibleName(QStringLiteral("Kalender öffnen"));
    connect(m_knopf, &QToolButton::clicked, this,
            [this] { m_ansicht.ereignis([this] { m_element.öffneKalender(); }); });
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_ansicht.ereignis([&] {
            const auto links = alsText(text.left(cursorPosition()));
            m_element.gibEin(alsText(text), links.size());
        });
    });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { meldeStelle(); });
    connect(this, &QLineEdit::selectionChanged, this, [this] { meldeStelle(); });
    ansicht.binde(element, *this, [this] { übernimm(); });
    ansicht.abonniere(element.beanstandet, [this] { zeigeFeldhinweis(*this, alsQString(m_element.beanstandung())); });
}

void Datumsbox::übernimm()
{
    m_wirdGefüllt = true;
    if (const auto text = alsQString(m_element.anzeige()); this->text() != text) {
        setText(text);
    }
    if (QFont schriftart = font(); schriftart.strikeOut() != m_element.istDurchgestrichen()) {
        schriftart.setStrikeOut(m_element.istDurchgestrichen());
        setFont(schriftart);
    }
    m_wirdGefüllt = false;
    übernimmStelle();
    übernimmKalender();
}

void Datumsbox::übernimmStelle()
{
    const auto marke = static_cast<int>(m_element.schreibmarke());
    const auto anker = static_cast<int>(m_element.anker());
    m_wirdGefüllt = true;
    if (marke == anker) {
        deselect();
        setCursorPosition(marke);
    } else {
        setSelection(anker, marke - anker);
    }
    m_wirdGefüllt = false;
}

/// The toolkit's own moves of cursor and selection.
void Datumsbox::meldeStelle()
{
    if (m_wirdGefüllt || !m_ansicht.lebt() || text() != alsQString(m_element.anzeige())) {
        return;
    }
    const int marke = cursorPosition();
    const int anker = !hasSelectedText() ? marke : selectionStart() == marke ? selectionEnd() : selectionStart();
    m_element.setzeStelle(static_cast<std::size_t>(marke), static_cast<std::size_t>(anker));
}

void Datumsbox::übernimmKalender()
{
    const auto tag = m_element.kalendertag();
    if (!tag) {
        if (auto* fenster = std::exchange(m_kalender, nullptr)) {
            fenster->close();
        }
        return;
    }
    const bool neu = m_kalender == nullptr;
    if (neu) {
        m_kalender = new Kalenderfenster(*this);
    }
    m_kalender->kalender()->setSelectedDate(alsQDate(*tag));
    if (neu) {
        m_kalender->adjustSize();
        const QPoint unten = mapToGlobal(QPoint(0, height()));
        const bool passtUnten = unten.y() + m_kalender->height() <= screen()->availableGeometry().bottom();
        const QPoint ort = passtUnten ? unten : mapToGlobal(QPoint(0, -m_kalender->height()));
        m_kalender->move(inDenSchirm(ort, m_kalender->size()));
        m_kalender->show();
        m_kalender->setFocus();
    }
}

QCalendarWidget* Datumsbox::kalender() const
{
    return m_kalender == nullptr ? nullptr : m_kalender->kalender();
}

QSize Datumsbox::sizeHint() const
{
    return {em(10), QLineEdit::sizeHint().height()};
}

void Datumsbox::resizeEvent(QResizeEvent* ereignis)
{
    QLineEdit::resizeEvent(ereignis);
    const int breite = em(1.1);
    const int rand = 2;
    m_knopf->setGeometry(width() - breite - rand, rand, breite, height() - 2 * rand);
    setTextMargins(0, 0, breite, 0);
}

void Datumsbox::focusInEvent(QFocusEvent* ereignis)
{
    QLineEdit::focusInEvent(ereignis);
    if (m_ansicht.lebt() && ereignis->reason() != Qt::PopupFocusReason) {
        übernimmStelle();
    }
}

/// A press sets the cursor, also at the place before a selected text, where it stands already.
void Datumsbox::mousePressEvent(QMouseEvent* ereignis)
{
    QLineEdit::mousePressEvent(ereignis);
    meldeStelle();
}
