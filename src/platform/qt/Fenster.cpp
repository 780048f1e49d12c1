#include "platform/qt/Fenster.h"

#include "platform/qt/Mass.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Umschrift.h"

#include <QCloseEvent>
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

Rahmenfenster::Rahmenfenster(Rahmen& rahmen, Bühne& bühne, std::function<void()> beiAktivierung)
    : m_rahmen(rahmen), m_bühne(bühne), m_beiAktivierung(std::move(beiAktivierung)), m_seiten(new QStackedWidget(this))
{
    setCentralWidget(m_seiten);
    menuBar()->setNativeMenuBar(false);
    m_seiten->addWidget(new QWidget(m_seiten)); // the empty frame
}

void Rahmenfenster::moveEvent(QMoveEvent* ereignis)
{
    QMainWindow::moveEvent(ereignis);
    if (isVisible() && !isMaximized() && m_platzwächter.istVomBenutzer(ereignis->spontaneous())) {
        m_bühne.ereignis([this] { m_rahmen.benutzerVerschiebt(alsTwips(y()), alsTwips(x())); });
    }
}

void Rahmenfenster::resizeEvent(QResizeEvent* ereignis)
{
    QMainWindow::resizeEvent(ereignis);
    if (isVisible() && !isMaximized() && m_platzwächter.istVomBenutzer(ereignis->spontaneous())) {
        m_bühne.ereignis([this] { m_rahmen.benutzerÄndertGröße(alsTwips(width()), alsTwips(height())); });
    }
}

void Rahmenfenster::changeEvent(QEvent* ereignis)
{
    QMainWindow::changeEvent(ereignis);
    if (ereignis->type() == QEvent::WindowStateChange && !isMinimized() && m_platzwächter.istVomBenutzer(false)) {
        m_bühne.ereignis([this] { m_rahmen.benutzerMaximiert(isMaximized()); });
    }
    if (ereignis->type() == QEvent::ActivationChange && isActiveWindow()) {
        m_beiAktivierung();
    }
}

void Rahmenfenster::closeEvent(QCloseEvent* ereignis)
{
    ereignis->ignore();
    m_bühne.ereignis([this] { m_rahmen.benutzerSchließt(); });
}

Kindfenster::Kindfenster(Ansicht& ansicht, QWidget* rahmen)
    : QWidget(rahmen, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      m_ansicht(ansicht), m_blatt(ansicht.baueSeite(this))
{
    ohneRand(new QVBoxLayout(this))->addWidget(ansicht.wurzel());
    auto& bildschirm = ansicht.bildschirm();
    ansicht.folge(bildschirm.titelGeändert, [this, &bildschirm] { setWindowTitle(alsQString(bildschirm.titel())); });
}

void Kindfenster::passeHöheAn()
{
    const QRect platz = screen()->availableGeometry();
    m_blatt->widget()->layout()->activate();
    const int gewünscht = em(m_ansicht.bildschirm().breiteEm);
    const int breite = std::min(std::max(gewünscht, m_blatt->widget()->minimumSizeHint().width()), platz.width());
    const int rest = m_ansicht.wurzel()->layout()->sizeHint().height() - m_blatt->sizeHint().height();
    const int höhe = rest + m_blatt->widget()->sizeHint().height() + 2;
    m_platzwächter.platziere([&] { setFixedSize(breite, std::min(höhe, platz.height() - em(2))); });
}

void Kindfenster::moveEvent(QMoveEvent* ereignis)
{
    QWidget::moveEvent(ereignis);
    if (isVisible() && m_ansicht.lebt() && m_platzwächter.istVomBenutzer(ereignis->spontaneous())) {
        m_ansicht.bildschirm().oben = alsTwips(y());
        m_ansicht.bildschirm().links = alsTwips(x());
    }
}

void Kindfenster::closeEvent(QCloseEvent* ereignis)
{
    ereignis->ignore();
    if (m_ansicht.wurzel()->isEnabled()) {
        m_ansicht.ereignis([this] { m_ansicht.bildschirm().taste({.art = Taste::Art::Esc}); });
    }
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
