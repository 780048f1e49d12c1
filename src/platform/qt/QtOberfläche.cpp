#include "platform/qt/QtOberfläche.h"

#include "platform/qt/Ansicht.h"
#include "platform/qt/Eingabewächter.h"
#include "platform/qt/Fenster.h"
#include "platform/qt/Maß.h"
#include "platform/qt/Seitenbau.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Tabelle.h"
#include "platform/qt/Umschrift.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QScrollArea>
#include <QScreen>
#include <QStackedWidget>

#include <algorithm>

namespace {

/// A screen with widgets: its tree stands in the frame or in a window of its own.
struct Platz {
    std::shared_ptr<Ansicht> ansicht;
    QWidget* fenster = nullptr; ///< page or child window
    Kindfenster* kind = nullptr;
};

Antwortzeile* zeileUm(QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (auto* zeile = dynamic_cast<Antwortzeile*>(widget)) {
            return zeile;
        }
    }
    return nullptr;
}

/// Scrolls every scroll area around the widget, with a row of room.
void rolleInSicht(QWidget& widget)
{
    for (auto* um = widget.parentWidget(); um != nullptr && !um->isWindow(); um = um->parentWidget()) {
        if (auto* rolle = dynamic_cast<QScrollArea*>(um)) {
            rolle->ensureWidgetVisible(&widget, 0, em(1.4));
        }
    }
}

} // namespace

class QtOberfläche::Innen : public Bühne {
public:
    Innen(Ablauf& ablauf, Bildschirmfolge& folge, Rahmen& rahmen, Umgebung& umgebung);
    Innen(const Innen&) = delete;
    Innen& operator=(const Innen&) = delete;
    ~Innen() override;

    void ereignis(const std::function<void()>& aktion) override;
    Datum heute() override { return m_umgebung.heute(); }

    Rahmenfenster& rahmenfenster() { return m_fenster; }
    const Platz* platzVon(const Bildschirm* bildschirm) const;

private:
    Fensterereignisse rahmenereignisse();
    Fensterereignisse kindereignisse(Bildschirm& bildschirm);
    Platz& baue(Bildschirm& bildschirm);
    void zeichneBildschirme();
    void zeichneKind(const Platz& platz);
    void zeichneSeite(Bildschirm* bildschirm);
    void zeichneMenü(const Bildschirm* bildschirm);
    void zeichneRahmen();
    void platziereKind(const Platz& platz);
    void entlade(const Bildschirm& bildschirm);
    void gleicheFokusAb();
    void beiFokuswechsel(QWidget* neu);
    Ansicht* ansichtVon(const QWidget* widget) const;

    Ablauf& m_ablauf;
    Bildschirmfolge& m_folge;
    Rahmen& m_rahmen;
    Umgebung& m_umgebung;
    Rahmenfenster m_fenster;
    std::vector<Platz> m_plätze;
    const Bildschirm* m_seite = nullptr; ///< whose page the frame shows
    std::vector<QMenu*> m_menüs;
    QPointer<QWidget> m_aktiveZeile;
    Eingabewächter m_wächter;
    std::vector<Abonnement> m_abonnements;
    QMetaObject::Connection m_fokusverbindung;
};

QtOberfläche::Innen::Innen(Ablauf& ablauf, Bildschirmfolge& folge, Rahmen& rahmen, Umgebung& umgebung)
    : m_ablauf(ablauf), m_folge(folge), m_rahmen(rahmen), m_umgebung(umgebung), m_fenster(rahmenereignisse()),
      m_wächter([this](const QWidget* widget) { return ansichtVon(widget); })
{
    QApplication::setQuitOnLastWindowClosed(false); // the end of the run ends the program, no window does
    m_fenster.menuBar()->hide();
    m_abonnements.push_back(folge.geändert.abonniere([this](Bildschirm&) { zeichneBildschirme(); }));
    m_abonnements.push_back(folge.entladen.abonniere([this](Bildschirm& bildschirm) { entlade(bildschirm); }));
    m_abonnements.push_back(rahmen.geändert.abonniere([this] { zeichneRahmen(); }));
    m_abonnements.push_back(ablauf.beendet.abonniere([this] { QCoreApplication::exit(m_ablauf.status()); }));
    m_fokusverbindung = QObject::connect(qApp, &QApplication::focusChanged, &m_fenster,
                                         [this](QWidget* /*alt*/, QWidget* neu) { beiFokuswechsel(neu); });
    zeichneRahmen();
    zeichneBildschirme();
}

QtOberfläche::Innen::~Innen()
{
    QObject::disconnect(m_fokusverbindung);
    for (auto& platz : m_plätze) {
        platz.ansicht->löse();
        delete platz.fenster; // before its Ansicht
    }
}

Fensterereignisse QtOberfläche::Innen::rahmenereignisse()
{
    return {.verschoben =
                [this](QPoint ort) {
                    ereignis([&] { m_rahmen.benutzerVerschiebt(alsTwips(ort.y()), alsTwips(ort.x())); });
                },
            .größeGeändert =
                [this](QSize größe) {
                    ereignis([&] { m_rahmen.benutzerÄndertGröße(alsTwips(größe.width()), alsTwips(größe.height())); });
                },
            .maximiert = [this](bool maximiert) { ereignis([&] { m_rahmen.benutzerMaximiert(maximiert); }); },
            .schließwunsch = [this] { ereignis([&] { m_rahmen.benutzerSchließt(); }); }};
}

Fensterereignisse QtOberfläche::Innen::kindereignisse(Bildschirm& bildschirm)
{
    return {.verschoben =
                [&bildschirm](QPoint ort) {
                    bildschirm.oben = alsTwips(ort.y());
                    bildschirm.links = alsTwips(ort.x());
                },
            .größeGeändert = {},
            .maximiert = {},
            .schließwunsch =
                [this, &bildschirm] {
                    if (platzVon(&bildschirm) != nullptr && m_folge.istFrei(bildschirm)) {
                        ereignis([&] { bildschirm.taste({Taste::Art::Esc, 0}); });
                    }
                }};
}

void QtOberfläche::Innen::ereignis(const std::function<void()>& aktion)
{
    if (m_ablauf.ereignis(aktion)) {
        gleicheFokusAb();
    }
}

const Platz* QtOberfläche::Innen::platzVon(const Bildschirm* bildschirm) const
{
    const auto ort = std::find_if(m_plätze.begin(), m_plätze.end(),
                                  [&](const Platz& platz) { return &platz.ansicht->bildschirm() == bildschirm; });
    return ort == m_plätze.end() ? nullptr : &*ort;
}

Platz& QtOberfläche::Innen::baue(Bildschirm& bildschirm)
{
    Platz neu;
    neu.ansicht = std::make_shared<Ansicht>(bildschirm, *this);
    auto& ansicht = *neu.ansicht;
    if (bildschirm.istKindfenster) {
        neu.kind = new Kindfenster(kindereignisse(bildschirm), em(bildschirm.breiteEm), &m_fenster);
        const auto seite = baueSeite(ansicht, neu.kind);
        neu.kind->setzeSeite(*seite.wurzel, *seite.blatt);
        neu.fenster = neu.kind;
        ansicht.abonniere(bildschirm.lageGeändert, [this, &bildschirm] {
            if (const auto* platz = platzVon(&bildschirm)) {
                platziereKind(*platz);
            }
        });
        ansicht.abonniere(bildschirm.titelGeändert,
                          [fenster = neu.kind, &bildschirm] { fenster->setWindowTitle(alsQString(bildschirm.titel())); });
        neu.kind->setWindowTitle(alsQString(bildschirm.titel()));
    } else {
        neu.fenster = baueSeite(ansicht, &m_fenster.seiten()).wurzel;
        m_fenster.seiten().addWidget(neu.fenster);
    }
    // the widgets may outlast the screen until the event at hand has ended, and their Ansicht with them
    QObject::connect(neu.fenster, &QObject::destroyed, neu.fenster, [behalten = neu.ansicht] {});
    ansicht.abonniere(bildschirm.fokusGeändert, [this] { gleicheFokusAb(); });
    m_plätze.push_back(std::move(neu));
    return m_plätze.back();
}

void QtOberfläche::Innen::zeichneBildschirme()
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

void QtOberfläche::Innen::zeichneKind(const Platz& platz)
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

void QtOberfläche::Innen::platziereKind(const Platz& platz)
{
    const auto& bildschirm = platz.ansicht->bildschirm();
    const QPoint ort(alsPixel(bildschirm.links), alsPixel(bildschirm.oben));
    platz.kind->platzwächter().platziere([&] { platz.kind->move(inDenSchirm(ort, platz.kind->size())); });
}

void QtOberfläche::Innen::zeichneSeite(Bildschirm* bildschirm)
{
    const auto* platz = platzVon(bildschirm);
    auto& seiten = m_fenster.seiten();
    seiten.setCurrentWidget(platz == nullptr ? seiten.widget(0) : platz->fenster);
    if (m_seite != bildschirm) {
        m_seite = bildschirm;
        zeichneMenü(bildschirm);
    }
    m_fenster.menuBar()->setEnabled(platz != nullptr && m_folge.istFrei(*bildschirm));
}

void QtOberfläche::Innen::zeichneMenü(const Bildschirm* bildschirm)
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

void QtOberfläche::Innen::zeichneRahmen()
{
    m_fenster.setWindowTitle(alsQString(m_rahmen.titel()));
    m_fenster.platzwächter().platziere([this] {
        if (m_rahmen.istMaximiert() != m_fenster.isMaximized()) {
            m_fenster.setWindowState(m_rahmen.istMaximiert() ? Qt::WindowMaximized : Qt::WindowNoState);
        }
        if (!m_rahmen.istMaximiert() && m_rahmen.breite() > 0) {
            const QSize größe(alsPixel(m_rahmen.breite()), alsPixel(m_rahmen.höhe()));
            const QSize platz = m_fenster.screen()->availableSize();
            m_fenster.resize(größe.boundedTo(platz));
            m_fenster.move(inDenSchirm({alsPixel(m_rahmen.links()), alsPixel(m_rahmen.oben())}, m_fenster.size()));
        }
        m_fenster.setVisible(m_rahmen.istSichtbar());
    });
}

void QtOberfläche::Innen::entlade(const Bildschirm& bildschirm)
{
    const auto ort = std::find_if(m_plätze.begin(), m_plätze.end(),
                                  [&](const Platz& platz) { return &platz.ansicht->bildschirm() == &bildschirm; });
    if (ort == m_plätze.end()) {
        return;
    }
    if (m_seite == &bildschirm) {
        zeichneSeite(nullptr);
    }
    ort->ansicht->löse();
    ort->fenster->hide();
    if (ort->kind == nullptr) {
        m_fenster.seiten().removeWidget(ort->fenster);
    }
    ort->fenster->deleteLater();
    m_plätze.erase(ort);
}

/// The focus of the window follows the focus of the screen. Where the element that has it can no longer be
/// reached, the next one in reading order gets it, so that the keyboard is never lost.
void QtOberfläche::Innen::gleicheFokusAb()
{
    auto* bildschirm = m_folge.inGebrauch();
    const auto* platz = platzVon(bildschirm);
    if (platz == nullptr) {
        return;
    }
    auto* element = bildschirm->fokus();
    if (element != nullptr && !bildschirm->istErreichbar(*element)) {
        auto folge = bildschirm->tabFolge();
        auto ort = std::find(folge.begin(), folge.end(), element);
        std::rotate(folge.begin(), ort, folge.end());
        const auto ziel = std::find_if(folge.begin(), folge.end(), [&](const Element* e) { return bildschirm->istErreichbar(*e); });
        if (ziel != folge.end()) {
            bildschirm->setzeFokus(*ziel); // comes back here
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
        widget->setFocus(Qt::OtherFocusReason);
        rolleInSicht(*widget);
    }
}

void QtOberfläche::Innen::beiFokuswechsel(QWidget* neu)
{
    auto* zeile = zeileUm(neu);
    if (auto* alte = dynamic_cast<Antwortzeile*>(m_aktiveZeile.data()); alte != nullptr && alte != zeile) {
        alte->setzeAktiv(false);
    }
    if (zeile != nullptr) {
        zeile->setzeAktiv(true);
    }
    m_aktiveZeile = zeile;
}

Ansicht* QtOberfläche::Innen::ansichtVon(const QWidget* widget) const
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

QtOberfläche::QtOberfläche(Ablauf& ablauf, Bildschirmfolge& folge, Rahmen& rahmen, Umgebung& umgebung)
    : m_innen(std::make_unique<Innen>(ablauf, folge, rahmen, umgebung))
{
}

QtOberfläche::~QtOberfläche() = default;

QMainWindow* QtOberfläche::rahmenfenster() const
{
    return &m_innen->rahmenfenster();
}

QWidget* QtOberfläche::widgetVon(const Element& element) const
{
    const auto* platz = m_innen->platzVon(element.bildschirm());
    return platz == nullptr ? nullptr : platz->ansicht->widgetVon(element);
}

QAction* QtOberfläche::aktionVon(const Menüeintrag& eintrag) const
{
    const auto* platz = m_innen->platzVon(eintrag.bildschirm());
    return platz == nullptr ? nullptr : platz->ansicht->aktionVon(eintrag);
}

QWidget* QtOberfläche::fensterVon(const Bildschirm& bildschirm) const
{
    const auto* platz = m_innen->platzVon(&bildschirm);
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
}
