#include "import/Satzbau.h"

#include "platform/text/Zahl.h"
#include "satz/moNationen.h"

namespace {

constexpr int spalteAlterHauptdiagnose = 160;

std::string_view wahrWenn(bool ja)
{
    return ja ? "Wahr"_t : "Falsch"_t;
}

} // namespace

const std::string& Satzbau::baue(const Episodenzeilen& zeilen)
{
    m_satz.clear();
    m_wert = {};
    m_hdOhne = 0;
    m_ivKonsum = 0;
    for (const auto& anweisung : m_anweisungen) {
        if (anweisung.blatt == 'K') {
            m_wert = zeilen.kern.feld(anweisung.spalte);
        } else if (anweisung.blatt == 'D') {
            m_wert = zeilen.diagnose.feld(anweisung.spalte);
        }
        if (anweisung.art == Feldanweisungsart::Icd0000) {
            fügeHauptdiagnose(anweisung, zeilen);
            continue;
        }
        m_letztesFeld = m_satz.size();
        füge(anweisung, zeilen);
        m_satz.push_back(trenner);
    }
    return m_satz;
}

void Satzbau::füge(const Feldanweisung& anweisung, const Episodenzeilen& zeilen)
{
    switch (anweisung.art) {
    case Feldanweisungsart::Option:
        m_satz.append(schlageNach(anweisung, m_wert, m_ablage));
        break;
    case Feldanweisungsart::Zahl:
        m_satz.append(zahl());
        break;
    case Feldanweisungsart::Text:
        m_satz.append(m_wert);
        break;
    case Feldanweisungsart::Datum:
        m_satz.append(m_wert.empty() ? "offen"_t : m_wert);
        break;
    case Feldanweisungsart::IdKern:
        m_satz.append(alsText(zeilen.kernID));
        break;
    case Feldanweisungsart::IdBetr:
        m_satz.append(alsText(zeilen.betrID));
        break;
    case Feldanweisungsart::Nation:
        m_satz.append(getNationZuCode(m_wert));
        break;
    case Feldanweisungsart::OderKA:
        m_satz.append(m_wert.empty() ? "k.A."_t : m_wert);
        break;
    case Feldanweisungsart::HdOhne:
        m_satz.append(wahrWenn(führendeZahl(m_wert) == m_hdOhne++));
        break;
    case Feldanweisungsart::IvKonsum:
        m_satz.append(wahrWenn(führendeZahl(m_wert) == m_ivKonsum++));
        break;
    case Feldanweisungsart::OhneErstesZeichen:
        m_satz.append(m_wert.substr(m_wert.empty() ? 0 : 1));
        break;
    case Feldanweisungsart::HdAlter: // filled by the Icd0000 behind it
    case Feldanweisungsart::Icd0000:
    case Feldanweisungsart::Leer:
        break;
    case Feldanweisungsart::Unbekannt:
        m_satz.push_back('?');
        break;
    }
}

// The main diagnosis brings its age of first consumption into the field before it.
void Satzbau::fügeHauptdiagnose(const Feldanweisung& anweisung, const Episodenzeilen& zeilen)
{
    const auto ergebnis = schlageNach(anweisung, m_wert, m_ablage);
    if (ergebnis == "1") {
        m_satz.resize(m_letztesFeld);
        m_satz.append(zeilen.diagnose.feld(spalteAlterHauptdiagnose)).push_back(trenner);
    }
    m_letztesFeld = m_satz.size();
    m_satz.append(ergebnis).push_back(trenner);
}

std::string_view Satzbau::zahl() const
{
    return m_art == Art::Diagnose && m_wert == "0" ? std::string_view{} : m_wert;
}
