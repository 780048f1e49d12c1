#pragma once

#include <QAccessibleWidget>
#include <QLabel>
#include <QList>
#include <QPointer>

class Ansicht;
class Listenansicht;

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

/// How a screen reader meets the buttons, the answer fields and the combo boxes; nullptr for all other widgets.
QAccessibleInterface* vorlesefeldFür(QWidget& widget, Ansicht& ansicht);
/// The list, as a screen reader meets it: a table of column heads and cells with a name. A row that the reader selects
/// is the row of the element, so that the next command acts on it; a cell that is gone with its row is no child.
QAccessibleInterface* vorleselisteFür(Listenansicht& liste, Ansicht& ansicht);
