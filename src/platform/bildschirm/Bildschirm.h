#pragma once

#include "platform/bildschirm/Anordnung.h"
#include "platform/elemente/Elemente.h"
#include "platform/elemente/Elementreihe.h"
#include "platform/elemente/triCtlJaNein.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

/// The dark band on top of a screen: title, client, then at the right pairs of label and value (period),
/// and a button. Parts that are not there leave no gap. `vortitel` is a label before the title.
struct Kopfband {
    Element* vortitel = nullptr;
    Element* titel = nullptr;
    Element* name = nullptr;
    struct Wert {
        std::string beschriftung;
        Element* element = nullptr;
    };
    std::vector<Wert> werte;
    Schaltfläche* knopf = nullptr;
};

/// The bar at the bottom: Memo or the screen's own commands at the left, OK and Exit at the right.
struct Knopfleiste {
    std::vector<Element*> links;
    std::vector<Element*> rechts;
};

struct Menü {
    Menüeintrag* titel = nullptr;
    std::vector<Menüeintrag*> einträge;
};

/// A screen: a class `frm…` whose public members are its elements, under their own names, in the order in which
/// they are declared. Its constructor gives lists and arrangement; its methods are its rules. It knows no toolkit.
///
///     class frmInfo : public Bildschirm {
///     public:
///         Beschriftung lblHeader{*this, "lblHeader"_t, "Über dieses Programm"_t};
///         Schaltfläche cmdOK{*this, "cmdOK"_t, "OK"_t};
///
///         frmInfo() : Bildschirm("frmInfo"_t)
///         {
///             kopfband.titel = &lblHeader;
///             leiste.rechts = {&cmdOK};
///             beiEscape = &cmdOK;
///             cmdOK.beiKlick = [this] { zustand().folge.schließe(*this); };
///         }
///     };
///
/// A screen object lives from one loading to its unloading: whoever opens a screen makes a new object
/// (Bildschirmplatz), so that every opening starts with the elements as they were laid out.
class Bildschirm : public Elementträger {
public:
    explicit Bildschirm(std::string_view name) : m_name(name) {}
    Bildschirm(const Bildschirm&) = delete;
    Bildschirm& operator=(const Bildschirm&) = delete;
    virtual ~Bildschirm() = default;

    /// "frmMemo".
    const std::string& name() const { return m_name; }
    /// The caption of its window.
    const std::string& titel() const { return m_titel; }
    void setzeTitel(std::string_view titel);

    // what the surface draws
    Kopfband kopfband;
    Anordnung aufbau;
    Knopfleiste leiste;
    std::vector<Menü> menü;
    /// True for the screens that stand over another one, in a window of their own.
    bool istKindfenster = false;
    /// Preferred width of a child window in em.
    double breiteEm = 30;
    /// A child window that the surface centres on the frame, by the real sizes of both.
    bool istMittig = false;

    /// Width and height of the screen in twips, as it was designed (the frame is fitted to it).
    double breite = 20000;
    double höhe = 11250;
    /// Place of a child window in twips (top, left).
    double oben = 0;
    double links = 0;

    // keyboard
    Schaltfläche* beiEingabe = nullptr; ///< what Return presses, if anything
    Schaltfläche* beiEscape = nullptr;  ///< what Escape and closing by the border press

    const std::vector<Element*>& elemente() const { return m_elemente; }
    Element* finde(std::string_view name) const;
    /// The elements that take the focus, in tab order.
    std::vector<Element*> tabFolge() const;
    /// Whether the element lies under a cover that is visible.
    bool istVerdeckt(const Element& element) const;
    /// Visible and not covered (the screen being shown is told by Bildschirmfolge).
    bool istZuSehen(const Element& element) const { return element.istSichtbar() && !istVerdeckt(element); }
    bool istErreichbar(const Element& element) const { return istZuSehen(element) && element.istFrei(); }

    Element* fokus() const override { return m_fokus; }
    /// Moves the focus to the element (nullptr: away from all). False when the field that has it does not let
    /// go; the action behind the move is then not to happen.
    bool fokussiere(Element* element);
    /// Sets the focus without asking (the program's own choice).
    void setzeFokus(Element* element);
    /// The first element that can take the focus.
    void fokussiereErstes();

    /// A key that the focused element had no use for: Return, Escape, Tab, Alt with the letter of a button.
    bool taste(const Taste& taste);
    /// The mnemonic of a button: acts only if the field that has the focus lets go.
    bool drückeKürzel(Schaltfläche& knopf);

    /// The screen has been opened: what is set up once. Unless told otherwise the same as each later time.
    virtual void beiÖffnung() { beiAktivierung(); }
    /// The screen has been shown or enabled again by the program.
    virtual void beiAktivierung() {}
    /// The screen is being unloaded.
    virtual void beiEntladen() {}

    Melder<> titelGeändert;
    Melder<> fokusGeändert;
    Melder<> lageGeändert;

private:
    /// The element's own constructor registers it.
    void nimmAuf(Element& element) override;

    bool geheWeiter(bool vor);
    Schaltfläche* findeKürzel(char zeichen) const;

    std::string m_name;
    std::string m_titel;
    std::vector<Element*> m_elemente;
    std::map<std::string, Element*, std::less<>> m_nachName;
    Element* m_fokus = nullptr;
    bool m_prüftVerlassen = false;
};

/// The screen that the element is on; nothing else carries elements.
inline Bildschirm& bildschirmVon(const Element& element)
{
    return static_cast<Bildschirm&>(element.träger());
}
