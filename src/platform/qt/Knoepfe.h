#pragma once

#include "platform/elemente/Elemente.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

class Ansicht;

/// The push button, drawn by its role.
class Knopf : public QPushButton {
public:
    Knopf(Schaltfläche& element, Ansicht& ansicht, QWidget* eltern);

    /// A cover over a value looks like the value's field.
    void seiWertdecke();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* ereignis) override;

private:
    void übernimm();

    Schaltfläche& m_element;
    Ansicht& m_ansicht;
    bool m_istWertdecke = false;
};

/// The option button; marking is the element's affair.
class Optionsknopf : public QRadioButton {
public:
    Optionsknopf(Optionsfeld& element, Ansicht& ansicht, QWidget* eltern);

    /// In a table it has no text and is as large as its cell.
    void seiZelle(int breite, int höhe);
    QSize sizeHint() const override;

protected:
    void nextCheckState() override;
    bool hitButton(const QPoint& ort) const override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;

private:
    Optionsfeld& m_element;
    Ansicht& m_ansicht;
    QSize m_zelle;
};

class Ankreuzkästchen : public QCheckBox {
public:
    Ankreuzkästchen(Ankreuzfeld& element, Ansicht& ansicht, QWidget* eltern);

protected:
    void nextCheckState() override;

private:
    Ankreuzfeld& m_element;
    Ansicht& m_ansicht;
};
