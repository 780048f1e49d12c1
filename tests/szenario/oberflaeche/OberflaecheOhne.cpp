#include "oberflaeche/OberflaecheOhne.h"

#include "app/moMain.h"
#include "platform/bildschirm/Reihengang.h"
#include "platform/text/Eingabe.h"

#include <algorithm>

namespace {

/// The page in the frame that covers the ones below it.
const Bildschirm* obersteSeite(const Bildschirmfolge& folge)
{
    const auto geladene = folge.geladene();
    const auto seite = std::find_if(geladene.rbegin(), geladene.rend(), [&](const Bildschirm* bildschirm) {
        return !bildschirm->istKindfenster && folge.istSichtbar(*bildschirm);
    });
    return seite == geladene.rend() ? nullptr : *seite;
}

/// For all others two quick clicks are two clicks.
bool kenntDoppelklick(const Element& element)
{
    return dynamic_cast<const Beschriftung*>(&element) != nullptr || dynamic_cast<const Liste*>(&element) != nullptr ||
           dynamic_cast<const Optionsfeld*>(&element) != nullptr;
}

} // namespace

void OberflächeOhne::beginne(Programm& programm)
{
    m_zustand = &programm.zustand();
    m_tastaturbildschirm = nullptr;
}

void OberflächeOhne::beende()
{
    m_datumseingabe.reset();
    m_zustand = nullptr;
}

/// A date that is being typed is read before anything else happens.
void OberflächeOhne::schließeDatumAb()
{
    if (!m_datumseingabe) {
        return;
    }
    const auto geladene = m_zustand->folge.geladene();
    const auto* bildschirm = m_datumsbildschirm;
    if (std::find(geladene.begin(), geladene.end(), bildschirm) != geladene.end()) {
        m_datumseingabe->übernimm();
    }
    m_datumseingabe.reset();
}

bool OberflächeOhne::gibDatumsfeld(Element& element, const Taste& taste)
{
    auto* feld = dynamic_cast<Datumsfeld*>(&element);
    if (feld == nullptr) {
        return false;
    }
    if (!m_datumseingabe || !m_datumseingabe->gilt()) {
        m_datumseingabe.emplace(*feld);
        m_datumsbildschirm = feld->bildschirm();
    }
    if (m_datumseingabe->taste(taste)) {
        return true;
    }
    schließeDatumAb();
    return false;
}

std::string OberflächeOhne::text(const Element& element) const
{
    const bool wirdGetippt = m_datumseingabe && &m_datumseingabe->feld() == &element && m_datumseingabe->gilt();
    return wirdGetippt ? m_datumseingabe->text() : element.text();
}

bool OberflächeOhne::fokussiere(Element& element)
{
    if (!element.hatFokus() && element.nimmtFokus()) {
        schließeDatumAb();
    }
    return !element.nimmtFokus() || element.bildschirm()->fokussiere(&element);
}

void OberflächeOhne::handle(Element& element, const std::function<void()>& aktion)
{
    m_zustand->ablauf.ereignis([&] {
        m_tastaturbildschirm = element.bildschirm();
        if (fokussiere(element) && istErreichbar(element)) {
            aktion();
        }
    });
}

void OberflächeOhne::klicke(Element& element)
{
    const bool istListe = dynamic_cast<Liste*>(&element) != nullptr; // beside its rows a list has nothing to click
    handle(element, [&] {
        if (!istListe) {
            element.klicke();
        }
    });
}

void OberflächeOhne::klickeZeile(Liste& liste, std::size_t zeile)
{
    handle(liste, [&] { liste.klickeZeile(zeile); });
}

void OberflächeOhne::doppelklicke(Element& element)
{
    klicke(element);
    if (!istErreichbar(element)) {
        return;
    }
    if (kenntDoppelklick(element)) {
        handle(element, [&] { element.doppelklicke(); });
    } else {
        klicke(element);
    }
}

void OberflächeOhne::doppelklickeZeile(Liste& liste, std::size_t zeile)
{
    klickeZeile(liste, zeile);
    if (istErreichbar(liste) && zeile <= liste.anzahl()) {
        handle(liste, [&] { liste.doppelklickeZeile(zeile); });
    }
}

void OberflächeOhne::klickeKopf(Liste& liste, std::size_t spalte)
{
    handle(liste, [&] { liste.klickeKopf(spalte); });
}

void OberflächeOhne::ersetzeText(Textfeld& feld, std::u32string_view text)
{
    handle(feld, [&] {
        if (text.empty()) {
            feld.gibEin({}, 0);
        }
    });
    for (std::size_t länge = 1; länge <= text.size(); ++länge) {
        handle(feld, [&] {
            const auto bisher = nimmEingabe(text.substr(0, länge), feld.istMehrzeilig(), feld.höchstlänge()).text;
            feld.gibEin(bisher, bisher.size());
        });
    }
}

void OberflächeOhne::wähleEintrag(Auswahlfeld& feld, std::size_t eintrag)
{
    handle(feld, [&] { feld.wähle(eintrag); });
}

void OberflächeOhne::wähleDatum(Datumsfeld& feld, const Datum& datum)
{
    handle(feld, [&] {
        m_datumseingabe.reset();
        feld.wähle(datum);
    });
}

void OberflächeOhne::drücke(const Taste& taste)
{
    m_zustand->ablauf.ereignis([&] {
        auto* bildschirm = tastaturbildschirm(m_zustand->folge, m_tastaturbildschirm);
        if (bildschirm == nullptr) {
            return;
        }
        auto* element = bildschirm->fokus();
        const bool erreicht = element != nullptr && istErreichbar(*element);
        if (erreicht && (gibDatumsfeld(*element, taste) || element->taste(taste) || geheInReihe(*element, taste))) {
            return;
        }
        bildschirm->taste(taste);
    });
}

void OberflächeOhne::tippe(Element& element, const std::vector<Tastendruck>& tasten)
{
    bool hier = false;
    handle(element, [&] { hier = true; });
    if (!hier) {
        return;
    }
    for (const auto& druck : tasten) {
        if (druck.art != Taste::Art::Zeichen) {
            drücke({druck.art, 0});
        } else if (const auto zeichen = nächstesZeichen(druck.zeichen)) {
            drücke({druck.art, *zeichen});
        }
    }
}

void OberflächeOhne::fügeEin(Textfeld& feld, std::u32string_view text)
{
    handle(feld, [&] {
        const auto neu = nimmEingabe(text, feld.istMehrzeilig(), feld.höchstlänge()).text;
        feld.gibEin(neu, neu.size());
    });
}

void OberflächeOhne::fügeEin(Auswahlfeld& feld, std::u32string_view text)
{
    handle(feld, [&] {
        const auto neu = nimmEingabe(text, false).text;
        feld.gibEin(neu, neu.size());
    });
}

void OberflächeOhne::verlasse(Element& element)
{
    m_zustand->ablauf.ereignis([&] {
        if (element.hatFokus()) {
            schließeDatumAb();
            element.bildschirm()->fokussiere(nullptr);
        }
    });
}

void OberflächeOhne::schließeRahmen()
{
    m_zustand->ablauf.ereignis([&] { m_zustand->rahmen.benutzerSchließt(); });
}

void OberflächeOhne::verschiebeRahmen(const Lage& lage)
{
    m_zustand->ablauf.ereignis([&] { m_zustand->rahmen.benutzerVerschiebt(lage.oben, lage.links); });
}

void OberflächeOhne::maximiereRahmen(bool maximiert)
{
    m_zustand->ablauf.ereignis([&] { m_zustand->rahmen.benutzerMaximiert(maximiert); });
}

bool OberflächeOhne::istZuSehen(const Element& element) const
{
    const auto& bildschirm = *element.bildschirm();
    const auto& folge = m_zustand->folge;
    const bool vorne = bildschirm.istKindfenster || obersteSeite(folge) == &bildschirm;
    return vorne && folge.istSichtbar(bildschirm) && bildschirm.istZuSehen(element);
}

bool OberflächeOhne::istFrei(const Element& element) const
{
    return element.istFrei() && m_zustand->folge.istFrei(*element.bildschirm());
}

bool OberflächeOhne::hatFokus(const Element& element) const
{
    return element.hatFokus() && m_zustand->folge.istSichtbar(*element.bildschirm());
}

std::vector<std::string> OberflächeOhne::zeilen(const Liste& liste) const
{
    std::vector<std::string> zeilen;
    zeilen.reserve(liste.anzahl());
    for (std::size_t i = 1; i <= liste.anzahl(); ++i) {
        zeilen.push_back(liste.zeile(i));
    }
    return zeilen;
}
