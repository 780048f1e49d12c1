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
        const auto spaltenwert = (anweisung.blatt == 'K' ? zeilen.kern : zeilen.diagnose).feld(anweisung.spalte);
        const auto wert = anweisung.blatt == 0 && !entstehtHier(anweisung.art)
                              ? std::string_view(anweisung.vorgabe)
                              : feldwert(anweisung, spaltenwert, zeilen);
        m_letztesFeld = m_satz.size();
        m_satz.append(wert).push_back(trenner);
    }
    return m_satz;
}

std::string_view Satzbau::feldwert(const Feldanweisung& anweisung, std::string_view wert, const Episodenzeilen& zeilen)
{
    switch (anweisung.art) {
    case Feldart::option:
        return schlageNach(anweisung, wert, m_ablage);
    case Feldart::zahl:
        return m_art == Art::Diagnose && wert == "0" ? std::string_view{} : wert;
    case Feldart::text:
        return wert;
    case Feldart::datum:
        return wert.empty() ? "offen"_t : wert;
    case Feldart::idKern:
        return m_ablage = alsText(zeilen.kernID);
    case Feldart::idBetr:
        return m_ablage = alsText(zeilen.betrID);
    case Feldart::nation:
        return m_ablage = getNationZuCode(wert);
    case Feldart::kinder:
    case Feldart::zuvor:
    case Feldart::kontakte:
        return wert.empty() ? antworttext::keine : wert;
    case Feldart::hdOhne:
        return wahrWenn(führendeZahl(wert) == m_hdOhne++);
    case Feldart::ivKonsum:
        return wahrWenn(führendeZahl(wert) == m_ivKonsum++);
    case Feldart::icdPsy:
    case Feldart::icdNeu:
        return wert.substr(wert.empty() ? 0 : 1);
    case Feldart::icd0000:
        return hauptdiagnose(anweisung, wert, zeilen);
    case Feldart::hdAlter: // filled by the icd0000 behind it
    case Feldart::leer:
        return {};
    case Feldart::memo: // the marking of the imported records fills this field
    case Feldart::klient:
        break;
    }
    return "?"_t;
}

// The main diagnosis brings its age of first consumption into the field before it.
std::string_view Satzbau::hauptdiagnose(const Feldanweisung& anweisung, std::string_view wert,
                                        const Episodenzeilen& zeilen)
{
    const auto ergebnis = schlageNach(anweisung, wert, m_ablage);
    if (ergebnis == "1") {
        m_satz.resize(m_letztesFeld);
        m_satz.append(zeilen.diagnose.feld(exportspalte::diag::alterErstkonsum)).push_back(trenner);
    }
    return ergebnis;
}
