#pragma once

#include "oberflaeche/Oberflaeche.h"
#include "oberflaeche/OffeneListe.h"
#include "sprache/Schreibhand.h"

#include "zustand/Zustand.h"

#include <functional>

/// No toolkit: acts through the doors of the elements, and reads the elements.
class OberflächeOhne : public Oberfläche {
public:
    std::string_view name() const override { return "ohne"; }
    void beginne(Programm& programm) override;
    void beende() override;
    void zeichne() override {}

    void klicke(Element& element) override;
    void klickeZeile(Liste& liste, std::size_t zeile) override;
    void doppelklicke(Element& element) override;
    void doppelklickeZeile(Liste& liste, std::size_t zeile) override;
    void klickeKopf(Liste& liste, std::size_t spalte) override;
    void ersetzeText(Textfeld& feld, std::u32string_view text) override;
    void wähleEintrag(Auswahlfeld& feld, std::size_t eintrag) override;
    void wähleDatum(Datumsfeld& feld, const Datum& datum) override;
    void tippe(Element& element, const std::vector<Tastendruck>& tasten) override;
    void fügeEin(Textfeld& feld, std::u32string_view text) override;
    void fügeEin(Auswahlfeld& feld, std::u32string_view text) override;
    void dreheRad(Element& element, int schritte) override;
    void verlasse(Element& element) override;
    void schließeRahmen() override;
    void verschiebeRahmen(const Lage& lage) override;
    void maximiereRahmen(bool maximiert) override;

    bool istZuSehen(const Element& element) const override;
    bool istFrei(const Element& element) const override;
    bool hatFokus(const Element& element) const override;
    std::string text(const Element& element) const override;
    std::string hinweis(const Element& element) const override { return element.hinweis(); }
    Farbe hintergrund(const Element& element) const override { return element.hintergrund(); }
    bool istAn(const Optionsfeld& feld) const override { return feld.istAn(); }
    bool istAn(const Ankreuzfeld& feld) const override { return feld.istAn(); }
    int wert(const Fortschrittsbalken& balken) const override { return balken.wert(); }
    int wert(const Bildlaufleiste& leiste) const override { return leiste.wert(); }
    std::vector<std::string> einträge(const Auswahlfeld& feld) const override { return feld.liste(); }
    std::vector<std::string> zeilen(const Liste& liste) const override;
    std::vector<std::string> spaltenköpfe(const Liste& liste) const override { return liste.spalten(); }
    std::size_t auswahl(const Liste& liste) const override { return liste.auswahl(); }
    bool istOffen(const Bildschirm& bildschirm) const override { return m_zustand->folge.istSichtbar(bildschirm); }
    std::string titel(const Bildschirm& bildschirm) const override { return bildschirm.titel(); }
    Lage lage(const Bildschirm& bildschirm) const override { return {bildschirm.links, bildschirm.oben}; }
    std::string rahmentitel() const override { return m_zustand->rahmen.titel(); }
    bool istRahmenZuSehen() const override { return m_zustand->rahmen.istSichtbar(); }
    Lage rahmenlage() const override { return {m_zustand->rahmen.links(), m_zustand->rahmen.oben()}; }

private:
    /// Moves the focus to the element; then, if it can still be reached, acts. All as one event.
    void handle(Element& element, const std::function<void()>& aktion);
    void drücke(const Tastendruck& druck);
    void gib(Bildschirm& bildschirm, const Tastendruck& druck);
    bool gibElement(Element& element, const Tastendruck& druck, const Taste& taste);

    Zustand* m_zustand = nullptr;
    Schreibhand m_schreibhand;                        ///< in the text box that has the focus
    OffeneListe m_offeneListe;                        ///< of the combo box that has the focus
    const Bildschirm* m_tastaturbildschirm = nullptr; ///< that was acted on last
};
