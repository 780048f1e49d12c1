#include "platform/qt/Listenansicht.h"

#include "platform/elemente/Elemente.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <numeric>

namespace {

constexpr std::size_t gemesseneZeilen = 200; ///< the widths of columns follow the first rows
constexpr int zeilenMindestens = 6;
constexpr int zeilenGern = 16;
constexpr double listenzeilenhöhe = 1.45;
constexpr double kopfhöhe = 1.9;
constexpr double spaltenrand = 1.35;
constexpr double kurzeSpalte = 7; ///< a number or a date is not cut

int summe(const std::vector<int>& werte)
{
    return std::accumulate(werte.begin(), werte.end(), 0);
}

/// What is missing is taken from each width as it can spare it, down to the least.
void verenge(std::vector<int>& breiten, const std::vector<int>& mindestens, int fehlt)
{
    int spielraum = 0;
    for (std::size_t i = 0; i < breiten.size(); ++i) {
        spielraum += std::max(0, breiten[i] - mindestens[i]);
    }
    for (std::size_t i = 0; i < breiten.size() && fehlt > 0 && spielraum > 0; ++i) {
        const int eigener = std::max(0, breiten[i] - mindestens[i]);
        const int anteil = std::min(eigener, (fehlt * eigener + spielraum - 1) / spielraum);
        breiten[i] -= anteil;
        fehlt -= anteil;
        spielraum -= eigener;
    }
}

/// Round the text of a cell, at least: the sheet's padding and the style's own margin.
int schmalerRand(const QWidget& liste)
{
    return em(0.55) + 2 * (liste.style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) + 3;
}

} // namespace

/// The rows of a list, read from the element when they are asked for.
class Listenansicht::Modell : public QAbstractTableModel {
public:
    Modell(const Liste& element, const Ansicht& ansicht, QObject* eltern)
        : QAbstractTableModel(eltern), m_element(element), m_ansicht(ansicht)
    {}

    int rowCount(const QModelIndex& eltern = {}) const override
    {
        return eltern.isValid() || !m_ansicht.lebt() ? 0 : static_cast<int>(m_element.anzahl());
    }
    int columnCount(const QModelIndex& eltern = {}) const override
    {
        return eltern.isValid() || !m_ansicht.lebt() ? 0 : static_cast<int>(m_element.spalten().size());
    }
    QVariant data(const QModelIndex& ort, int rolle) const override
    {
        if (rolle != Qt::DisplayRole || !ort.isValid() || ort.row() >= rowCount()) {
            return {};
        }
        return alsQString(
            m_element.zelle(static_cast<std::size_t>(ort.row()) + 1, static_cast<std::size_t>(ort.column()) + 1));
    }
    QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override
    {
        const bool istText = rolle == Qt::DisplayRole || rolle == Qt::ToolTipRole; // a narrow head is cut
        if (richtung != Qt::Horizontal || !istText || abschnitt >= columnCount()) {
            return QAbstractTableModel::headerData(abschnitt, richtung, rolle);
        }
        return alsQString(m_element.spalten()[static_cast<std::size_t>(abschnitt)]);
    }
    void übernimm()
    {
        beginResetModel();
        endResetModel();
    }

private:
    const Liste& m_element;
    const Ansicht& m_ansicht;
};

Listenansicht::Listenansicht(Liste& element, Ansicht& ansicht, QWidget* eltern)
    : QTreeView(eltern), m_element(element), m_ansicht(ansicht), m_modell(new Modell(element, ansicht, this))
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
    setAutoScroll(false); // only `inSicht` asks for scrolling
    richteKopfEin();
    ansicht.binde(element, *this, [this] { übernimm(); });
    ansicht.abonniere(element.zeilenGeändert, [this] {
        m_modell->übernimm();
        messeSpalten();
    });
    ansicht.abonniere(element.inSicht, [this] { zeigeAuswahl(); });
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, [this] { m_folgtAuswahl = false; });
    messeSpalten();
}

void Listenansicht::richteKopfEin()
{
    auto& kopf = *header();
    kopf.setSectionsClickable(true);
    kopf.setSectionsMovable(false);
    kopf.setTextElideMode(Qt::ElideRight);
    kopf.setMinimumSectionSize(em(1));
    kopf.setHighlightSections(false);
    kopf.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    kopf.setStretchLastSection(false); // it would keep more than is left
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
        const auto ort = m_modell->index(zeile, 0);
        selectionModel()->setCurrentIndex(ort, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    const auto sortiert = static_cast<int>(m_element.sortierteSpalte());
    header()->setSortIndicatorShown(sortiert > 0);
    header()->setSortIndicator(sortiert - 1, Qt::AscendingOrder);
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
    m_mindestbreiten.clear();
    for (std::size_t spalte = 1; spalte <= m_element.spalten().size(); ++spalte) {
        const int kopf = kopfmaß.horizontalAdvance(alsQString(m_element.spalten()[spalte - 1]));
        int breite = kopf;
        for (std::size_t zeile = 1; zeile <= zeilen; ++zeile) {
            breite = std::max(breite, maß.horizontalAdvance(alsQString(m_element.zelle(zeile, spalte))));
        }
        m_spaltenbreiten.push_back(std::min(breite, em(16)) + em(spaltenrand));
        m_mindestbreiten.push_back((breite <= em(kurzeSpalte) ? breite : kopf) + schmalerRand(*this));
    }
    verteileSpalten();
    updateGeometry();
}

void Listenansicht::verteileSpalten()
{
    const int nötig = summe(m_spaltenbreiten);
    const int platz = viewport()->width();
    auto breiten = m_spaltenbreiten;
    if (nötig > platz) {
        // the last column, which takes the rest, has to stay in sight: names give way, numbers and dates do not
        verenge(breiten, m_mindestbreiten, nötig - platz);
        verenge(breiten, std::vector(breiten.size(), header()->minimumSectionSize()), summe(breiten) - platz);
    }
    const int übrig = std::max(0, platz - nötig);
    int rest = platz;
    for (std::size_t spalte = 0; spalte < breiten.size(); ++spalte) {
        const int breite = breiten[spalte] + übrig * breiten[spalte] / (nötig * 2 + 1);
        const bool istLetzte = spalte + 1 == breiten.size();
        header()->resizeSection(static_cast<int>(spalte), istLetzte ? std::max(breite, rest) : breite);
        rest -= breite;
    }
}

void Listenansicht::zeigeAuswahl()
{
    m_folgtAuswahl = true;
    if (m_element.auswahl() > 0) {
        scrollTo(m_modell->index(static_cast<int>(m_element.auswahl()) - 1, 0));
    }
}

void Listenansicht::resizeEvent(QResizeEvent* ereignis)
{
    QTreeView::resizeEvent(ereignis);
    verteileSpalten();
    if (m_folgtAuswahl) {
        zeigeAuswahl();
    }
}

bool Listenansicht::viewportEvent(QEvent* ereignis)
{
    if (ereignis->type() == QEvent::ToolTip) {
        const auto& hilfe = *static_cast<QHelpEvent*>(ereignis);
        const auto ort = indexAt(hilfe.pos());
        const auto text = ort.data().toString();
        const bool ganz = fontMetrics().horizontalAdvance(text) + schmalerRand(*this) <= visualRect(ort).width();
        QToolTip::showText(hilfe.globalPos(), ganz ? QString() : text, this);
        return true;
    }
    return QTreeView::viewportEvent(ereignis);
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
    // a list of a given width does not push its neighbour about when its rows change
    const int breite = m_breite > 0 ? m_breite * 13 / 10 : std::max(em(14), summe(m_spaltenbreiten) + em(1));
    return {breite, em(kopfhöhe + listenzeilenhöhe * zeilenGern)};
}

QSize Listenansicht::minimumSizeHint() const
{
    return {m_breite > 0 ? m_breite : em(14), em(kopfhöhe + listenzeilenhöhe * zeilenMindestens)};
}
