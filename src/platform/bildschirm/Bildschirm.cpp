#include "platform/bildschirm/Bildschirm.h"

#include <algorithm>

namespace {

void sammle(Element* element, std::vector<Element*>& folge)
{
    if (element != nullptr && element->nimmtFokus()) {
        folge.push_back(element);
    }
}

void sammle(const Anordnung& a, std::vector<Element*>& folge)
{
    for (auto* kopf : a.köpfe) {
        sammle(kopf, folge);
    }
    for (const auto& spalte : a.spalten) {
        sammle(spalte.füller, folge);
    }
    const bool istListung = a.wort == Anordnung::Wort::Listung;
    if (!istListung) {
        sammle(a.element, folge);
    }
    // a cover is read out where the covered fields would be
    for (const auto& teil : a.teile) {
        sammle(teil, folge);
    }
    if (istListung) {
        sammle(a.element, folge);
    }
}

bool istUnterDecke(const Anordnung& a, const Element& element, bool verdeckt)
{
    const auto* unterDecke =
        a.wort == Anordnung::Wort::Decke && a.teile.back().element->istSichtbar() ? &a.teile.front() : nullptr;
    return (verdeckt && a.element == &element) || std::ranges::any_of(a.teile, [&](const Anordnung& teil) {
               return istUnterDecke(teil, element, verdeckt || &teil == unterDecke);
           });
}

} // namespace

void Bildschirm::setzeTitel(std::string_view titel)
{
    m_titel = titel;
    titelGeändert.melde();
}

void Bildschirm::nimmAuf(Element& element)
{
    m_elemente.push_back(&element);
    m_nachName.emplace(element.name(), &element);
}

Element* Bildschirm::finde(std::string_view name) const
{
    const auto ort = m_nachName.find(name);
    return ort == m_nachName.end() ? nullptr : ort->second;
}

std::vector<Element*> Bildschirm::tabFolge() const
{
    std::vector<Element*> folge;
    sammle(aufbau, folge);
    // the button in the band belongs to the page, so it comes before the bar that ends the page
    sammle(kopfband.knopf, folge);
    for (auto* element : leiste.links) {
        sammle(element, folge);
    }
    for (auto* element : leiste.rechts) {
        sammle(element, folge);
    }
    return folge;
}

bool Bildschirm::istVerdeckt(const Element& element) const
{
    return istUnterDecke(aufbau, element, false);
}

bool Bildschirm::fokussiere(Element* element)
{
    if (element == m_fokus) {
        return true;
    }
    if (m_fokus != nullptr && !m_fokus->schließeAb()) {
        fokusGeändert.melde();
        return false;
    }
    // The rule may show a message, in which the surface reports focus changes of its own.
    if (m_fokus != nullptr && m_fokus->beiVerlassen && !m_prüftVerlassen) {
        m_prüftVerlassen = true;
        const bool darf = m_fokus->beiVerlassen();
        m_prüftVerlassen = false;
        if (!darf) {
            fokusGeändert.melde();
            return false;
        }
    }
    setzeFokus(element);
    return true;
}

void Bildschirm::setzeFokus(Element* element)
{
    if (element == m_fokus) {
        if (element != nullptr) {
            element->fokusErneuert();
        }
        return;
    }
    auto* vorher = m_fokus;
    m_fokus = element;
    if (vorher != nullptr) {
        vorher->fokusGewechselt(false);
    }
    if (m_fokus != nullptr) {
        m_fokus->fokusGewechselt(true);
    }
    fokusGeändert.melde();
}

void Bildschirm::fokussiereErstes()
{
    for (auto* element : tabFolge()) {
        if (istErreichbar(*element)) {
            setzeFokus(element);
            return;
        }
    }
}

Schaltfläche* Bildschirm::findeKürzel(char zeichen) const
{
    for (auto* element : tabFolge()) {
        auto* knopf = dynamic_cast<Schaltfläche*>(element);
        const auto ort = knopf == nullptr ? std::string::npos : knopf->text().find('&');
        if (ort != std::string::npos && ort + 1 < knopf->text().size() &&
            klein(knopf->text()[ort + 1]) == klein(zeichen) && istErreichbar(*knopf)) {
            return knopf;
        }
    }
    return nullptr;
}

bool Bildschirm::drückeKürzel(Schaltfläche& knopf)
{
    if (fokussiere(&knopf)) {
        knopf.klicke();
    }
    return true;
}

bool Bildschirm::taste(const Taste& taste)
{
    if (taste.istKombination()) {
        const bool istKürzel = taste.alt && !taste.strg && taste.art == Taste::Art::Zeichen;
        auto* knopf = istKürzel ? findeKürzel(taste.zeichen) : nullptr;
        return knopf != nullptr && drückeKürzel(*knopf);
    }
    const auto drücke = [](Schaltfläche* knopf) {
        if (knopf == nullptr || !knopf->istSichtbar() || !knopf->istFrei()) {
            return false;
        }
        knopf->klicke();
        return true;
    };
    switch (taste.art) {
    case Taste::Art::Eingabe:
        return (m_fokus != nullptr && !m_fokus->schließeAb()) || drücke(beiEingabe);
    case Taste::Art::Esc:
        return drücke(beiEscape);
    case Taste::Art::Tab:
    case Taste::Art::RückTab:
        return geheWeiter(taste.art == Taste::Art::Tab);
    default:
        return false;
    }
}

bool Bildschirm::geheWeiter(bool vor)
{
    auto folge = tabFolge();
    std::erase_if(folge, [this](const Element* element) { return element != m_fokus && !istErreichbar(*element); });
    if (folge.empty()) {
        return false;
    }
    const auto ort = std::ranges::find(folge, m_fokus);
    std::size_t stelle = 0;
    if (ort != folge.end()) {
        const auto jetzt = static_cast<std::size_t>(ort - folge.begin());
        stelle = (jetzt + (vor ? 1 : folge.size() - 1)) % folge.size();
    }
    return fokussiere(folge[stelle]);
}
