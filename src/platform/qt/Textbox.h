#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

class Ansicht;
class Textfeld;

/// The one-line text box. Editing is the toolkit's own; every change goes to the element at once.
class Textzeile : public QLineEdit {
public:
    Textzeile(Textfeld& element, Ansicht& ansicht, QWidget* eltern);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void focusInEvent(QFocusEvent* ereignis) override;

private:
    void übernimm();
    void gibEin(const QString& text);

    Textfeld& m_element;
    Ansicht& m_ansicht;
};

/// The text box of several lines. Its document is never the record: what was changed in it is carried over to the
/// element place by place, so that bytes which the toolkit cannot hold or would change stay as they are.
class Textblock : public QPlainTextEdit {
public:
    Textblock(Textfeld& element, Ansicht& ansicht, QWidget* eltern);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void focusInEvent(QFocusEvent* ereignis) override;

private:
    void übernimm();
    void gibEin();
    void setzeText(const QString& text);
    QString rohtext() const;
    void verbessere(const QString& genommen, int marke);

    Textfeld& m_element;
    Ansicht& m_ansicht;
    bool m_wirdGefüllt = false;
};
