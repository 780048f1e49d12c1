#include "platform/qt/QtOberflaeche.h"

#include "platform/qt/Geduld.h"
#include "platform/qt/Mass.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Tabelle.h"
#include "platform/qt/Umschrift.h"
#include "platform/qt/Vorlesen.h"
#include "platform/umgebung/Umgebung.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

/// Of every page, so that the frame does not jump from one to the next: the longest table stands in it as a whole.
constexpr double seitenbreite = 76;
constexpr double seitenhöhe = 54;

/// The row of a table is tinted where the keyboard is.
void zeichneZeileUm(QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (dynamic_cast<Antwortzeile*>(widget) != nullptr) {
            widget->update();
        }
    }
}

/// Scrolls every scroll area around the widget until it is in sight, with a row of room.
void rolleInSicht(QWidget& widget)
{
    for (auto* um = widget.parentWidget(); um != nullptr && !um->isWindow(); um = um->parentWidget()) {
        if (auto* rolle = dynamic_cast<QScrollArea*>(um)) {
            rolle->ensureWidgetVisible(&widget, 0, em(1.4));
        }
    }
}

} // namespace

QtOberfläche::QtOberfläche(Ablauf& ablauf, Bildschirmfolge& folge, Rahmen& rahmen, Umgebung& umgebung)
    : m_ablauf(ablauf), m_folge(folge), m_rahmen(rahmen), m_umgebung(umgebung),
      m_fenster(rahmen, *this, [this] { gibTastaturWeiter(); }),
      m_wächter([this](const QWidget* widget) { return ansichtVon(widget); }),
      m_handbuch([&folge] { return folge.inGebrauch() == nullptr ? std::string() : folge.inGebrauch()->name(); })
{
    QApplication::setQuitOnLastWindowClosed(false); // the end of the run ends the program, no window does
    m_fenster.menuBar()->hide();
    m_abonnements.push_back(folge.geändert.abonniere([this](Bildschirm&) { zeichneBildschirme(); }));
    m_abonnements.push_back(folge.entladen.abonniere([this](Bildschirm& bildschirm) { entlade(bildschirm); }));
    m_abonnements.push_back(rahmen.geändert.abonniere([this] { zeichneRahmen(); }));
    m_abonnements.push_back(ablauf.beendet.abonniere([this] { QCoreApplication::exit(m_ablauf.status()); }));
    m_fokusverbindung = QObject::connect(qApp, &QApplication::focusChanged, &m_fenster,
                                         [this](QWidget* alt, QWidget* neu) { beiFokuswechsel(alt, neu); });
    zeichneRahmen();
    zeichneBildschirme();
    richteVorlesenEin();
}

QtOberfläche::~QtOberfläche()
{
    QObject::disconnect(m_fokusverbindung);
    for (auto& platz : m_plätze) {
        platz.ansicht->löse();
        delete platz.fenster; // before its Ansicht
    }
}

/// A page that takes no input has no use for the keyboard: a click on it, or on the frame in the task bar, leads to
/// the window that stands over it.
void QtOberfläche::gibTastaturWeiter()
{
    const auto* oben = platzVon(m_folge.inGebrauch());
    if (m_seite == nullptr || m_folge.istFrei(*m_seite) || oben == nullptr || oben->kind == nullptr) {
        return;
    }
    // the window manager is still busy with the frame
    QTimer::singleShot(0, oben->kind, [kind = oben->kind] {
        kind->raise();
        kind->activateWindow();
    });
}

void QtOberfläche::ereignis(const std::function<void()>& aktion)
{
    const geduld::Handlung handlung;
    if (m_ablauf.ereignis(aktion)) {
        gleicheFokusAb();
    }
    if (std::exchange(m_istSeiteNeu, false)) {
        ordne(); // a page that is painted before would be painted again, part by part
    }
}

const QtOberfläche::Platz* QtOberfläche::platzVon(const Bildschirm* bildschirm) const
{
    const auto ort =
        std::ranges::find_if(m_plätze, [&](const Platz& platz) { return &platz.ansicht->bildschirm() == bildschirm; });
    return ort == m_plätze.end() ? nullptr : &*ort;
}

QtOberfläche::Platz& QtOberfläche::baue(Bildschirm& bildschirm)
{
    Platz neu;
    neu.ansicht = std::make_shared<Ansicht>(bildschirm, *this);
    auto& ansicht = *neu.ansicht;
    if (bildschirm.istKindfenster) {
        neu.kind = new Kindfenster(ansicht, &m_fenster);
        neu.fenster = neu.kind;
        ansicht.abonniere(bildschirm.lageGeändert, [this, &bildschirm] {
            if (const auto* platz = platzVon(&bildschirm)) {
                platziereKind(*platz);
            }
        });
    } else {
        ansicht.baueSeite(&m_fenster.seiten());
        neu.fenster = ansicht.wurzel();
        // the frame takes what a page wants as far as the screen has it, and grows with the font
        bildschirm.breite = std::max(bildschirm.breite, alsTwips(em(seitenbreite)));
        bildschirm.höhe = std::max(bildschirm.höhe, alsTwips(em(seitenhöhe)));
        m_fenster.seiten().addWidget(neu.fenster);
    }
    // the widgets may outlast the screen until the event at hand has ended, and their Ansicht with them
    QObject::connect(neu.fenster, &QObject::destroyed, neu.fenster, [behalten = neu.ansicht] {});
    ansicht.abonniere(bildschirm.fokusGeändert, [this] { gleicheFokusAb(); });
    m_plätze.push_back(std::move(neu));
    return m_plätze.back();
}

void QtOberfläche::zeichneBildschirme()
{
    Bildschirm* seite = nullptr;
    for (auto* bildschirm : m_folge.geladene()) {
        const bool sichtbar = m_folge.istSichtbar(*bildschirm);
        if (platzVon(bildschirm) == nullptr && sichtbar) {
            baue(*bildschirm);
        }
        const auto* platz = platzVon(bildschirm);
        if (platz == nullptr) {
            continue;
        }
        platz->ansicht->wurzel()->setEnabled(m_folge.istFrei(*bildschirm));
        if (platz->kind != nullptr) {
            zeichneKind(*platz);
        } else if (sichtbar) {
            seite = bildschirm;
        }
    }
    zeichneSeite(seite);
    gleicheFokusAb();
}

void QtOberfläche::zeichneKind(const Platz& platz)
{
    const bool sichtbar = m_folge.istSichtbar(platz.ansicht->bildschirm());
    if (sichtbar == platz.kind->isVisible()) {
        return;
    }
    if (sichtbar) {
        platz.kind->passeHöheAn();
        platziereKind(platz);
        platz.kind->platzwächter().platziere([&] { platz.kind->show(); });
        platz.kind->activateWindow();
    } else {
        platz.kind->hide();
        m_fenster.activateWindow();
    }
}

void QtOberfläche::platziereKind(const Platz& platz)
{
    auto& bildschirm = platz.ansicht->bildschirm();
    if (bildschirm.istMittig) {
        const QSize rest = m_fenster.size() - platz.kind->size();
        bildschirm.links = alsTwips(m_fenster.x() + rest.width() / 2);
        bildschirm.oben = alsTwips(m_fenster.y() + rest.height() / 2);
    }
    const QPoint ort(alsPixel(bildschirm.links), alsPixel(bildschirm.oben));
    platz.kind->platzwächter().platziere([&] { platz.kind->move(inDenSchirm(ort, platz.kind->size())); });
}

void QtOberfläche::zeichneSeite(Bildschirm* bildschirm)
{
    const auto* platz = platzVon(bildschirm);
    auto& seiten = m_fenster.seiten();
    seiten.setCurrentWidget(platz == nullptr ? seiten.widget(0) : platz->fenster);
    if (m_seite != bildschirm) {
        m_seite = bildschirm;
        m_istSeiteNeu = true;
        zeichneMenü(bildschirm);
    }
    m_fenster.menuBar()->setEnabled(platz != nullptr && m_folge.istFrei(*bildschirm));
}

void QtOberfläche::zeichneMenü(const Bildschirm* bildschirm)
{
    auto& leiste = *m_fenster.menuBar();
    leiste.clear();
    for (auto* menü : m_menüs) {
        menü->deleteLater();
    }
    m_menüs.clear();
    const auto* platz = platzVon(bildschirm);
    const bool hatMenü = platz != nullptr && !bildschirm->menü.empty();
    leiste.setVisible(hatMenü);
    if (!hatMenü) {
        return;
    }
    for (const auto& menü : bildschirm->menü) {
        auto* titel = platz->ansicht->aktionVon(*menü.titel);
        auto* liste = new QMenu(&m_fenster);
        for (const auto* eintrag : menü.einträge) {
            liste->addAction(platz->ansicht->aktionVon(*eintrag));
        }
        m_menüs.push_back(liste);
        titel->setMenu(liste);
        leiste.addAction(titel);
    }
}

void QtOberfläche::zeichneRahmen()
{
    m_fenster.setWindowTitle(alsQString(m_rahmen.titel()));
    m_fenster.platzwächter().platziere([this] {
        if (m_rahmen.istMaximiert() != m_fenster.isMaximized()) {
            m_fenster.setWindowState(m_rahmen.istMaximiert() ? Qt::WindowMaximized : Qt::WindowNoState);
        }
        if (!m_rahmen.istMaximiert() && m_rahmen.breite() > 0) {
            const QSize rand = fensterrand();
            const QSize größe(alsPixel(m_rahmen.breite()), alsPixel(m_rahmen.höhe()));
            const QSize platz = m_fenster.screen()->availableSize() - rand;
            if (const QSize neue = größe.boundedTo(platz); neue != m_fenster.size() || !m_fenster.isVisible()) {
                ohneZuMalen([&] { m_fenster.resize(neue); });
            }
            m_fenster.move(
                inDenSchirm({alsPixel(m_rahmen.links()), alsPixel(m_rahmen.oben())}, m_fenster.size() + rand));
        }
        if (m_rahmen.istSichtbar() && !m_fenster.isVisible()) {
            // by then the desktop has put its title bar on, and its real height counts
            constexpr int bisDerRandDaIst = 300;
            QTimer::singleShot(bisDerRandDaIst, &m_fenster, [this] { zeichneRahmen(); });
        }
        if (m_rahmen.istSichtbar() != m_fenster.isVisible()) {
            ohneZuMalen([this] { m_fenster.setVisible(m_rahmen.istSichtbar()); });
        }
    });
}

/// Some window systems ask for a picture on the spot, of what is still being changed.
void QtOberfläche::ohneZuMalen(const std::function<void()>& änderung)
{
    m_fenster.setUpdatesEnabled(false);
    änderung();
    m_fenster.setUpdatesEnabled(true);
}

/// What the desktop puts around the window, so that the bar with OK and Exit stays on a small screen; a title bar
/// at least, until the window has its own.
QSize QtOberfläche::fensterrand() const
{
    const QSize geschätzt(0, m_fenster.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &m_fenster));
    return (m_fenster.frameGeometry().size() - m_fenster.size()).expandedTo(geschätzt);
}

void QtOberfläche::entlade(const Bildschirm& bildschirm)
{
    const auto* platz = platzVon(&bildschirm);
    if (platz == nullptr) {
        return;
    }
    if (m_seite == &bildschirm) {
        zeichneSeite(nullptr);
    }
    platz->ansicht->löse();
    platz->fenster->hide();
    if (platz->kind == nullptr) {
        m_fenster.seiten().removeWidget(platz->fenster);
    }
    platz->fenster->deleteLater();
    m_plätze.erase(m_plätze.begin() + (platz - m_plätze.data()));
}

/// The focus of the window follows the focus of the screen. Where the element that has it can no longer be
/// reached, the next one in reading order gets it, so that the keyboard is never lost.
void QtOberfläche::gleicheFokusAb()
{
    for (auto* bildschirm : m_folge.geladene()) { // more than one takes input where a window leaves the page free
        if (m_folge.istSichtbar(*bildschirm) && m_folge.istFrei(*bildschirm)) {
            gleicheFokusAb(*bildschirm);
        }
    }
}

void QtOberfläche::gleicheFokusAb(Bildschirm& bildschirm)
{
    const auto* platz = platzVon(&bildschirm);
    if (platz == nullptr || (platz->kind == nullptr && &bildschirm != m_seite)) {
        return; // the frame has one focus, that of the page it shows
    }
    auto* element = bildschirm.fokus();
    if (element != nullptr && !bildschirm.istErreichbar(*element)) {
        auto folge = bildschirm.tabFolge();
        auto ort = std::ranges::find(folge, element);
        std::rotate(folge.begin(), ort, folge.end());
        const auto ziel = std::ranges::find_if(folge, [&](const Element* e) { return bildschirm.istErreichbar(*e); });
        if (ziel != folge.end()) {
            bildschirm.setzeFokus(*ziel); // comes back here
        }
        return;
    }
    auto* widget = element == nullptr ? nullptr : platz->ansicht->widgetVon(*element);
    auto* bisher = platz->ansicht->wurzel()->window()->focusWidget();
    if (widget == nullptr) {
        if (bisher != nullptr) {
            bisher->clearFocus();
        }
    } else if (bisher != widget) {
        const QScopedValueRollback eigener(m_setztFokus, true);
        widget->setFocus(Qt::OtherFocusReason);
        rolleInSicht(*widget);
    }
}

void QtOberfläche::beiFokuswechsel(QWidget* alt, QWidget* neu)
{
    zeichneZeileUm(alt);
    zeichneZeileUm(neu);
    if (neu != nullptr && !m_setztFokus && !m_ablauf.istInEreignis()) {
        folgeFremdemFokus(*neu);
    }
}

/// Somebody else has put the focus there, a screen reader for its person: the focus of the screen follows, or it
/// would be back at its old place with the next key.
void QtOberfläche::folgeFremdemFokus(const QWidget& widget)
{
    auto* ansicht = ansichtVon(&widget);
    auto* element = ansicht == nullptr ? nullptr : ansicht->elementVon(&widget);
    auto* inGebrauch = m_folge.inGebrauch();
    if (element == nullptr || &ansicht->bildschirm() != inGebrauch || !inGebrauch->istErreichbar(*element) ||
        !element->nimmtFokus() || inGebrauch->fokus() == element) {
        return;
    }
    ereignis([&] { inGebrauch->fokussiere(element); });
}

Ansicht* QtOberfläche::ansichtVon(const QWidget* widget) const
{
    for (const auto& platz : m_plätze) {
        const auto* wurzel = platz.ansicht->wurzel();
        const bool istFenster = widget == wurzel->window() && wurzel->isVisible();
        if (istFenster || wurzel == widget || wurzel->isAncestorOf(widget)) {
            return wurzel->isEnabled() ? platz.ansicht.get() : nullptr;
        }
    }
    return nullptr;
}

QWidget* QtOberfläche::widgetVon(const Element& element) const
{
    const auto* platz = platzVon(&bildschirmVon(element));
    return platz == nullptr ? nullptr : platz->ansicht->widgetVon(element);
}

QAction* QtOberfläche::aktionVon(const Menüeintrag& eintrag) const
{
    const auto* platz = platzVon(&bildschirmVon(eintrag));
    return platz == nullptr ? nullptr : platz->ansicht->aktionVon(eintrag);
}

QWidget* QtOberfläche::fensterVon(const Bildschirm& bildschirm) const
{
    const auto* platz = platzVon(&bildschirm);
    return platz == nullptr ? nullptr : platz->fenster;
}

void QtOberfläche::bringeInSicht(const Element& element) const
{
    if (auto* widget = widgetVon(element)) {
        rolleInSicht(*widget);
    }
}

void QtOberfläche::ordne() const
{
    constexpr int runden = 4; // heights follow widths, down to the tables in the cards
    for (int i = 0; i < runden; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateLater); // of what has been shown
}
