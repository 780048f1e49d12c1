#include "Handlungswahl.h"

#include "Textvorrat.h"
#include "Worte.h"

#include "platform/elemente/Elementbesucher.h"
#include "platform/text/Eingabe.h"
#include "platform/text/Text.h"

namespace {

class Wähler : public Elementbesucher {
public:
    Wähler(const Oberfläche& oberfläche, Zufall& zufall, const Datum& heute)
        : m_oberfläche(oberfläche), m_zufall(zufall), m_heute(heute)
    {}

    std::optional<std::string> handlung;

    void besuche(Ankreuzfeld& feld) override { klickeOderTippe(feld, 80); }
    void besuche(Auswahlfeld& feld) override;
    void besuche(Beschriftung& feld) override;
    void besuche(Bild& /*feld*/) override {}
    void besuche(Bildlaufleiste& feld) override { tippe(feld); }
    void besuche(Datumsfeld& feld) override;
    void besuche(Fläche& /*feld*/) override {}
    void besuche(Fortschrittsbalken& /*feld*/) override {}
    void besuche(Liste& feld) override;
    void besuche(Menüeintrag& feld) override { sage("klicke", feld); }
    void besuche(Optionsfeld& feld) override { klickeOderTippe(feld, 80); }
    void besuche(Schaltfläche& feld) override;
    void besuche(Textfeld& feld) override;
    void besuche(triCtlJaNein& feld) override { klickeOderTippe(feld, 80); }

private:
    static std::string name(const Element& element)
    {
        return alsUtf8(verbinde(element.bildschirm().name(), '.', element.name()));
    }

    void sage(const std::string& wort, const Element& element, const std::string& argument = {})
    {
        handlung = wort + ' ' + name(element) + (argument.empty() ? "" : ' ' + argument);
    }

    void tippe(const Element& element, Tastenende ende = Tastenende::Beliebig)
    {
        sage("tippe", element, alsArgument(zufallstasten(m_zufall, ende)));
    }
    void klickeAuf(const Element& element) { sage(m_zufall.trifft(6) ? "doppelklicke" : "klicke", element); }
    void klickeOderTippe(const Element& element, int prozentKlicks);
    void gibTextEin(const Element& element, bool mehrzeilig);

    const Oberfläche& m_oberfläche;
    Zufall& m_zufall;
    const Datum& m_heute;
};

void Wähler::klickeOderTippe(const Element& element, int prozentKlicks)
{
    if (!element.nimmtFokus() || m_zufall.trifft(prozentKlicks)) {
        klickeAuf(element);
    } else {
        tippe(element);
    }
}

/// A label without a rule is clicked now and then only.
void Wähler::besuche(Beschriftung& feld)
{
    if (feld.beiKlick || feld.beiDoppelklick || m_zufall.trifft(5)) {
        klickeAuf(feld);
    }
}

/// The second press of a double click on a deletion would meet the question, not the button.
void Wähler::besuche(Schaltfläche& feld)
{
    if (feld.rolle() == Schaltfläche::Rolle::Gefahr) {
        sage("klicke", feld);
    } else {
        klickeOderTippe(feld, 92);
    }
}

void Wähler::besuche(Auswahlfeld& feld)
{
    const auto einträge = m_oberfläche.einträge(feld);
    if (!einträge.empty() && m_zufall.trifft(70)) {
        sage("setze", feld, alsArgument(std::string_view(m_zufall.eines(einträge))));
    } else if (feld.istTippbar() && m_zufall.trifft(50)) {
        sage("einfügen", feld, alsArgument(zufallswert(m_zufall)));
    } else {
        tippe(feld, Tastenende::OhneLeertaste); // it would open the list
    }
}

void Wähler::besuche(Datumsfeld& feld)
{
    const auto datum = alsUtf8(alsDatumstext(zufallsdatum(m_zufall, m_heute)));
    sage(m_zufall.trifft(80) ? "setze" : "tippe", feld, datum);
}

void Wähler::besuche(Liste& feld)
{
    const auto zeilen = m_oberfläche.zeilen(feld).size();
    const auto spalten = m_oberfläche.spaltenköpfe(feld).size();
    if (zeilen > 0 && m_zufall.trifft(70)) {
        const auto zeile = std::to_string(m_zufall.ort(zeilen) + 1);
        sage(m_zufall.trifft(20) ? "doppelklicke" : "klicke", feld, zeile);
    } else if (spalten > 0 && m_zufall.trifft(50)) {
        sage("kopf", feld, std::to_string(m_zufall.ort(spalten) + 1));
    } else {
        tippe(feld);
    }
}

void Wähler::gibTextEin(const Element& element, bool mehrzeilig)
{
    constexpr int langesMemo = 10500;
    if (mehrzeilig && m_zufall.trifft(5)) {
        sage("einfügen", element, alsArgument(std::u32string(langesMemo, U'ü')));
        return;
    }
    const auto text = m_zufall.trifft(50) ? zufallstext(m_zufall) : zufallswert(m_zufall);
    sage(m_zufall.trifft(60) ? "setze" : "einfügen", element, alsArgument(text));
}

void Wähler::besuche(Textfeld& feld)
{
    if (m_zufall.trifft(75)) {
        gibTextEin(feld, feld.istMehrzeilig());
    } else if (m_zufall.trifft(30)) {
        sage("verlasse", feld);
    } else {
        klickeOderTippe(feld, 30);
    }
}

} // namespace

std::optional<std::string> wähleHandlung(Element& element, const Oberfläche& oberfläche, Zufall& zufall,
                                         const Datum& heute)
{
    Wähler wähler(oberfläche, zufall, heute);
    element.besuche(wähler);
    return wähler.handlung;
}
