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

/// The text box of several lines. Its document is never the record: what changes in it is carried over to the element
/// place by place, so that bytes which the toolkit would change stay as they are. What is typed or pasted goes through
/// the filter before it gets into the document, so that undoing brings back what was there.
class Textblock : public QPlainTextEdit {
public:
    Textblock(Textfeld& element, Ansicht& ansicht, QWidget* eltern);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void focusInEvent(QFocusEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void inputMethodEvent(QInputMethodEvent* ereignis) override;
    void insertFromMimeData(const QMimeData* daten) override;

private:
    void übernimm();
    void übertrage();
    void fügeEin(const QString& getippt);
    QString rohtext() const;
    void ersetze(const QString& genommen, int marke);

    Textfeld& m_element;
    Ansicht& m_ansicht;
    bool m_wirdGefüllt = false;
};
