#pragma once

#include "platform/bildschirm/Ablauf.h"
#include "platform/bildschirm/Bildschirmfolge.h"
#include "platform/bildschirm/Rahmen.h"
#include "platform/umgebung/Umgebung.h"

#include <memory>

class Fensterwart;
class QAction;
class QMainWindow;
class QWidget;

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
class QtOberfläche {
public:
    /// `umgebung` gives the date for the calendar. QApplication must exist and be prepared by `richteStilEin`.
    QtOberfläche(Ablauf& ablauf, Bildschirmfolge& folge, Rahmen& rahmen, Umgebung& umgebung);
    QtOberfläche(const QtOberfläche&) = delete;
    QtOberfläche& operator=(const QtOberfläche&) = delete;
    ~QtOberfläche();

    QMainWindow* rahmenfenster() const;
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

private:
    std::unique_ptr<Fensterwart> m_wart;
};
