#include "export/Zeilenbauer.h"

#include "platform/text/Datum.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/moNationen.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace {

constexpr auto kA = antworttext::keine;
constexpr auto offen = "offen"_t;
constexpr auto unbekannt = "unbekannt"_t;

bool istGleichOhneGroß(std::string_view text, std::string_view kleinesWort)
{
    return std::equal(text.begin(), text.end(), kleinesWort.begin(), kleinesWort.end(),
                      [](char a, char b) { return klein(a) == b; });
}

/// The code of the list that reads as the number.
const std::string_view* codeMitZahl(Werteliste werte, std::int64_t zahl)
{
    const auto ort =
        std::find_if(werte.begin(), werte.end(), [&](const Wertepaar& p) { return leseGanzzahl64(p.code) == zahl; });
    return ort == werte.end() ? nullptr : &ort->code;
}

int altersjahre(const Datum& geburt, const Datum& beginn)
{
    const bool vorDemGeburtstag =
        geburt.monat > beginn.monat || (geburt.monat == beginn.monat && geburt.tag > beginn.tag);
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

void Zeilenbauer::baue(const std::vector<Exportspalte>& spalten)
{
    for (const auto& spalte : spalten) {
        schreibe(spalte, satz(spalte).feld(spalte.feld));
        m_ziel.push_back(';');
    }
}

const Satzsicht& Zeilenbauer::satz(const Exportspalte& spalte) const
{
    switch (spalte.satz) {
    case Satzart::Klient:
        return m_sätze.klient;
    case Satzart::Diagnose:
        return m_sätze.diagnose;
    case Satzart::Betreuung:
        break;
    }
    return m_sätze.betreuung;
}

void Zeilenbauer::schreibe(const Exportspalte& spalte, std::string_view text)
{
    switch (spalte.kodierung) {
    case Kodierung::Tsnr:
        m_ziel.append(m_sätze.tsnr);
        break;
    case Kodierung::Gespeichert:
        m_ziel.append(text);
        break;
    case Kodierung::Dauer:
        dauer(spalte);
        break;
    case Kodierung::Alter:
        alter(spalte, text);
        break;
    case Kodierung::KurzJaNein:
        kurzJaNein(spalte, text);
        break;
    case Kodierung::Tabelle:
        tabelle(spalte, text);
        break;
    case Kodierung::Zusatzziffern:
        zusatzziffern(spalte, text);
        break;
    case Kodierung::Essstörung:
        essstörung(spalte, text);
        break;
    case Kodierung::ErsatzFürKA:
        schreibeArbeitswert(text == kA ? spalte.ersatz : text);
        break;
    case Kodierung::ErsatzFürLeer:
        m_ziel.append(text.empty() ? *spalte.leer : text);
        break;
    case Kodierung::Nation:
        m_ziel.append(getCodeZuNation(text));
        break;
    case Kodierung::MitBuchstabe:
        m_ziel.append(text.empty() ? text : spalte.ersatz).append(text);
        break;
    case Kodierung::Flaggenplatz:
        flaggenplatz(spalte);
        break;
    case Kodierung::Hauptdiagnose:
        hauptdiagnose();
        break;
    case Kodierung::AlterHauptdiagnose:
        alterHauptdiagnose();
        break;
    }
}

void Zeilenbauer::schreibeZahl(std::int64_t zahl)
{
    std::array<char, 24> ziffern;
    const auto [ende, fehler] = std::to_chars(ziffern.data(), ziffern.data() + ziffern.size(), zahl);
    m_ziel.append(ziffern.data(), ende);
}

void Zeilenbauer::schreibeArbeitswert(std::string_view wert)
{
    m_arbeitswert = wert;
    m_ziel.append(wert);
}

void Zeilenbauer::schreibeFehlgriff(const Exportspalte& spalte)
{
    melde(spalte);
    m_ziel.append(m_arbeitswert);
}

void Zeilenbauer::dauer(const Exportspalte& spalte)
{
    const auto ende = m_sätze.betreuung.feld(feld::betr::ende);
    if (ende == offen) {
        m_ziel.append(offen);
        return;
    }
    const auto von = leseDatum(m_sätze.betreuung.feld(feld::betr::beginn));
    const auto bis = leseDatum(ende);
    if (!von || !bis) {
        melde(spalte);
        return;
    }
    schreibeZahl(alsTageszahl(*bis) - alsTageszahl(*von));
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
    schreibeZahl(altersjahre(*geburt, *beginn));
}

void Zeilenbauer::kurzJaNein(const Exportspalte& spalte, std::string_view text)
{
    const auto* code = werte::codeZu(spalte.werte, text);
    if (code == nullptr) {
        const auto ort = std::find_if(spalte.werte.begin(), spalte.werte.end(),
                                      [&](const Wertepaar& p) { return istGleichOhneGroß(text, klein(p.text)); });
        code = ort == spalte.werte.end() ? nullptr : &ort->code;
    }
    if (code == nullptr) {
        melde(spalte);
        return;
    }
    m_ziel.append(*code);
}

void Zeilenbauer::tabelle(const Exportspalte& spalte, std::string_view text)
{
    if (text.empty() && spalte.leer) {
        schreibeArbeitswert(*spalte.leer);
    } else if (const auto* code = werte::codeZu(spalte.werte, text)) {
        schreibeArbeitswert(*code);
    } else {
        schreibeFehlgriff(spalte);
    }
}

void Zeilenbauer::zusatzziffern(const Exportspalte& spalte, std::string_view text)
{
    const auto zahl = führendeZahl(text);
    if (zahl == 0) {
        schreibeArbeitswert("0"_t);
    } else if (const auto* code = codeMitZahl(spalte.werte, zahl)) {
        schreibeArbeitswert(*code);
    } else {
        schreibeFehlgriff(spalte);
    }
}

void Zeilenbauer::essstörung(const Exportspalte& spalte, std::string_view text)
{
    if (text.empty() || text == kA) {
        schreibeArbeitswert(*spalte.leer);
    } else if (const auto* code = codeMitZahl(spalte.werte, führendeZahl(text))) {
        schreibeArbeitswert(*code);
    } else {
        schreibeFehlgriff(spalte);
    }
}

void Zeilenbauer::flaggenplatz(const Exportspalte& spalte)
{
    int platz = 0;
    for (int i = 0; i < spalte.anzahl; ++i) {
        if (istGleichOhneGroß(satz(spalte).feld(spalte.feld + i), "wahr"_t)) {
            platz = i;
        }
    }
    schreibeZahl(platz);
}

// Of two groups that are marked, which the screens prevent, this speaks of the first and the age of the last.
void Zeilenbauer::hauptdiagnose()
{
    const auto& diagnose = m_sätze.diagnose;
    int gruppe = 1;
    while (gruppe <= höchsteGruppe && !istHauptdiagnose(diagnose, gruppe)) {
        ++gruppe;
    }
    if (gruppe > höchsteGruppe) {
        m_ziel.append("0"_t);
        return;
    }
    const auto klasse = klasseVon(gruppe);
    const auto zusatz = diagnose.feld(feld::diag::antwort(gruppe, ICDStelle4));
    if (klasse == "55") {
        m_ziel.append(klasse).push_back(aryICD.at(static_cast<std::size_t>(gruppe)).back());
    } else if (klasse == "63") {
        m_ziel.append("630"_t);
    } else if (zusatz == kA) {
        m_ziel.append("0"_t);
    } else {
        m_ziel.append(klasse).append(zusatz.substr(0, 1));
    }
}

void Zeilenbauer::alterHauptdiagnose()
{
    std::string_view alter = "0"_t;
    for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        if (istHauptdiagnose(m_sätze.diagnose, gruppe)) {
            const auto text = m_sätze.diagnose.feld(feld::diag::antwort(gruppe, AlterErstkonsum));
            alter = (text == kA || getrimmt(text).empty()) ? "0"_t : text;
        }
    }
    m_ziel.append(alter);
}
