#include "platform/qt/Listenansicht.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <numeric>

namespace {

constexpr std::size_t gemesseneZeilen = 200; ///< the widths of columns follow the first rows
constexpr int zeilenMindestens = 6;
constexpr int zeilenGern = 16;
constexpr double zeilenhöhe = 1.45;
constexpr double kopfhöhe = 1.9;

} // namespace

Listenmodell::Listenmodell(const Liste& element, const Ansicht& ansicht, QObject* eltern)
    : QAbstractTableModel(eltern), m_element(element), m_ansicht(ansicht)
{}

int Listenmodell::rowCount(const QModelIndex& eltern) const
{
    return eltern.isValid() || !m_ansicht.lebt() ? 0 : static_cast<int>(m_element.anzahl());
}

int Listenmodell::columnCount(const QModelIndex& eltern) const
{
    return eltern.isValid() || !m_ansicht.lebt() ? 0 : static_cast<int>(m_element.spalten().size());
}

QVariant Listenmodell::data(const QModelIndex& ort, int rolle) const
{
    if (rolle != Qt::DisplayRole || !ort.isValid() || ort.row() >= rowCount()) {
        return {};
    }
    return alsQString(
        m_element.zelle(static_cast<std::size_t>(ort.row()) + 1, static_cast<std::size_t>(ort.column()) + 1));
}

QVariant Listenmodell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const
{
    if (richtung != Qt::Horizontal || rolle != Qt::DisplayRole || abschnitt >= columnCount()) {
        return QAbstractTableModel::headerData(abschnitt, richtung, rolle);
    }
    return alsQString(m_element.spalten()[static_cast<std::size_t>(abschnitt)]);
}

void Listenmodell::übernimm()
{
    beginResetModel();
    endResetModel();
}

Listenansicht::Listenansicht(Liste& element, Ansicht& ansicht, QWidget* eltern)
    : QTreeView(eltern), m_element(element), m_ansicht(ansicht), m_modell(new Listenmodell(element, ansicht, this))
{
    setModel(m_modell);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAllColumnsShowFocus(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTabKeyNavigation(false);
    richteKopfEin();
    ansicht.binde(element, *this, [this] { übernimm(); });
    ansicht.abonniere(element.zeilenGeändert, [this] { übernimmZeilen(); });
    ansicht.abonniere(element.inSicht, [this] { zeigeAuswahl(); });
    messeSpalten();
}

void Listenansicht::richteKopfEin()
{
    auto& kopf = *header();
    kopf.setSectionsClickable(true);
    kopf.setSectionsMovable(false);
    kopf.setHighlightSections(false);
    kopf.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    kopf.setStretchLastSection(true);
    kopf.setSortIndicatorShown(false);
    connect(&kopf, &QHeaderView::sectionClicked, this, [this](int spalte) {
        m_ansicht.ereignis([this, spalte] { m_element.klickeKopf(static_cast<std::size_t>(spalte) + 1); });
    });
}

void Listenansicht::übernimm()
{
    const auto zeile = static_cast<int>(m_element.auswahl()) - 1;
    if (zeile < 0) {
        selectionModel()->clear();
    } else if (currentIndex().row() != zeile || !selectionModel()->isRowSelected(zeile)) {
        // no scrolling here: only `inSicht` asks for it
        const auto ort = m_modell->index(zeile, 0);
        const bool rollt = hasAutoScroll();
        setAutoScroll(false);
        selectionModel()->setCurrentIndex(ort, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        setAutoScroll(rollt);
    }
    const auto sortiert = static_cast<int>(m_element.sortierteSpalte());
    header()->setSortIndicatorShown(sortiert > 0);
    header()->setSortIndicator(sortiert - 1, Qt::AscendingOrder);
}

void Listenansicht::übernimmZeilen()
{
    m_modell->übernimm();
    messeSpalten();
}

void Listenansicht::messeSpalten()
{
    ensurePolished();
    QFont kopfschrift = font();
    kopfschrift.setWeight(QFont::DemiBold);
    const QFontMetrics kopfmaß(kopfschrift);
    const QFontMetrics maß(font());
    const auto zeilen = std::min(m_element.anzahl(), gemesseneZeilen);
    m_spaltenbreiten.clear();
    for (std::size_t spalte = 1; spalte <= m_element.spalten().size(); ++spalte) {
        int breite = kopfmaß.horizontalAdvance(alsQString(m_element.spalten()[spalte - 1]));
        for (std::size_t zeile = 1; zeile <= zeilen; ++zeile) {
            breite = std::max(breite, maß.horizontalAdvance(alsQString(m_element.zelle(zeile, spalte))));
        }
        m_spaltenbreiten.append(std::min(breite, em(16)) + em(1.35));
    }
    verteileSpalten();
    updateGeometry();
}

void Listenansicht::verteileSpalten()
{
    const int nötig = std::accumulate(m_spaltenbreiten.begin(), m_spaltenbreiten.end(), 0);
    const int übrig = std::max(0, viewport()->width() - nötig);
    for (int spalte = 0; spalte + 1 < m_spaltenbreiten.size(); ++spalte) {
        header()->resizeSection(spalte, m_spaltenbreiten[spalte] + übrig * m_spaltenbreiten[spalte] / (nötig * 2 + 1));
    }
}

void Listenansicht::zeigeAuswahl()
{
    if (m_element.auswahl() > 0) {
        scrollTo(m_modell->index(static_cast<int>(m_element.auswahl()) - 1, 0));
    }
}

void Listenansicht::resizeEvent(QResizeEvent* ereignis)
{
    QTreeView::resizeEvent(ereignis);
    verteileSpalten();
}

/// The rows are moved by the element's keys alone; a highlight that the toolkit moves is no selection.
void Listenansicht::keyPressEvent(QKeyEvent* ereignis)
{
    ereignis->ignore();
}

void Listenansicht::mousePressEvent(QMouseEvent* ereignis)
{
    const auto ort = indexAt(ereignis->position().toPoint());
    if (ereignis->button() == Qt::LeftButton && ort.isValid()) {
        m_ansicht.ereignis([&] { m_element.klickeZeile(static_cast<std::size_t>(ort.row()) + 1); });
    }
}

void Listenansicht::mouseMoveEvent(QMouseEvent* /*ereignis*/)
{
    // no drag selection: the element's row is the one that was clicked
}

void Listenansicht::mouseReleaseEvent(QMouseEvent* /*ereignis*/)
{}

void Listenansicht::mouseDoubleClickEvent(QMouseEvent* ereignis)
{
    const auto ort = indexAt(ereignis->position().toPoint());
    if (ereignis->button() == Qt::LeftButton && ort.isValid()) {
        m_ansicht.ereignis([&] { m_element.doppelklickeZeile(static_cast<std::size_t>(ort.row()) + 1); });
    }
}

QSize Listenansicht::sizeHint() const
{
    const int nötig = std::accumulate(m_spaltenbreiten.begin(), m_spaltenbreiten.end(), 0);
    return {std::max(em(14), nötig + em(1)), em(kopfhöhe + zeilenhöhe * zeilenGern)};
}

QSize Listenansicht::minimumSizeHint() const
{
    return {em(14), em(kopfhöhe + zeilenhöhe * zeilenMindestens)};
}
