#pragma once

#include <QDateEdit>

class Ansicht;
class Datumsfeld;

/// The date input: typed as TT.MM.JJJJ with leading zeros (and points) optional, or picked from the calendar.
///
/// The toolkit edits a date section by section and counts the point after two digits as a step further, so that
/// "02.08.2007" becomes another date. Here the text is edited as a text and read when the field is left.
class Datumsbox : public QDateEdit {
public:
    Datumsbox(Datumsfeld& element, Ansicht& ansicht, QWidget* eltern);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    void stepBy(int schritte) override;

protected:
    QValidator::State validate(QString& text, int& marke) const override;
    void fixup(QString& text) const override;
    QDateTime dateTimeFromText(const QString& text) const override;
    void wheelEvent(QWheelEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void focusInEvent(QFocusEvent* ereignis) override;

private:
    void übernimm();
    void richteKalenderEin();

    Datumsfeld& m_element;
    Ansicht& m_ansicht;
};
