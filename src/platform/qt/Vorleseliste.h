#pragma once

#include "platform/qt/Vorlesefeld.h"

#include <QAccessible>

#include <unordered_map>

class Liste;
class Listenansicht;

/// The list, as a screen reader meets it: a table of column heads and cells with a name. A row that the reader selects
/// is the row of the element, so that the next command acts on it; a cell that is gone with its row is no child.
class Vorleseliste : public Vorlesefeld, public QAccessibleTableInterface {
public:
    Vorleseliste(Listenansicht& liste, Ansicht& ansicht);
    ~Vorleseliste() override;

    void* interface_cast(QAccessible::InterfaceType art) override;
    QAccessibleInterface* focusChild() const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int childCount() const override;
    QAccessibleInterface* child(int stelle) const override;
    int indexOfChild(const QAccessibleInterface* kind) const override;

    // the heads are row -1
    QAccessibleInterface* cellAt(int zeile, int spalte) const override;
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    int columnCount() const override;
    int rowCount() const override;
    QString columnDescription(int spalte) const override;
    QString rowDescription(int /*zeile*/) const override { return {}; }
    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    int selectedRowCount() const override;
    QList<int> selectedRows() const override;
    bool isRowSelected(int zeile) const override;
    bool selectRow(int zeile) override;
    bool unselectRow(int /*zeile*/) override { return false; }
    int selectedColumnCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    bool isColumnSelected(int /*spalte*/) const override { return false; }
    bool selectColumn(int /*spalte*/) override { return false; }
    bool unselectColumn(int /*spalte*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* ereignis) override;

    /// For the cells: the click on row (-1: head) and column.
    void klicke(int zeile, int spalte);
    Listenansicht& liste() const { return m_liste; }

private:
    int gewählteZeile() const;
    void vergissZellen();

    Listenansicht& m_liste;
    mutable std::unordered_map<int, QAccessible::Id> m_zellen; ///< those that were asked for, by place
};
