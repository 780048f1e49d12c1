#include "care/Seitenfelder.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/moHelferlein.h"
#include "zustand/Comboregeln.h"

#include <utility>

void Seitenfelder::fügeWahl(Auswahlfeld& feld, std::vector<std::string> liste)
{
    m_felder.emplace_back(Wahl{&feld, std::move(liste), Leer::Übernehmen});
}

void Seitenfelder::fügeWahl(Auswahlfeld& feld, Werteliste liste)
{
    fügeWahl(feld, werte::texte(liste));
}

void Seitenfelder::fügeZahl(Auswahlfeld& feld, werte::Zahlenbereich bereich, Leer leer)
{
    feld.beiTastendruck = [&feld](int& code) { ergänzeComboText(feld, code); };
    m_felder.emplace_back(Wahl{&feld, werte::zahlen("k.A."_t, bereich), leer});
}

void Seitenfelder::fügeAntworten(Elementreihe<triCtlJaNein>& reihe)
{
    for (triCtlJaNein& antwort : reihe) {
        m_felder.emplace_back(&antwort);
    }
}

void Seitenfelder::fügeOptionen(Elementreihe<Optionsfeld>& reihe)
{
    m_felder.emplace_back(&reihe);
}

void Seitenfelder::fülleListen()
{
    for (const Seitenfeld& feld : m_felder) {
        if (const auto* wahl = std::get_if<Wahl>(&feld)) {
            wahl->feld->fülle(wahl->liste, wahl->liste.front());
        }
    }
}

void Seitenfelder::lade(std::string_view stück)
{
    if (stück.empty()) {
        return;
    }
    int nummer = 0;
    for (const Seitenfeld& feld : m_felder) {
        ++nummer;
        std::visit([&](const auto& element) { nimm(element, getFeld(stück, nummer)); }, feld);
    }
}

std::string Seitenfelder::sammle() const
{
    std::string stück;
    for (const Seitenfeld& feld : m_felder) {
        stück += std::visit([](const auto& element) { return wert(element); }, feld);
        stück += trenner;
    }
    return stück;
}

bool Seitenfelder::prüfeZahlen()
{
    for (const Seitenfeld& feld : m_felder) {
        const auto* wahl = std::get_if<Wahl>(&feld);
        if (wahl != nullptr && wahl->feld->istTippbar() && !prüfeComboWert(*wahl->feld)) {
            return false;
        }
    }
    return true;
}

void Seitenfelder::nimm(const Wahl& wahl, std::string_view text)
{
    if (!text.empty() || wahl.leer == Leer::Übernehmen) {
        wahl.feld->setzeText(text);
    }
}

void Seitenfelder::nimm(triCtlJaNein* antwort, std::string_view text)
{
    antwort->setzeText(text);
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

std::string Seitenfelder::wert(const triCtlJaNein* antwort)
{
    return antwort->text();
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
        if (antwort.text() == "k.A."_t) {
            antwort.setzeText("nein"_t);
        }
    }
}

void richteFüllerEin(Schaltfläche& füller, Elementreihe<triCtlJaNein>& reihe)
{
    füller.setzeHinweis("setzt alle \"k.A.\" auf \"nein\""_t);
    füller.beiKlick = [&reihe] { setzeOhneAngabeAufNein(reihe); };
}
