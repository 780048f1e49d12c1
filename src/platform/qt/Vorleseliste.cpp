#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Listenansicht.h"
#include "platform/qt/Vorlesefeld.h"

#include <QHeaderView>
#include <QTimer>

#include <unordered_map>

namespace {

constexpr int kopfzeile = -1;

/// The table; its cells are made as they are asked for.
class Vorleseliste : public Vorlesefeld, public QAccessibleTableInterface {
public:
    Vorleseliste(Listenansicht& liste, Ansicht& ansicht)
        : Vorlesefeld(liste, ansicht, QAccessible::Table), m_liste(liste)
    {}
    ~Vorleseliste() override { vergissZellen(); }

    void* interface_cast(QAccessible::InterfaceType art) override
    {
        return art == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                  : Vorlesefeld::interface_cast(art);
    }
    QAccessibleInterface* focusChild() const override
    {
        const auto jetzt = m_liste.currentIndex();
        return m_liste.hasFocus() && jetzt.isValid() ? cellAt(jetzt.row(), jetzt.column()) : Vorlesefeld::focusChild();
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        const auto ort = m_liste.indexAt(m_liste.viewport()->mapFromGlobal(QPoint(x, y)));
        return ort.isValid() ? cellAt(ort.row(), ort.column()) : nullptr;
    }
    int childCount() const override { return (rowCount() + 1) * columnCount(); }
    QAccessibleInterface* child(int stelle) const override;
    int indexOfChild(const QAccessibleInterface* kind) const override;

    /// The heads are row -1.
    QAccessibleInterface* cellAt(int zeile, int spalte) const override
    {
        const bool gibtEs = zeile >= kopfzeile && zeile < rowCount() && spalte >= 0 && spalte < columnCount();
        return gibtEs ? child((zeile + 1) * columnCount() + spalte) : nullptr;
    }
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    int columnCount() const override { return isValid() ? m_liste.model()->columnCount() : 0; }
    int rowCount() const override { return isValid() ? m_liste.model()->rowCount() : 0; }
    QString columnDescription(int spalte) const override
    {
        return isValid() ? m_liste.model()->headerData(spalte, Qt::Horizontal).toString() : QString();
    }
    QString rowDescription(int /*zeile*/) const override { return {}; }
    int selectedCellCount() const override { return selectedRowCount() * columnCount(); }
    QList<QAccessibleInterface*> selectedCells() const override
    {
        QList<QAccessibleInterface*> zellen;
        for (const int zeile : selectedRows()) {
            for (int spalte = 0; spalte < columnCount(); ++spalte) {
                zellen.append(cellAt(zeile, spalte));
            }
        }
        return zellen;
    }
    int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
    QList<int> selectedRows() const override
    {
        QList<int> zeilen;
        for (const auto& gewählte : m_liste.selectionModel()->selectedRows()) {
            zeilen.append(gewählte.row());
        }
        return zeilen;
    }
    bool isRowSelected(int zeile) const override { return selectedRows().contains(zeile); }
    bool selectRow(int zeile) override
    {
        if (zeile < 0 || zeile >= rowCount()) {
            return false;
        }
        klicke(zeile, 0);
        return true;
    }
    bool unselectRow(int /*zeile*/) override { return false; }
    int selectedColumnCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    bool isColumnSelected(int /*spalte*/) const override { return false; }
    bool selectColumn(int /*spalte*/) override { return false; }
    bool unselectColumn(int /*spalte*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* /*ereignis*/) override { vergissZellen(); }

    /// For the cells: the click on row (-1: head) and column.
    void klicke(int zeile, int spalte)
    {
        if (!istErreichbar()) {
            return;
        }
        // the rows may be others when the rule has run: the cell that asked is gone by then
        QTimer::singleShot(0, &m_liste, [&wege = ansicht(), &liste = m_liste, zeile, spalte] {
            auto* element = fokussiere(wege, liste) ? dynamic_cast<Liste*>(wege.elementVon(&liste)) : nullptr;
            if (element == nullptr || zeile >= static_cast<int>(element->anzahl())) {
                return;
            }
            wege.ereignis([&] {
                if (zeile == kopfzeile) {
                    element->klickeKopf(static_cast<std::size_t>(spalte) + 1);
                } else {
                    element->klickeZeile(static_cast<std::size_t>(zeile) + 1);
                }
            });
        });
    }

private:
    void vergissZellen()
    {
        for (const auto& [stelle, zelle] : m_zellen) {
            QAccessible::deleteAccessibleInterface(zelle);
        }
        m_zellen.clear();
    }

    Listenansicht& m_liste;
    mutable std::unordered_map<int, QAccessible::Id> m_zellen; ///< those that were asked for, by place
};

/// A cell or the head of a column. It belongs to no object of its own, only to the list.
class Zelle : public QAccessibleInterface, public QAccessibleTableCellInterface, public QAccessibleActionInterface {
public:
    Zelle(Listenansicht& liste, int zeile, int spalte) : m_liste(&liste), m_zeile(zeile), m_spalte(spalte) {}

    bool isValid() const override
    {
        return m_liste != nullptr && m_zeile < m_liste->model()->rowCount() &&
               m_spalte < m_liste->model()->columnCount();
    }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return isValid() ? m_liste->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_liste.data()); }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface* child(int /*stelle*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*kind*/) const override { return -1; }
    void setText(QAccessible::Text /*art*/, const QString& /*text*/) override {}

    QAccessible::Role role() const override
    {
        return m_zeile == kopfzeile ? QAccessible::ColumnHeader : QAccessible::Cell;
    }

    QString text(QAccessible::Text art) const override
    {
        if (!isValid() || (art != QAccessible::Name && art != QAccessible::Value)) {
            return {};
        }
        const auto* modell = m_liste->model();
        return m_zeile == kopfzeile ? modell->headerData(m_spalte, Qt::Horizontal).toString()
                                    : modell->data(modell->index(m_zeile, m_spalte)).toString();
    }

    QRect rect() const override
    {
        if (!isValid()) {
            return {};
        }
        if (m_zeile == kopfzeile) {
            const auto& kopf = *m_liste->header();
            const QRect platz(kopf.sectionViewportPosition(m_spalte), 0, kopf.sectionSize(m_spalte), kopf.height());
            return platz.translated(kopf.viewport()->mapToGlobal(QPoint()));
        }
        return m_liste->visualRect(m_liste->model()->index(m_zeile, m_spalte))
            .translated(m_liste->viewport()->mapToGlobal(QPoint()));
    }

    QAccessible::State state() const override
    {
        QAccessible::State zustand;
        zustand.invalid = !isValid();
        if (zustand.invalid || m_zeile == kopfzeile) {
            return zustand;
        }
        zustand.disabled = !m_liste->isEnabled();
        zustand.invisible = !m_liste->isVisible();
        zustand.selectable = true;
        zustand.focusable = true;
        zustand.selected = isSelected();
        const auto jetzt = m_liste->currentIndex();
        zustand.focused = m_liste->hasFocus() && jetzt.row() == m_zeile && jetzt.column() == m_spalte;
        return zustand;
    }

    void* interface_cast(QAccessible::InterfaceType art) override
    {
        if (art == QAccessible::TableCellInterface) {
            return static_cast<QAccessibleTableCellInterface*>(this);
        }
        return art == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }

    bool isSelected() const override
    {
        return isValid() && m_zeile != kopfzeile && m_liste->selectionModel()->isRowSelected(m_zeile);
    }
    QList<QAccessibleInterface*> columnHeaderCells() const override
    {
        auto* tabelle = eltern();
        return tabelle == nullptr ? QList<QAccessibleInterface*>()
                                  : QList<QAccessibleInterface*>{tabelle->cellAt(kopfzeile, m_spalte)};
    }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return m_spalte; }
    int rowIndex() const override { return m_zeile; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override
    {
        return m_zeile == kopfzeile ? QStringList{pressAction()} : QStringList{pressAction(), setFocusAction()};
    }
    QStringList keyBindingsForAction(const QString& /*aktion*/) const override { return {}; }
    void doAction(const QString& aktion) override
    {
        if (auto* tabelle = eltern(); tabelle != nullptr && actionNames().contains(aktion)) {
            tabelle->klicke(m_zeile, m_spalte);
        }
    }

private:
    Vorleseliste* eltern() const { return isValid() ? dynamic_cast<Vorleseliste*>(parent()) : nullptr; }

    QPointer<Listenansicht> m_liste;
    int m_zeile;
    int m_spalte;
};

QAccessibleInterface* Vorleseliste::child(int stelle) const
{
    if (stelle < 0 || stelle >= childCount()) {
        return nullptr;
    }
    if (const auto ort = m_zellen.find(stelle); ort != m_zellen.end()) {
        return QAccessible::accessibleInterface(ort->second);
    }
    const int spalten = columnCount();
    auto* zelle = new Zelle(m_liste, stelle / spalten - 1, stelle % spalten);
    m_zellen.emplace(stelle, QAccessible::registerAccessibleInterface(zelle));
    return zelle;
}

int Vorleseliste::indexOfChild(const QAccessibleInterface* kind) const
{
    const auto* zelle = dynamic_cast<const Zelle*>(kind);
    return zelle == nullptr ? -1 : (zelle->rowIndex() + 1) * columnCount() + zelle->columnIndex();
}

} // namespace

QAccessibleInterface* vorleselisteFür(Listenansicht& liste, Ansicht& ansicht)
{
    return new Vorleseliste(liste, ansicht);
}
