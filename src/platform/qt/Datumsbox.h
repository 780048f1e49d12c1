#pragma once

#include <QDateEdit>

class Ansicht;
class Datumsfeld;

/// The date input: typed as TT.MM.JJJJ with leading zeros optional, or picked from the calendar.
class Datumsbox : public QDateEdit {
public:
    Datumsbox(Datumsfeld& element, Ansicht& ansicht, QWidget* eltern);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void wheelEvent(QWheelEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;

private:
    void übernimm();
    void richteKalenderEin();

    Datumsfeld& m_element;
    Ansicht& m_ansicht;
};
