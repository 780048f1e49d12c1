#include "platform/qt/Elementzeichner.h"

#include "platform/elemente/Elementbesucher.h"
#include "platform/elemente/Elemente.h"
#include "platform/elemente/triCtlJaNein.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Antwortfeld.h"
#include "platform/qt/Auswahlbox.h"
#include "platform/qt/Datumsbox.h"
#include "platform/qt/Einfaches.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/Knoepfe.h"
#include "platform/qt/Listenansicht.h"
#include "platform/qt/Textbox.h"
#include "platform/qt/Vorlesen.h"

namespace {

class Zeichner : public Elementbesucher {
public:
    Zeichner(Ansicht& ansicht, QWidget* eltern) : m_ansicht(ansicht), m_eltern(eltern) {}

    QWidget* ergebnis() const { return m_ergebnis; }

    void besuche(Ankreuzfeld& feld) override { mache<Ankreuzkästchen>(feld); }
    void besuche(Auswahlfeld& feld) override { mache<Auswahlbox>(feld); }
    void besuche(Beschriftung& feld) override { mache<Etikett>(feld); }
    void besuche(Bild& feld) override { mache<Bildfläche>(feld); }
    void besuche(Bildlaufleiste& feld) override { mache<Laufleiste>(feld); }
    void besuche(Datumsfeld& feld) override { mache<Datumsbox>(feld); }
    void besuche(Fortschrittsbalken& feld) override { mache<Fortschritt>(feld); }
    void besuche(Liste& feld) override { mache<Listenansicht>(feld); }
    void besuche(Menüeintrag& /*feld*/) override {}
    void besuche(Optionsfeld& feld) override { mache<Optionsknopf>(feld); }
    void besuche(Schaltfläche& feld) override { mache<Knopf>(feld); }
    void besuche(triCtlJaNein& feld) override { mache<Antwortfeld>(feld); }

    void besuche(Fläche& feld) override
    {
        m_ergebnis = new QWidget(m_eltern);
        m_ansicht.binde(feld, *m_ergebnis);
    }

    void besuche(Textfeld& feld) override
    {
        if (feld.istMehrzeilig()) {
            mache<Textblock>(feld);
        } else {
            mache<Textzeile>(feld);
        }
    }

private:
    template <class W, class E> void mache(E& feld)
    {
        auto* neu = new W(feld, m_ansicht, m_eltern);
        m_ergebnis = neu;
        nimmFremdeEingabe(*neu, feld, m_ansicht);
    }

    Ansicht& m_ansicht;
    QWidget* m_eltern;
    QWidget* m_ergebnis = nullptr;
};

} // namespace

QWidget* zeichneElement(Element& element, Ansicht& ansicht, QWidget* eltern)
{
    Zeichner zeichner(ansicht, eltern);
    element.besuche(zeichner);
    return zeichner.ergebnis();
}
