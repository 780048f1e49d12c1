#include "platform/qt/Fenster.h"

#include "platform/qt/Stil.h"

#include <QCloseEvent>
#include <QDateTime>
#include <QGuiApplication>
#include <QLayout>
#include <QMenuBar>
#include <QMoveEvent>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 nachspielMillisekunden = 400;

} // namespace

void Platzwächter::beginneNachspiel()
{
    m_nachspielBis = QDateTime::currentMSecsSinceEpoch() + nachspielMillisekunden;
}

bool Platzwächter::istVomBenutzer(bool vomSystem) const
{
    return m_eigene == 0 && (!vomSystem || QDateTime::currentMSecsSinceEpoch() > m_nachspielBis);
}

QPoint inDenSchirm(QPoint ort, QSize größe)
{
    const QRect wunsch(ort, größe);
    for (const auto* schirm : QGuiApplication::screens()) {
        if (schirm->availableGeometry().contains(wunsch)) {
            return ort;
        }
    }
    const auto* schirm = QGuiApplication::screenAt(wunsch.center());
    const QRect platz = (schirm == nullptr ? QGuiApplication::primaryScreen() : schirm)->availableGeometry();
    const auto klemme = [](int wert, int von, int bis) { return std::max(von, std::min(wert, bis)); };
    return {klemme(ort.x(), platz.left(), platz.right() + 1 - größe.width()),
            klemme(ort.y(), platz.top(), platz.bottom() + 1 - größe.height())};
}

Rahmenfenster::Rahmenfenster(Fensterereignisse ereignisse)
    : m_ereignisse(std::move(ereignisse)), m_seiten(new QStackedWidget(this))
{
    setCentralWidget(m_seiten);
    menuBar()->setNativeMenuBar(false);
    m_seiten->addWidget(new QWidget(m_seiten)); // the empty frame
}

void Rahmenfenster::moveEvent(QMoveEvent* ereignis)
{
    QMainWindow::moveEvent(ereignis);
    if (isVisible() && !isMaximized() && m_platzwächter.istVomBenutzer(ereignis->spontaneous())) {
        m_ereignisse.verschoben(pos());
    }
}

void Rahmenfenster::resizeEvent(QResizeEvent* ereignis)
{
    QMainWindow::resizeEvent(ereignis);
    if (isVisible() && !isMaximized() && m_platzwächter.istVomBenutzer(ereignis->spontaneous())) {
        m_ereignisse.größeGeändert(size());
    }
}

void Rahmenfenster::changeEvent(QEvent* ereignis)
{
    QMainWindow::changeEvent(ereignis);
    if (ereignis->type() == QEvent::WindowStateChange && !isMinimized() && m_platzwächter.istVomBenutzer(false)) {
        m_ereignisse.maximiert(isMaximized());
    }
}

bool Rahmenfenster::event(QEvent* ereignis)
{
    const bool ergebnis = QMainWindow::event(ereignis);
    if (ereignis->type() == QEvent::WindowActivate && m_ereignisse.aktiviert) {
        m_ereignisse.aktiviert();
    }
    return ergebnis;
}

void Rahmenfenster::closeEvent(QCloseEvent* ereignis)
{
    ereignis->ignore();
    m_ereignisse.schließwunsch();
}

Kindfenster::Kindfenster(Fensterereignisse ereignisse, int breite, QWidget* rahmen)
    : QWidget(rahmen, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      m_ereignisse(std::move(ereignisse)), m_breite(breite)
{}

void Kindfenster::setzeSeite(QWidget& seite, QScrollArea& blatt)
{
    m_seite = &seite;
    m_blatt = &blatt;
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&seite);
    m_blatt->widget()->installEventFilter(this);
}

void Kindfenster::passeHöheAn()
{
    const QRect platz = screen()->availableGeometry();
    m_blatt->widget()->layout()->activate();
    const int breite = std::min(std::max(m_breite, m_blatt->widget()->minimumSizeHint().width()), platz.width());
    const int rest = m_seite->layout()->sizeHint().height() - m_blatt->sizeHint().height();
    const int höhe = rest + m_blatt->widget()->sizeHint().height() + 2;
    m_platzwächter.platziere([&] { setFixedSize(breite, std::min(höhe, platz.height() - em(2))); });
}

void Kindfenster::moveEvent(QMoveEvent* ereignis)
{
    QWidget::moveEvent(ereignis);
    if (isVisible() && m_platzwächter.istVomBenutzer(ereignis->spontaneous())) {
        m_ereignisse.verschoben(pos());
    }
}

void Kindfenster::closeEvent(QCloseEvent* ereignis)
{
    ereignis->ignore();
    m_ereignisse.schließwunsch();
}

void Kindfenster::showEvent(QShowEvent* ereignis)
{
    passeHöheAn();
    QWidget::showEvent(ereignis);
}

bool Kindfenster::event(QEvent* ereignis)
{
    const bool neuGeordnet = ereignis->type() == QEvent::LayoutRequest;
    const bool ergebnis = QWidget::event(ereignis);
    if (neuGeordnet && isVisible()) {
        passeHöheAn();
    }
    return ergebnis;
}
