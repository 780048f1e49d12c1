#include "import/AltKDSZeile.h"

#include "import/Altfelder.h"
#include "platform/text/Datum.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/WeitereDiagnosen.h"
#include "satz/Wertelisten.h"

#include <array>
#include <limits>
#include <utility>

namespace {

constexpr auto offen = "OFFEN"_t;

/// Field and code. Of several bearers the last one in this order counts.
constexpr std::array kostenträgerListe{
    std::pair{altfeld::betreuung::kostenSelbst, "2"_t},  std::pair{altfeld::betreuung::kostenSonst, "45"_t},
    std::pair{altfeld::betreuung::kostenSozial, "48"_t}, std::pair{altfeld::betreuung::kostenKV, "47"_t},
    std::pair{altfeld::betreuung::kostenRV, "46"_t},     std::pair{altfeld::betreuung::kostenPauschal, "1"_t},
};

/// With the six flags.
constexpr std::array lebenssituationen{
    Wertepaar{""_t, "000000"_t},
    Wertepaar{"alleinlebend"_t, "211111"_t},
    Wertepaar{"mit PartnerIn"_t, "121111"_t},
    Wertepaar{"mit Kindern"_t, "112111"_t},
    Wertepaar{"mit Elternteil"_t, "111211"_t},
    Wertepaar{"mit Freunden / Bekannten"_t, "111121"_t},
    Wertepaar{"mit sonstigen Personen"_t, "111112"_t},
    Wertepaar{"mit PartnerIn und Kind(ern)"_t, "122111"_t},
};
constexpr auto unbekannteLebenssituation = "111111"_t;

/// Codes of the groups from F55.0 on; those before depend on further fields.
constexpr std::array<std::string_view, 8> festeHauptdiagnosen{"550", "551", "552", "554", "555", "556", "558", "630"};

} // namespace

void AltKDSZeile::wert(std::string_view wert)
{
    m_wert = wert;
    m_zeile.append(wert).push_back(',');
}

void AltKDSZeile::führeAus(const Spaltenanweisung& anweisung, int spalte)
{
    if (anweisung.quelle == 0) {
        wert({});
        return;
    }
    switch (anweisung.art) {
    case Spaltenanweisungsart::Wert:
        wert(m_satz.feld(anweisung.quelle));
        break;
    case Spaltenanweisungsart::Option:
        option(anweisung, spalte);
        break;
    case Spaltenanweisungsart::Betreuungsende: {
        const auto text = m_satz.feld(anweisung.quelle);
        wert(text == offen ? std::string_view{} : text);
        break;
    }
    case Spaltenanweisungsart::IcdZusatz:
        icdZusatz(m_satz.feld(anweisung.quelle), spalte);
        break;
    case Spaltenanweisungsart::LebSit:
        lebensSituation(m_satz.feldOhneLeerzeichen(anweisung.quelle));
        break;
    case Spaltenanweisungsart::LebSitLeer:
        break; // the columns were written with `lebSit`
    case Spaltenanweisungsart::Kostenträger:
        kostenträger();
        break;
    case Spaltenanweisungsart::Icd0000:
        hauptdiagnose(m_satz.feld(anweisung.quelle));
        break;
    case Spaltenanweisungsart::Dauer:
        dauer();
        break;
    case Spaltenanweisungsart::Unbekannt:
        wert("ANWEISUNGSDATENFEHLER!"_t);
        break;
    }
}

void AltKDSZeile::option(const Spaltenanweisung& anweisung, int spalte)
{
    const auto text = m_satz.feldOhneLeerzeichen(anweisung.quelle);
    for (const auto& [quelltext, zieltext] : anweisung.paare) {
        if (quelltext == text) {
            wert(zieltext);
            return;
        }
    }
    melde(verbinde("Fehler in Optionsparsing ! \r"_t, m_satz.zeile(), "\r\rakt.parseSatz: "_t,
                   std::to_string(m_satz.gelesene()), "\rebis-Arg#: "_t, alsText(spalte), "\rTolvek-Arg#: "_t,
                   alsText(anweisung.quelle), "\rTolvek: '"_t, text, "' nicht gefunden"_t));
}

void AltKDSZeile::icdZusatz(std::string_view text, int spalte)
{
    if (text.empty() || text == ".") {
        wert({});
    } else if (spalte >= altspalte::diag::weitere) {
        wert(verbinde(diagnoseartVon(spalte - altspalte::diag::weitere + 1).buchstabe, text));
    } else {
        wert(text);
    }
}

// Twelve columns, every second one empty.
void AltKDSZeile::lebensSituation(std::string_view text)
{
    const auto* flaggen = werte::codeZu(lebenssituationen, text);
    if (flaggen == nullptr && !getrimmt(text).empty()) {
        melde("ParseFehler: lebSit"_t);
    }
    for (const char flagge : flaggen == nullptr ? unbekannteLebenssituation : *flaggen) {
        wert({&flagge, 1});
        wert({});
    }
}

void AltKDSZeile::kostenträger()
{
    std::string_view code = "0"_t;
    for (const auto& [feld, trägercode] : kostenträgerListe) {
        if (m_satz.feld(feld) == "1") {
            code = trägercode;
        }
    }
    wert(code);
}

std::string AltKDSZeile::klasseMitZusatz(int gruppe) const
{
    const int klasse = gruppe + 9;
    const auto zusatz = m_satz.feld(altfeld::betreuung::gruppe(gruppe));
    if (zusatz.empty()) {
        return alsText(klasse);
    }
    if (zusatz.front() == '1' || zusatz.front() == '2') {
        return verbinde(alsText(klasse), zusatz.front());
    }
    return {};
}

void AltKDSZeile::hauptdiagnose(std::string_view text)
{
    const auto gruppe = führendeZahl(text);
    if (gruppe < std::numeric_limits<std::int16_t>::min() || gruppe > std::numeric_limits<std::int16_t>::max()) {
        throw Laufzeitfehler(verbinde("Die Hauptdiagnose \""_t, text, "\" ist zu groß."_t));
    }
    const auto fest = gruppe - altfeld::gruppe::f550;
    if (gruppe == 0) {
        wert("0"_t);
    } else if (gruppe >= altfeld::gruppe::f10 && gruppe <= altfeld::gruppe::f19) {
        wert(klasseMitZusatz(static_cast<int>(gruppe)));
    } else if (gruppe == altfeld::gruppe::f50) {
        const auto zusatz = m_satz.feld(altfeld::betreuung::gruppe(altfeld::gruppe::f50));
        wert(getrimmt(zusatz).empty() ? std::string("50") : verbinde("50"_t, zusatz));
    } else if (fest >= 0 && fest < static_cast<std::int64_t>(festeHauptdiagnosen.size())) {
        wert(festeHauptdiagnosen.at(static_cast<std::size_t>(fest)));
    } else {
        melde("ParseFehler: icd0000"_t);
        wert({});
    }
}

void AltKDSZeile::dauer()
{
    const auto beginnText = m_satz.feld(m_zeitraum.beginn);
    const auto beginn = leseDatum(beginnText);
    if (!beginn) {
        throw Laufzeitfehler(verbinde("Der Betreuungsbeginn \""_t, beginnText, "\" ist kein Datum."_t));
    }
    const auto endeText = m_satz.feld(m_zeitraum.ende);
    const auto ende = endeText == offen ? std::nullopt : leseDatum(endeText);
    wert(ende ? alsText(alsTageszahl(*ende) - alsTageszahl(*beginn) + 1) : std::string(m_wert));
}
