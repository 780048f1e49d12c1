#pragma once

#include "platform/bildschirm/Ablauf.h"
#include "platform/bildschirm/Bildschirmfolge.h"
#include "platform/bildschirm/Rahmen.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Eingabewaechter.h"
#include "platform/qt/Fenster.h"
#include "platform/qt/Handbuch.h"

#include <QPointer>

#include <memory>
#include <vector>

class QMenu;

/// A screen with widgets: its tree stands in the frame or in a window of its own.
struct Platz {
    std::shared_ptr<Ansicht> ansicht;
    QWidget* fenster = nullptr; ///< page or child window
    Kindfenster* kind = nullptr;
};

/// Keeps the windows like the order of screens: builds the trees of widgets, shows, disables and drops them,
/// places frame and child windows, and lets the focus of the windows follow the focus of the screens.
class Fensterwart : public Bühne {
public:
    Fensterwart(Ablauf& ablauf, Bildschirmfolge& folge, Rahmen& rahmen, Umgebung& umgebung);
    Fensterwart(const Fensterwart&) = delete;
    Fensterwart& operator=(const Fensterwart&) = delete;
    ~Fensterwart() override;

    void ereignis(const std::function<void()>& aktion) override;
    bool istInEreignis() const override { return m_ablauf.istInEreignis(); }
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
    QSize fensterrand() const;
    void platziereKind(const Platz& platz);
    std::string nameInGebrauch() const;
    void entlade(const Bildschirm& bildschirm);
    void gibTastaturWeiter();
    void gleicheFokusAb();
    void gleicheFokusAb(Bildschirm& bildschirm);
    void beiFokuswechsel(QWidget* neu);
    void folgeFremdemFokus(const QWidget& widget);
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
    bool m_setztFokus = false; ///< the focus that changes is the program's own doing
    Eingabewächter m_wächter;
    Handbuch m_handbuch;
    std::vector<Abonnement> m_abonnements;
    QMetaObject::Connection m_fokusverbindung;
};

/// Scrolls every scroll area around the widget until it is in sight, with a row of room.
void rolleInSicht(QWidget& widget);
