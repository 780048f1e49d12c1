#include "platform/bildschirm/Ablauf.h"

#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <exception>

bool Ablauf::ereignis(const std::function<void()>& aktion)
{
    if (!m_läuft) {
        return false;
    }
    ++m_tiefe;
    try {
        aktion();
        if (m_tiefe == 1 && m_läuft) {
            m_folge.führeAktivierungenAus();
        }
    } catch (const Laufzeitfehler& fehler) {
        stürzeAb(fehler.text());
    } catch (const std::exception& fehler) {
        stürzeAb(verbinde("interner Fehler, bitte melden: "_t, std::string_view(fehler.what())));
    }
    --m_tiefe;
    return m_läuft;
}

void Ablauf::beende()
{
    if (m_läuft) {
        m_läuft = false;
        beendet.melde();
    }
}

void Ablauf::stürzeAb(const std::string& text)
{
    const auto hinweis = hinweisBeiAbsturz ? hinweisBeiAbsturz() : std::string();
    m_absturz = verbinde("Laufzeitfehler: "_t, text, hinweis.empty() ? ""_t : "\r\n\r\n"_t, hinweis);
    m_status = 1;
    m_läuft = false; // before the box: nothing may be written while it stands
    m_umgebung.zeigeMeldung({m_absturz, Symbol::Stop, Knöpfe::OK, Antwort::OK, m_titel});
    beendet.melde();
}
