#include "import/Satzbau.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Exportspalten.h"
#include "satz/moNationen.h"

namespace {

std::string_view wahrWenn(bool ja)
{
    return ja ? "Wahr"_t : "Falsch"_t;
}

/// Made by the import itself; what else has no column holds what a new record does.
bool entstehtHier(Feldart art)
{
    return art == Feldart::idKern || art == Feldart::idBetr || art == Feldart::memo;
}

} // namespace

const std::string& Satzbau::baue(const Episodenzeilen& zeilen)
{
    m_satz.clear();
    m_hdOhne = 0;
    m_ivKonsum = 0;
    for (const auto& anweisung : m_anweisungen) {
        const auto wert = (anweisung.blatt == 'K' ? zeilen.kern : zeilen.diagnose).feld(anweisung.spalte);
        if (anweisung.art == Feldart::icd0000) {
            fügeHauptdiagnose(anweisung, wert, zeilen);
            continue;
        }
        m_letztesFeld = m_satz.size();
        if (anweisung.blatt == 0 && !entstehtHier(anweisung.art)) {
            m_satz.append(anweisung.vorgabe);
        } else {
            füge(anweisung, wert, zeilen);
        }
        m_satz.push_back(trenner);
    }
    return m_satz;
}

void Satzbau::füge(const Feldanweisung& anweisung, std::string_view wert, const Episodenzeilen& zeilen)
{
    switch (anweisung.art) {
    case Feldart::option:
        m_satz.append(schlageNach(anweisung, wert, m_ablage));
        break;
    case Feldart::zahl:
        m_satz.append(m_art == Art::Diagnose && wert == "0" ? std::string_view{} : wert);
        break;
    case Feldart::text:
        m_satz.append(wert);
        break;
    case Feldart::datum:
        m_satz.append(wert.empty() ? "offen"_t : wert);
        break;
    case Feldart::idKern:
        m_satz.append(alsText(zeilen.kernID));
        break;
    case Feldart::idBetr:
        m_satz.append(alsText(zeilen.betrID));
        break;
    case Feldart::nation:
        m_satz.append(getNationZuCode(wert));
        break;
    case Feldart::kinder:
    case Feldart::zuvor:
    case Feldart::kontakte:
        m_satz.append(wert.empty() ? "k.A."_t : wert);
        break;
    case Feldart::hdOhne:
        m_satz.append(wahrWenn(führendeZahl(wert) == m_hdOhne++));
        break;
    case Feldart::ivKonsum:
        m_satz.append(wahrWenn(führendeZahl(wert) == m_ivKonsum++));
        break;
    case Feldart::icdPsy:
    case Feldart::icdNeu:
        m_satz.append(wert.substr(wert.empty() ? 0 : 1));
        break;
    case Feldart::hdAlter: // filled by the icd0000 behind it
    case Feldart::icd0000:
    case Feldart::leer:
        break;
    case Feldart::memo: // the marking of the imported records fills this field
    case Feldart::klient:
        m_satz.push_back('?');
        break;
    }
}

// The main diagnosis brings its age of first consumption into the field before it.
void Satzbau::fügeHauptdiagnose(const Feldanweisung& anweisung, std::string_view wert, const Episodenzeilen& zeilen)
{
    const auto ergebnis = schlageNach(anweisung, wert, m_ablage);
    if (ergebnis == "1") {
        m_satz.resize(m_letztesFeld);
        m_satz.append(zeilen.diagnose.feld(exportspalte::diag::alterErstkonsum)).push_back(trenner);
    }
    m_letztesFeld = m_satz.size();
    m_satz.append(ergebnis).push_back(trenner);
}
