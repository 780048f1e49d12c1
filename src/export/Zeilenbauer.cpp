#include "export/Zeilenbauer.h"

#include "platform/text/Datum.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/moNationen.h"

#include <algorithm>
#include <utility>

namespace {

constexpr auto kA = antworttext::keine;
constexpr auto offen = "offen"_t;
constexpr auto unbekannt = "unbekannt"_t;

bool istGleichOhneGroß(std::string_view a, std::string_view b)
{
    return a == b || std::ranges::equal(a, b, [](char x, char y) { return klein(x) == klein(y); });
}

/// The code of the list that reads as the number.
const std::string_view* codeMitZahl(Werteliste werte, std::int64_t zahl)
{
    const auto ort = std::ranges::find_if(werte, [&](const Wertepaar& p) { return leseGanzzahl64(p.code) == zahl; });
    return ort == werte.end() ? nullptr : &ort->code;
}

int altersjahre(const Datum& geburt, const Datum& beginn)
{
    const bool vorDemGeburtstag = std::pair(beginn.monat, beginn.tag) < std::pair(geburt.monat, geburt.tag);
    return beginn.jahr - geburt.jahr - (vorDemGeburtstag ? 1 : 0);
}

bool istHauptdiagnose(const Satzsicht& diagnose, int gruppe)
{
    return diagnose.feld(feld::diag::antwort(gruppe, HDMarke)) == "1";
}

/// "10" of F10, "55" of F55.1.
std::string_view klasseVon(int gruppe)
{
    return std::string_view(aryICD.at(static_cast<std::size_t>(gruppe))).substr(1, 2);
}

} // namespace

std::string Zeilenbauer::baue(const std::vector<Exportspalte>& spalten)
{
    for (const auto& spalte : spalten) {
        (this->*spalte.kodierung)(spalte, (m_sätze.*spalte.satz).feld(spalte.feld));
        m_zeile.push_back(';');
    }
    return std::move(m_zeile);
}

void Zeilenbauer::schreibeArbeitswert(std::string_view wert)
{
    m_arbeitswert = wert;
    m_zeile.append(wert);
}

void Zeilenbauer::schreibeCode(const Exportspalte& spalte, const std::string_view* code)
{
    if (code == nullptr) {
        melde(spalte);
    }
    schreibeArbeitswert(code == nullptr ? m_arbeitswert : *code);
}

void Zeilenbauer::melde(const Exportspalte& spalte) const
{
    m_sätze.meldung(spalte.meldung, Symbol::Keins);
}

void Zeilenbauer::tsnr(const Exportspalte&, std::string_view)
{
    m_zeile.append(m_sätze.tsnr);
}

void Zeilenbauer::gespeichert(const Exportspalte&, std::string_view text)
{
    m_zeile.append(text);
}

void Zeilenbauer::dauer(const Exportspalte& spalte, std::string_view)
{
    const auto ende = m_sätze.betreuung.feld(feld::betr::ende);
    if (ende == offen) {
        m_zeile.append(offen);
        return;
    }
    const auto von = leseDatum(m_sätze.betreuung.feld(feld::betr::beginn));
    const auto bis = leseDatum(ende);
    if (!von || !bis) {
        melde(spalte);
        return;
    }
    m_zeile.append(alsText(alsTageszahl(*bis) - alsTageszahl(*von)));
}

void Zeilenbauer::alter(const Exportspalte& spalte, std::string_view geburtsdatum)
{
    if (geburtsdatum == unbekannt) {
        return;
    }
    const auto geburt = leseDatum(geburtsdatum);
    const auto beginn = leseDatum(m_sätze.betreuung.feld(feld::betr::beginn));
    if (!geburt || !beginn) {
        melde(spalte);
        return;
    }
    m_zeile.append(alsText(altersjahre(*geburt, *beginn)));
}

void Zeilenbauer::kurzJaNein(const Exportspalte& spalte, std::string_view text)
{
    const auto ort =
        std::ranges::find_if(spalte.werte, [&](const Wertepaar& p) { return istGleichOhneGroß(p.text, text); });
    if (ort == spalte.werte.end()) {
        melde(spalte);
        return;
    }
    m_zeile.append(ort->code);
}

void Zeilenbauer::tabelle(const Exportspalte& spalte, std::string_view text)
{
    schreibeCode(spalte, text.empty() && spalte.leer ? &*spalte.leer : werte::codeZu(spalte.werte, text));
}

void Zeilenbauer::ziffern(const Exportspalte& spalte, std::string_view text)
{
    const auto zahl = führendeZahl(text);
    const auto* code = text.empty() || text == kA ? nullptr : codeMitZahl(spalte.werte, zahl);
    schreibeCode(spalte, code == nullptr && zahl == 0 ? &*spalte.leer : code);
}

void Zeilenbauer::ersatzFürKA(const Exportspalte& spalte, std::string_view text)
{
    schreibeArbeitswert(text == kA ? spalte.ersatz : text);
}

void Zeilenbauer::ersatzFürLeer(const Exportspalte& spalte, std::string_view text)
{
    m_zeile.append(text.empty() ? *spalte.leer : text);
}

void Zeilenbauer::nation(const Exportspalte&, std::string_view text)
{
    m_zeile.append(getCodeZuNation(text));
}

void Zeilenbauer::mitBuchstabe(const Exportspalte& spalte, std::string_view text)
{
    m_zeile.append(text.empty() ? text : spalte.ersatz).append(text);
}

void Zeilenbauer::flaggenplatz(const Exportspalte& spalte, std::string_view)
{
    int platz = 0;
    for (int i = 0; i < spalte.anzahl; ++i) {
        if (istGleichOhneGroß((m_sätze.*spalte.satz).feld(spalte.feld + i), "wahr"_t)) {
            platz = i;
        }
    }
    m_zeile.append(alsText(platz));
}

// Of two groups that are marked, which the screens prevent, this speaks of the first and the age of the last.
void Zeilenbauer::hauptdiagnose(const Exportspalte&, std::string_view)
{
    const auto& diagnose = m_sätze.diagnose;
    int gruppe = 1;
    while (gruppe <= höchsteGruppe && !istHauptdiagnose(diagnose, gruppe)) {
        ++gruppe;
    }
    if (gruppe > höchsteGruppe) {
        m_zeile.append("0"_t);
        return;
    }
    const auto klasse = klasseVon(gruppe);
    const auto zusatz = diagnose.feld(feld::diag::antwort(gruppe, ICDStelle4));
    if (klasse == "55") {
        m_zeile.append(klasse).push_back(aryICD.at(static_cast<std::size_t>(gruppe)).back());
    } else if (klasse == "63") {
        m_zeile.append("630"_t);
    } else if (zusatz == kA) {
        m_zeile.append("0"_t);
    } else {
        m_zeile.append(klasse).append(zusatz.substr(0, 1));
    }
}

void Zeilenbauer::alterHauptdiagnose(const Exportspalte&, std::string_view)
{
    std::string_view alter = "0"_t;
    for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        if (istHauptdiagnose(m_sätze.diagnose, gruppe)) {
            const auto text = m_sätze.diagnose.feld(feld::diag::antwort(gruppe, AlterErstkonsum));
            alter = (text == kA || getrimmt(text).empty()) ? "0"_t : text;
        }
    }
    m_zeile.append(alter);
}
