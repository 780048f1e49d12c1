#include "platform/elemente/Elemente.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr std::size_t zeilenJeSeite = 10;

std::string_view zelleIn(std::string_view zeile, std::size_t spalte)
{
    for (std::size_t i = 1; i < spalte; ++i) {
        const auto ort = zeile.find(trenner);
        if (ort == std::string_view::npos) {
            return {};
        }
        zeile.remove_prefix(ort + 1);
    }
    return zeile.substr(0, zeile.find(trenner));
}

std::string sortierschlüssel(std::string_view text)
{
    std::string schlüssel(text);
    std::ranges::transform(schlüssel, schlüssel.begin(), sortierzeichen);
    return schlüssel;
}

} // namespace

void Liste::setzeZeilen(std::vector<std::string> zeilen)
{
    m_zeilen = std::move(zeilen);
    m_auswahl = 0;
    m_sortierteSpalte = 0;
    zeilenGeändert.melde();
    meldeÄnderung();
}

std::string_view Liste::zelle(std::size_t zeile, std::size_t spalte) const
{
    return zelleIn(m_zeilen.at(zeile - 1), spalte);
}

void Liste::wähle(std::size_t nummer)
{
    if (m_auswahl != nummer) {
        m_auswahl = nummer;
        meldeÄnderung();
    }
}

void Liste::wähleUndZeige(std::size_t nummer)
{
    wähle(nummer);
    inSicht.melde();
}

void Liste::sortiereNach(std::size_t spalte)
{
    std::vector<std::string> schlüssel;
    schlüssel.reserve(m_zeilen.size());
    for (const auto& zeile : m_zeilen) {
        schlüssel.push_back(sortierschlüssel(zelleIn(zeile, spalte)));
    }
    std::vector<std::size_t> folge(m_zeilen.size());
    std::iota(folge.begin(), folge.end(), std::size_t{0});
    std::stable_sort(folge.begin(), folge.end(),
                     [&](std::size_t a, std::size_t b) { return schlüssel[a] < schlüssel[b]; });

    std::vector<std::string> sortiert;
    sortiert.reserve(m_zeilen.size());
    std::size_t auswahl = 0;
    for (const auto stelle : folge) {
        sortiert.push_back(std::move(m_zeilen[stelle]));
        if (stelle + 1 == m_auswahl) {
            auswahl = sortiert.size();
        }
    }
    m_zeilen = std::move(sortiert);
    m_auswahl = auswahl;
    m_sortierteSpalte = spalte;
    zeilenGeändert.melde();
    meldeÄnderung();
}

void Liste::klickeZeile(std::size_t nummer)
{
    wähle(nummer);
    klicke();
}

void Liste::doppelklickeZeile(std::size_t nummer)
{
    wähle(nummer);
    doppelklicke();
}

void Liste::doppelklicke()
{
    if (m_auswahl > 0) {
        Element::doppelklicke();
    }
}

void Liste::klickeKopf(std::size_t spalte)
{
    if (beiKopfklick) {
        beiKopfklick(spalte);
    }
}

bool Liste::taste(const Taste& taste)
{
    if (taste.gehörtDemBildschirm()) {
        return false;
    }
    if (beiTastendruck && beiTastendruck(taste)) {
        return true;
    }
    if (m_zeilen.empty()) {
        return false;
    }
    const auto ziel = [&](std::size_t zeile) {
        wähleUndZeige(std::clamp<std::size_t>(zeile, 1, m_zeilen.size()));
        return true;
    };
    switch (taste.art) {
    case Taste::Art::Auf:
        return ziel(m_auswahl <= 1 ? 1 : m_auswahl - 1);
    case Taste::Art::Ab:
        return ziel(m_auswahl + 1);
    case Taste::Art::BildAuf:
        return ziel(m_auswahl <= zeilenJeSeite ? 1 : m_auswahl - zeilenJeSeite);
    case Taste::Art::BildAb:
        return ziel(m_auswahl + zeilenJeSeite);
    case Taste::Art::Pos1:
        return ziel(1);
    case Taste::Art::Ende:
        return ziel(m_zeilen.size());
    default:
        return false;
    }
}
