#pragma once

#include "platform/bildschirm/Bildschirm.h"
#include "platform/elemente/Melder.h"
#include "platform/text/Datum.h"

#include <functional>
#include <unordered_map>
#include <vector>

class QAction;
class QScrollArea;
class QWidget;

/// What the widgets need from the surface they belong to.
class Bühne {
public:
    virtual ~Bühne() = default;
    /// Enters the logic with a person's action.
    virtual void ereignis(const std::function<void()>& aktion) = 0;
    /// Whether the logic is at work at this moment.
    virtual bool istInEreignis() const = 0;
    virtual Datum heute() = 0;
};

/// The widgets of one screen and their ties to its elements. When the screen is unloaded the ties are cut
/// (`löse`): the widgets may live on until the event that is being handled has ended, the elements may not,
/// so every way from a widget to its element leads through here.
class Ansicht {
public:
    Ansicht(Bildschirm& bildschirm, Bühne& bühne) : m_bildschirm(bildschirm), m_bühne(bühne) {}
    Ansicht(const Ansicht&) = delete;
    Ansicht& operator=(const Ansicht&) = delete;

    Bildschirm& bildschirm() const { return m_bildschirm; }
    bool lebt() const { return m_lebt; }
    Datum heute() const { return m_bühne.heute(); }
    bool istInEreignis() const { return m_bühne.istInEreignis(); }
    /// Runs the rule in the course of the program; nothing happens once the screen is gone.
    void ereignis(const std::function<void()>& aktion);

    /// Builds the widgets of the screen (header band, body that scrolls, button bar) below `eltern` and ties them to
    /// the elements; the menus of the screen are tied too, but hang nowhere yet. The body.
    QScrollArea* baueSeite(QWidget* eltern);
    /// Makes the widget that draws the element and ties it to it: one drawing routine for each kind. nullptr for
    /// a menu entry, which is no widget.
    QWidget* zeichne(Element& element, QWidget* eltern);

    void abonniere(Melder<>& melder, std::function<void()> ruf);
    /// The same, and calls at once for the state of now.
    void folge(Melder<>& melder, std::function<void()> ruf);
    /// Ties the widget to the element: draws now and after every change, first what all kinds share
    /// (visible, enabled, hint), then the kind's own.
    void binde(Element& element, QWidget& widget, std::function<void()> zeichne = {});
    /// The same for an entry of a menu.
    void binde(Menüeintrag& eintrag, QAction& aktion);

    QWidget* widgetVon(const Element& element) const;
    QAction* aktionVon(const Menüeintrag& eintrag) const;
    /// The element that the widget, or one of its parents, draws; nullptr for none.
    Element* elementVon(const QWidget* widget) const;

    QWidget* wurzel() const { return m_wurzel; }
    void löse();

private:
    Bildschirm& m_bildschirm;
    Bühne& m_bühne;
    bool m_lebt = true;
    QWidget* m_wurzel = nullptr;
    std::unordered_map<const Element*, QWidget*> m_widgets;
    std::unordered_map<const QWidget*, Element*> m_elemente;
    std::unordered_map<const Element*, QAction*> m_aktionen;
    std::vector<Abonnement> m_abonnements;
};
