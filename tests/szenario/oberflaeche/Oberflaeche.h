#pragma once

#include "sprache/Tastenfolge.h"

#include "platform/bildschirm/Bildschirm.h"
#include "platform/bildschirm/Bildschirmfolge.h"
#include "platform/elemente/Elemente.h"
#include "platform/elemente/triCtlJaNein.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class Programm;

/// Place of a window in twips.
struct Lage {
    double links = 0;
    double oben = 0;
};

/// A person before the program: acts on its elements and reads them. The two implementations act through the
/// doors of the elements, and through real widgets.
///
/// An action is only asked for on an element that can be reached. It moves the focus first; where the field
/// that has the focus does not let go, the action does not happen, which is no failure. Texts are code page,
/// line breaks as they come. Reading works on elements out of sight too.
class Oberfläche {
public:
    Oberfläche() = default;
    Oberfläche(const Oberfläche&) = delete;
    Oberfläche& operator=(const Oberfläche&) = delete;
    virtual ~Oberfläche() = default;

    /// "ohne" or "qt".
    virtual std::string_view name() const = 0;
    /// Takes its place before the program, which has not been started yet.
    virtual void beginne(Programm& programm) = 0;
    /// The program is about to go.
    virtual void beende() = 0;
    /// Draws what has changed at once; may be called while an action is going on.
    virtual void zeichne() = 0;

    // actions
    virtual void klicke(Element& element) = 0;
    virtual void klickeZeile(Liste& liste, std::size_t zeile) = 0;
    virtual void doppelklicke(Element& element) = 0;
    virtual void doppelklickeZeile(Liste& liste, std::size_t zeile) = 0;
    virtual void klickeKopf(Liste& liste, std::size_t spalte) = 0;
    virtual void ersetzeText(Textfeld& feld, std::u32string_view text) = 0;
    virtual void wähleEintrag(Auswahlfeld& feld, std::size_t eintrag) = 0;
    virtual void wähleDatum(Datumsfeld& feld, const Datum& datum) = 0;
    virtual void tippe(Element& element, const std::vector<Tastendruck>& tasten) = 0;
    virtual void fügeEin(Textfeld& feld, std::u32string_view text) = 0;
    virtual void fügeEin(Auswahlfeld& feld, std::u32string_view text) = 0;
    /// Turns the wheel over the element, downwards for a positive number of steps.
    virtual void dreheRad(Element& element, int schritte) = 0;
    virtual void verlasse(Element& element) = 0;
    virtual void schließeRahmen() = 0;
    virtual void verschiebeRahmen(const Lage& lage) = 0;
    virtual void maximiereRahmen(bool maximiert) = 0;

    // what can be seen
    virtual bool istZuSehen(const Element& element) const = 0;
    virtual bool istFrei(const Element& element) const = 0;
    bool istErreichbar(const Element& element) const { return istZuSehen(element) && istFrei(element); }
    virtual bool hatFokus(const Element& element) const = 0;
    virtual std::string text(const Element& element) const = 0;
    virtual std::string hinweis(const Element& element) const = 0;
    virtual Farbe hintergrund(const Element& element) const = 0;
    virtual bool istAn(const Optionsfeld& feld) const = 0;
    virtual bool istAn(const Ankreuzfeld& feld) const = 0;
    virtual int wert(const Fortschrittsbalken& balken) const = 0;
    virtual int wert(const Bildlaufleiste& leiste) const = 0;
    virtual std::vector<std::string> einträge(const Auswahlfeld& feld) const = 0;
    virtual std::vector<std::string> zeilen(const Liste& liste) const = 0;
    virtual std::vector<std::string> spaltenköpfe(const Liste& liste) const = 0;
    virtual std::size_t auswahl(const Liste& liste) const = 0;
    /// Whether a person sees the screen (its page or its window).
    virtual bool istOffen(const Bildschirm& bildschirm) const = 0;
    virtual std::string titel(const Bildschirm& bildschirm) const = 0;
    virtual Lage lage(const Bildschirm& bildschirm) const = 0;
    virtual std::string rahmentitel() const = 0;
    virtual bool istRahmenZuSehen() const = 0;
    virtual Lage rahmenlage() const = 0;
};

/// The screen that the keyboard belongs to: the one that was typed into last, as long as it can be used.
/// `zuletzt` may be gone.
Bildschirm* tastaturbildschirm(const Bildschirmfolge& folge, const Bildschirm* zuletzt);
