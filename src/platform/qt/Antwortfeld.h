#pragma once

#include <QAbstractButton>
#include <QColor>

class Ansicht;
class triCtlJaNein;

/// The answer field, the one painted widget. Its colours are the answer's own and the same in all themes.
class Antwortfeld : public QAbstractButton {
public:
    Antwortfeld(triCtlJaNein& element, Ansicht& ansicht, QWidget* eltern);

    /// What it shows. The base class knows no text: it would tell a screen reader of each new one by itself.
    QString text() const { return m_text; }
    /// The same for the ear: "k.A." is said to be open.
    QString gesprochenerText() const;
    /// The ground it is painted on while it takes input.
    QColor hintergrund() const { return m_hintergrund; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* ereignis) override;

private:
    void übernimm();

    triCtlJaNein& m_element;
    Ansicht& m_ansicht;
    QString m_text;
    QColor m_hintergrund;
    QColor m_randfarbe;
};
