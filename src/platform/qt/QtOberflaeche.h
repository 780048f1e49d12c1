#pragma once

#include "platform/bildschirm/Ablauf.h"
#include "platform/bildschirm/Bildschirmfolge.h"
#include "platform/bildschirm/Rahmen.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Eingabewaechter.h"
#include "platform/qt/Fenster.h"
#include "platform/qt/Handbuch.h"
#include "platform/umgebung/Umgebung.h"

#include <memory>
#include <vector>

class QAction;
class QMenu;

/// The windows: draws the screens of a run with Qt Widgets and passes the person's actions on.
///
/// Who owns what: the logic owns screens and elements; this class owns the frame window, the child windows
/// and one tree of widgets for each loaded screen. A tree is built when its screen is shown for the first
/// time, follows its elements by subscriptions, and is taken down when the screen is unloaded.
///
/// In which order things happen: a person's action reaches a widget; the widget enters the logic through
/// `Ablauf::ereignis`; rules change elements, and their subscriptions draw at once; after the event the
/// focus of the window follows the focus of the screen.
///
/// The focus is the screen's (Bildschirm::fokussiere): no widget takes it by a click on its own. A press
/// of the mouse, Tab or a mnemonic first asks the field that has the focus to let go; where it does not, the
/// focus stays and the press is not performed.
///
/// The widget of each kind of element: Beschriftung QLabel, Schaltfläche QPushButton (a "hyphen, blank" of a
/// way button is shown as hyphen and line break), Textfeld QLineEdit or QPlainTextEdit, Auswahlfeld Auswahlbox
/// (a QComboBox; `gezeigterText` is what it shows), Optionsfeld QRadioButton, Ankreuzfeld QCheckBox, Datumsfeld
/// Datumsbox (a QLineEdit), Fortschrittsbalken QProgressBar, Bildlaufleiste QScrollBar, Fläche QWidget, Liste
/// QTreeView, triCtlJaNein Antwortfeld, Bild QLabel; a Menüeintrag is a QAction. The object name of each is the name of
/// the element.
class QtOberfläche : public Bühne {
public:
    /// `umgebung` gives the date for the calendar. QApplication must exist and be prepared by `richteStilEin`.
    QtOberfläche(Ablauf& ablauf, Bildschirmfolge& folge, Rahmen& rahmen, Umgebung& umgebung);
    QtOberfläche(const QtOberfläche&) = delete;
    QtOberfläche& operator=(const QtOberfläche&) = delete;
    ~QtOberfläche() override;

    QMainWindow* rahmenfenster() { return &m_fenster; }
    /// The widget that draws the element; nullptr while its screen has no widgets, or for a menu entry.
    QWidget* widgetVon(const Element& element) const;
    /// The entry of the menu bar (or the menu's own action); nullptr while its screen has no widgets.
    QAction* aktionVon(const Menüeintrag& eintrag) const;
    /// The screen's page in the frame, or its child window; nullptr while it has no widgets.
    QWidget* fensterVon(const Bildschirm& bildschirm) const;
    /// Scrolls the element into view, as far as scroll areas around it allow.
    void bringeInSicht(const Element& element) const;
    /// Lets pending layouts take place, so that what is asked next is what a person would see.
    void ordne() const;

    void ereignis(const std::function<void()>& aktion) override;
    bool istInEreignis() const override { return m_ablauf.istInEreignis(); }
    Datum heute() override { return m_umgebung.heute(); }

private:
    /// A screen with widgets: its tree stands in the frame or in a window of its own.
    struct Platz {
        std::shared_ptr<Ansicht> ansicht;
        QWidget* fenster = nullptr; ///< page or child window
        Kindfenster* kind = nullptr;
    };

    const Platz* platzVon(const Bildschirm* bildschirm) const;
    Platz& baue(Bildschirm& bildschirm);
    void zeichneBildschirme();
    void zeichneKind(const Platz& platz);
    void zeichneSeite(Bildschirm* bildschirm);
    void zeichneMenü(const Bildschirm* bildschirm);
    void zeichneRahmen();
    void ohneZuMalen(const std::function<void()>& änderung);
    QSize fensterrand() const;
    void platziereKind(const Platz& platz);
    void entlade(const Bildschirm& bildschirm);
    void gibTastaturWeiter();
    void gleicheFokusAb();
    void gleicheFokusAb(Bildschirm& bildschirm);
    void beiFokuswechsel(QWidget* alt, QWidget* neu);
    void folgeFremdemFokus(const QWidget& widget);
    Ansicht* ansichtVon(const QWidget* widget) const;

    Ablauf& m_ablauf;
    Bildschirmfolge& m_folge;
    Rahmen& m_rahmen;
    Umgebung& m_umgebung;
    Rahmenfenster m_fenster;
    std::vector<Platz> m_plätze;
    const Bildschirm* m_seite = nullptr; ///< whose page the frame shows
    bool m_istSeiteNeu = false;          ///< it has not been laid out yet
    std::vector<QMenu*> m_menüs;
    bool m_setztFokus = false; ///< the focus that changes is the program's own doing
    Eingabewächter m_wächter;
    Handbuch m_handbuch;
    std::vector<Abonnement> m_abonnements;
    QMetaObject::Connection m_fokusverbindung;
};
