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

/// A press with the mouse sets the cursor where a number combo or a date is typed.
void setzeSchreibmarkeAnsEnde(Element& element)
{
    if (auto* auswahl = dynamic_cast<Auswahlfeld*>(&element); auswahl != nullptr && auswahl->istTippbar()) {
        auswahl->setzeSchreibmarke(auswahl->text().size());
    } else if (auto* datum = dynamic_cast<Datumsfeld*>(&element)) {
        datum->setzeStelle(datum->anzeige().size(), datum->anzeige().size());
    }
}

/// Tab with the shift key is a key of its own.
Taste::Art artVon(const Tastendruck& druck)
{
    return druck.art == Taste::Art::Tab && druck.umschalt ? Taste::Art::RückTab : druck.art;
}

/// Where the wheel scrolls over the element: a scroll bar itself, or the one of the listing that it stands in.
Bildlaufleiste* rollendeLeiste(const Anordnung& a, const Element& element, Bildlaufleiste* um)
{
    if (a.wort == Anordnung::Wort::Listung) {
        um = dynamic_cast<Bildlaufleiste*>(a.element);
    }
    if (a.element == &element) {
        return um;
    }
    for (const auto& teil : a.teile) {
        if (auto* leiste = rollendeLeiste(teil, element, um)) {
            return leiste;
        }
    }
    return nullptr;
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
    m_offeneListe.schließe();
    m_zustand = nullptr;
}

std::string OberflächeOhne::text(const Element& element) const
{
    const auto* datum = dynamic_cast<const Datumsfeld*>(&element);
    return datum == nullptr ? element.text() : datum->anzeige();
}

void OberflächeOhne::handle(Element& element, const std::function<void()>& aktion)
{
    m_zustand->ablauf.ereignis([&] {
        m_offeneListe.schließe();
        m_tastaturbildschirm = &bildschirmVon(element);
        if (!element.hatFokus()) {
            m_schreibhand.lass();
        }
        const bool darf = !element.nimmtFokus() || bildschirmVon(element).fokussiere(&element);
        if (darf && istErreichbar(element)) {
            aktion();
        }
    });
}

void OberflächeOhne::klicke(Element& element)
{
    const bool istListe = dynamic_cast<Liste*>(&element) != nullptr; // beside its rows a list has nothing to click
    handle(element, [&] {
        setzeSchreibmarkeAnsEnde(element);
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
        const auto* liste = dynamic_cast<const Liste*>(&element);
        if (liste != nullptr && liste->auswahl() == 0) {
            return; // beside the rows
        }
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
    handle(feld, [&] { feld.wähle(datum); });
}

bool OberflächeOhne::gibElement(Element& element, const Tastendruck& druck, const Taste& taste)
{
    auto* auswahl = dynamic_cast<Auswahlfeld*>(&element);
    const bool mitLeertaste =
        auswahl != nullptr && !auswahl->istTippbar() && !taste.istKombination() && taste.istLeertaste();
    if (auswahl != nullptr && (mitLeertaste || taste.klapptAuf())) {
        m_offeneListe.öffne(*auswahl);
        return true;
    }
    if (auto* text = dynamic_cast<Textfeld*>(&element)) {
        return m_schreibhand.drücke(*text, druck);
    }
    if (gibTaste(element, taste) || geheInReihe(element, taste)) {
        return true;
    }
    auto* datum = dynamic_cast<Datumsfeld*>(&element);
    return datum != nullptr && !taste.istKombination() && drückeInDatum(*datum, taste);
}

void OberflächeOhne::gib(Bildschirm& bildschirm, const Tastendruck& druck)
{
    const bool istZeichen = druck.art == Taste::Art::Zeichen;
    const auto zeichen = istZeichen ? nächstesZeichen(druck.zeichen) : std::optional('\0');
    const Taste taste{artVon(druck), zeichen.value_or('\0'), druck.umschalt, druck.strg, druck.alt};
    auto* element = bildschirm.fokus();
    const bool nimmtAlles = dynamic_cast<Textfeld*>(element) != nullptr;
    if (!zeichen && !nimmtAlles) {
        return;
    }
    const bool erreicht = element != nullptr && istErreichbar(*element);
    if (!erreicht || !gibElement(*element, druck, taste)) {
        bildschirm.taste(taste);
        if (bildschirm.fokus() != element) {
            m_schreibhand.lass();
        }
    }
}

void OberflächeOhne::drücke(const Tastendruck& druck)
{
    m_zustand->ablauf.ereignis([&] {
        auto* bildschirm = tastaturbildschirm(m_zustand->folge, m_tastaturbildschirm);
        if (bildschirm == nullptr) {
            return;
        }
        if (m_offeneListe.istOffenAn(bildschirm->fokus())) {
            m_offeneListe.taste({druck.art, 0, druck.umschalt, druck.strg, druck.alt});
        } else {
            m_offeneListe.schließe();
            gib(*bildschirm, druck);
        }
    });
}

void OberflächeOhne::tippe(Element& element, const std::vector<Tastendruck>& tasten)
{
    const bool hatteFokus = element.hatFokus();
    bool hier = false;
    handle(element, [&] { hier = true; });
    if (!hier) {
        return;
    }
    if (!hatteFokus) {
        m_zustand->ablauf.ereignis([&] { setzeSchreibmarkeAnsEnde(element); });
    }
    for (const auto& druck : tasten) {
        drücke(druck);
    }
}

void OberflächeOhne::dreheRad(Element& element, int schritte)
{
    constexpr int zeilenJeSchritt = 3; // as desktops are set
    m_zustand->ablauf.ereignis([&] {
        if (auto* leiste = rollendeLeiste(bildschirmVon(element).aufbau, element, nullptr)) {
            const int weite = std::min(zeilenJeSchritt * leiste->kleinerSchritt(), leiste->großerSchritt());
            leiste->setzeWert(leiste->wert() + schritte * weite);
        }
    });
}

void OberflächeOhne::fügeEin(Textfeld& feld, std::u32string_view text)
{
    handle(feld, [&] { m_schreibhand.ersetzeAlles(feld, text); });
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
            bildschirmVon(element).fokussiere(nullptr);
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
    const auto& bildschirm = bildschirmVon(element);
    const auto& folge = m_zustand->folge;
    const bool vorne = bildschirm.istKindfenster || obersteSeite(folge) == &bildschirm;
    return vorne && folge.istSichtbar(bildschirm) && bildschirm.istZuSehen(element);
}

bool OberflächeOhne::istFrei(const Element& element) const
{
    return element.istFrei() && m_zustand->folge.istFrei(bildschirmVon(element));
}

bool OberflächeOhne::hatFokus(const Element& element) const
{
    return element.hatFokus() && m_zustand->folge.istSichtbar(bildschirmVon(element));
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
