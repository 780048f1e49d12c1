#pragma once

#include <QAbstractListModel>

class Ansicht;
class Auswahlfeld;

/// The entries of a combo box, read from the element when they are asked for.
class Auswahlliste : public QAbstractListModel {
public:
    Auswahlliste(const Auswahlfeld& element, const Ansicht& ansicht, QObject* eltern);

    int rowCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& ort, int rolle = Qt::DisplayRole) const override;
    /// Takes notice of a list that has been replaced.
    void übernimm();

private:
    const Auswahlfeld& m_element;
    const Ansicht& m_ansicht;
    const void* m_stand = nullptr;
    int m_anzahl = 0;
};
