#include "platform/qt/Auswahlliste.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Umschrift.h"

Auswahlliste::Auswahlliste(const Auswahlfeld& element, const Ansicht& ansicht, QObject* eltern)
    : QAbstractListModel(eltern), m_element(element), m_ansicht(ansicht)
{}

int Auswahlliste::rowCount(const QModelIndex& eltern) const
{
    return eltern.isValid() || !m_ansicht.lebt() ? 0 : m_anzahl;
}

QVariant Auswahlliste::data(const QModelIndex& ort, int rolle) const
{
    const bool istText = rolle == Qt::DisplayRole || rolle == Qt::EditRole;
    if (!istText || !m_ansicht.lebt() || !ort.isValid() ||
        static_cast<std::size_t>(ort.row()) >= m_element.liste().size()) {
        return {};
    }
    return alsQString(m_element.liste()[static_cast<std::size_t>(ort.row())]);
}

void Auswahlliste::übernimm()
{
    const auto& liste = m_element.liste();
    if (m_stand == liste.data() && m_anzahl == static_cast<int>(liste.size())) {
        return;
    }
    beginResetModel();
    m_stand = liste.data();
    m_anzahl = static_cast<int>(liste.size());
    endResetModel();
}
