#include "platform/elemente/Elementbesucher.h"
#include "platform/elemente/Elemente.h"
#include "platform/elemente/triCtlJaNein.h"
#include "platform/qt/Ansicht.h"
#include "platform/qt/Antwortfeld.h"
#include "platform/qt/Auswahlbox.h"
#include "platform/qt/Datumsbox.h"
#include "platform/qt/Etikett.h"
#include "platform/qt/Fortschritt.h"
#include "platform/qt/Knoepfe.h"
#include "platform/qt/Listenansicht.h"
#include "platform/qt/Stil.h"
#include "platform/qt/Textbox.h"
#include "platform/qt/Vorlesen.h"

#include <QIcon>
#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>

namespace {

class Zeichner : public Elementbesucher {
public:
    Zeichner(Ansicht& ansicht, QWidget* eltern) : m_ansicht(ansicht), m_eltern(eltern) {}

    QWidget* ergebnis() const { return m_ergebnis; }

    void besuche(Ankreuzfeld& feld) override { mache<Ankreuzkästchen>(feld); }
    void besuche(Auswahlfeld& feld) override { mache<Auswahlbox>(feld); }
    void besuche(Beschriftung& feld) override { mache<Etikett>(feld); }
    void besuche(Datumsfeld& feld) override { mache<Datumsbox>(feld); }
    void besuche(Fortschrittsbalken& feld) override { mache<Fortschritt>(feld); }
    void besuche(Liste& feld) override { mache<Listenansicht>(feld); }
    void besuche(Menüeintrag& /*feld*/) override {}
    void besuche(Optionsfeld& feld) override { mache<Optionsknopf>(feld); }
    void besuche(Schaltfläche& feld) override { mache<Knopf>(feld); }
    void besuche(triCtlJaNein& feld) override { mache<Antwortfeld>(feld); }

    void besuche(Bild& feld) override
    {
        auto* bild = new QLabel(m_eltern);
        bild->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        bild->setPixmap(programmzeichen().pixmap(QSize(em(6), em(6)), bild->devicePixelRatioF()));
        m_ansicht.binde(feld, *bild);
        m_ergebnis = bild;
    }

    void besuche(Bildlaufleiste& feld) override
    {
        auto* leiste = new QScrollBar(Qt::Vertical, m_eltern);
        QObject::connect(leiste, &QScrollBar::valueChanged, leiste,
                         [&feld, &ansicht = m_ansicht](int wert) { ansicht.ereignis([&] { feld.setzeWert(wert); }); });
        m_ansicht.binde(feld, *leiste, [leiste, &feld] {
            const QSignalBlocker still(leiste);
            leiste->setRange(feld.kleinstes(), feld.größtes());
            leiste->setSingleStep(feld.kleinerSchritt());
            leiste->setPageStep(feld.großerSchritt());
            leiste->setValue(feld.wert());
        });
        m_ergebnis = leiste;
    }

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

QWidget* Ansicht::zeichne(Element& element, QWidget* eltern)
{
    Zeichner zeichner(*this, eltern);
    element.besuche(zeichner);
    return zeichner.ergebnis();
}
