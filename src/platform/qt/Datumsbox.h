#pragma once

#include <QFrame>
#include <QLineEdit>

class Ansicht;
class Datumsbox;
class Datumsfeld;
class QCalendarWidget;
class QToolButton;

/// The open calendar of a date, in a popup below the field. Its keys go to the element; the mouse picks a day.
class Kalenderfenster : public QFrame {
public:
    explicit Kalenderfenster(Datumsbox& box);

    void stelle(const QDate& tag);

    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

protected:
    void hideEvent(QHideEvent* ereignis) override;

private:
    Datumsbox& m_box;
    QCalendarWidget* m_kalender;
};

/// The date input. Text, cursor and calendar are the element's; here they are drawn, and the toolkit's editing
/// (mouse, pasting, words) goes back to it. A date field of the toolkit would edit section by section, and drops
/// what it cannot read.
class Datumsbox : public QLineEdit {
public:
    Datumsbox(Datumsfeld& element, Ansicht& ansicht, QWidget* eltern);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    /// The calendar while it is open.
    QCalendarWidget* kalender() const;
    /// Where the calendar is opened with the mouse.
    QWidget& kalenderknopf() const;

protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;

private:
    friend class Kalenderfenster;

    void übernimm();
    void übernimmStelle();
    void übernimmKalender();
    void meldeStelle();

    Datumsfeld& m_element;
    Ansicht& m_ansicht;
    QToolButton* m_knopf;
    Kalenderfenster* m_kalender = nullptr;
    bool m_wirdGefüllt = false;
};
