#include "care/Seitenfelder.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Zeilenfelder.h"
#include "zustand/Comboregeln.h"

#include <algorithm>
#include <stdexcept>

int Seitenfelder::stelle(std::string_view name) const
{
    const auto ort = std::ranges::find(m_satz, name, &Satzfeld::name);
    if (ort == m_satz.end()) {
        throw std::logic_error("no field of the record is called " + std::string(name));
    }
    return static_cast<int>(ort - m_satz.begin()) + 1;
}

void Seitenfelder::füge(std::string_view name, Auswahlfeld& feld)
{
    const int ort = stelle(name);
    const Satzfeld& satzfeld = feldAus(m_satz, ort);
    if (zahlenbereich(satzfeld.art)) {
        feld.setzeArt(Auswahlfeld::Art::Tippbar);
        feld.beiTastendruck = [&feld](int& code) { ergänzeComboText(feld, code); };
    }
    m_felder.emplace(ort, Wahl{&feld, &satzfeld});
}

void Seitenfelder::füge(std::string_view name, Elementreihe<Auswahlfeld>& reihe)
{
    for (int i = reihe.von(); i <= reihe.bis(); ++i) {
        füge(verbinde(name, alsText(i)), reihe(i));
    }
}

void Seitenfelder::füge(std::string_view name, Elementreihe<triCtlJaNein>& reihe)
{
    for (int i = reihe.von(); i <= reihe.bis(); ++i) {
        const int ort = stelle(verbinde(name, alsText(i)));
        m_felder.emplace(ort, Antwort{&reihe(i), feldAus(m_satz, ort).werte});
    }
}

void Seitenfelder::füge(std::string_view name, Elementreihe<Optionsfeld>& reihe)
{
    m_felder.emplace(stelle(name), &reihe);
}

void Seitenfelder::fülleListen()
{
    if (m_felder.rbegin()->first - m_felder.begin()->first + 1 != static_cast<int>(m_felder.size())) {
        throw std::logic_error("a field of the page's piece has no element");
    }
    for (const auto& [ort, feld] : m_felder) {
        if (const auto* wahl = std::get_if<Wahl>(&feld)) {
            const auto liste = auswahlliste(*wahl->satzfeld);
            wahl->feld->fülle(liste, liste.front());
        }
    }
}

void Seitenfelder::lade(std::string_view stück)
{
    if (stück.empty()) {
        return;
    }
    int nummer = 0;
    for (const auto& eintrag : m_felder) {
        const auto text = getFeld(stück, ++nummer);
        std::visit([&](const auto& element) { nimm(element, text); }, eintrag.second);
    }
}

std::string Seitenfelder::sammle() const
{
    std::string stück;
    for (const auto& eintrag : m_felder) {
        stück += std::visit([](const auto& element) { return wert(element); }, eintrag.second);
        stück += trenner;
    }
    return stück;
}

bool Seitenfelder::prüfeZahlen()
{
    for (const auto& eintrag : m_felder) {
        const auto* wahl = std::get_if<Wahl>(&eintrag.second);
        if (wahl != nullptr && wahl->feld->istTippbar() && !prüfeComboWert(*wahl->feld)) {
            return false;
        }
    }
    return true;
}

void Seitenfelder::nimm(const Wahl& wahl, std::string_view text)
{
    const bool lässtVorgabe = wahl.satzfeld->art == Feldart::zuvor; // an empty one was never asked for
    if (!text.empty() || !lässtVorgabe) {
        wahl.feld->setzeText(text);
    }
}

void Seitenfelder::nimm(const Antwort& antwort, std::string_view text)
{
    antwort.feld->setzeText(werte::heutige(antwort.werte, text)); // the field knows today's spellings alone
}

void Seitenfelder::nimm(Elementreihe<Optionsfeld>* reihe, std::string_view text)
{
    const int nummer = leseGanzzahl16(text).value_or(0);
    if (nummer >= reihe->von() && nummer <= reihe->bis()) {
        (*reihe)(nummer).klicke();
    }
}

std::string Seitenfelder::wert(const Wahl& wahl)
{
    return wahl.feld->text();
}

std::string Seitenfelder::wert(const Antwort& antwort)
{
    return antwort.feld->text();
}

std::string Seitenfelder::wert(const Elementreihe<Optionsfeld>* reihe)
{
    for (int i = reihe->von(); i <= reihe->bis(); ++i) {
        if ((*reihe)(i).istAn()) {
            return alsText(i);
        }
    }
    return "0";
}

void setzeOhneAngabeAufNein(Elementreihe<triCtlJaNein>& reihe)
{
    for (triCtlJaNein& antwort : reihe) {
        if (antwort.text() == antworttext::keine) {
            antwort.setzeText(antworttext::nein);
        }
    }
}

void richteFüllerEin(Schaltfläche& füller, Elementreihe<triCtlJaNein>& reihe)
{
    füller.setzeHinweis("setzt alle \"k.A.\" auf \"nein\""_t);
    füller.beiKlick = [&reihe] { setzeOhneAngabeAufNein(reihe); };
}
