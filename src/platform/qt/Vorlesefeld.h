#pragma once

#include "platform/qt/Vorlesekinder.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QLabel>
#include <QList>
#include <QPointer>

class Ansicht;
class Antwortfeld;
class Auswahlbox;

/// The labels of a field, kept with the widget.
using Etikettenliste = QList<QPointer<QLabel>>;
inline constexpr auto schlüsselEtiketten = "etiketten";

/// A widget that draws an element, as a screen reader meets it: it names its labels, a press is a click of the mouse
/// (the field that has the focus is asked to let go), and the focus is the screen's.
class Vorlesefeld : public QAccessibleWidget {
public:
    Vorlesefeld(QWidget& widget, Ansicht& ansicht, QAccessible::Role rolle);

    QList<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation welche = QAccessible::AllRelations) const override;
    QStringList actionNames() const override;
    void doAction(const QString& aktion) override;

protected:
    Ansicht& ansicht() const { return m_ansicht; }
    /// Whether a person could act on it now: no box stands in front of it.
    bool istErreichbar() const;
    /// The element takes the focus; false when the field that has it does not let go.
    static bool fokussiere(Ansicht& ansicht, const QWidget& widget);

private:
    Ansicht& m_ansicht;
};

/// Buttons: push button, option of a group, check box.
class Vorleseknopf : public Vorlesefeld {
public:
    Vorleseknopf(QAbstractButton& knopf, Ansicht& ansicht, QAccessible::Role rolle);

    QString text(QAccessible::Text art) const override;
    QAccessible::State state() const override;

private:
    QAbstractButton& m_knopf;
};

/// A field whose value is picked. As with every choice on Unix its name is the value, and the question is its label;
/// elsewhere the name is the question.
class Vorlesewahl : public Vorlesefeld {
public:
    Vorlesewahl(QWidget& widget, Ansicht& ansicht) : Vorlesefeld(widget, ansicht, QAccessible::ComboBox) {}

    QString text(QAccessible::Text art) const override;

protected:
    virtual QString wert() const = 0;
};

/// The answer field: a choice that changes by a press or by left and right, without a list. "k.A." is said to be open.
class Vorleseantwort : public Vorlesewahl {
public:
    Vorleseantwort(Antwortfeld& feld, Ansicht& ansicht);

protected:
    QString wert() const override;

private:
    Antwortfeld& m_feld;
};

/// The combo box; a number combo has the text in it as a child, an open list is a child too.
class Vorleseauswahl : public Vorlesekinder<Vorlesewahl> {
public:
    Vorleseauswahl(Auswahlbox& box, Ansicht& ansicht);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& aktion) override;

protected:
    QString wert() const override;
    QWidgetList kinder() const override;

private:
    Auswahlbox& m_box;
};
