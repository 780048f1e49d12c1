#pragma once

#include <QLineEdit>

class Ansicht;
class Datumsfeld;
class QCalendarWidget;
class QToolButton;

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

protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;

private:
    class Kalenderfenster;

    void übernimm();
    void übernimmStelle();
    void übernimmKalender();
    void meldeStelle();

    Datumsfeld& m_element;
    Ansicht& m_ansicht;
    QToolButton* m_knopf; ///< opens the calendar with the mouse
    Kalenderfenster* m_kalender = nullptr;
    bool m_wirdGefüllt = false;
};
