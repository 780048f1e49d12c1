#include "app/moMain.h"

#include "diagnosis/moData.h"
#include "export/moNationen.h"
#include "import/moAnweisungen.h"
#include "platform/dateien/Dateien.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Satzaufbau.h"
#include "spreadsheet/moVariablen.h"
#include "store/moBereinigeBetrOA.h"
#include "store/moBereinigeDatum.h"

#include <algorithm>
#include <array>

Programm::Programm(Umgebung& umgebung)
    : m_zustand(umgebung), m_platz(m_zustand), m_extras(m_zustand), m_rahmen(m_zustand, m_extras)
{
    m_zustand.wechsel = &m_extras;
}

void Programm::starte()
{
    m_zustand.ablauf.ereignis([this] { Main(); });
}

void Programm::Main()
{
    if (!istErsteInstanz()) {
        m_zustand.ablauf.beende();
        return;
    }
    initialisiere();
    prüfeDateien();
    bereinigeDatum();
    bereinigeBetrOA();
    m_rahmen.zeige();
    m_hauptmenü = std::make_unique<frmHauptmenü>([this] { m_rahmen.aufräumen(); });
    m_zustand.folge.zeige(*m_hauptmenü);
}

bool Programm::istErsteInstanz()
{
    const bool erste = m_zustand.umgebung.istErsteInstanz();
    if (!erste) {
        zeigeMeldung("Es ist schon eine Instanz dieses Programms geöffnet"_t, Symbol::Info);
    }
    return erste;
}

void Programm::initialisiere()
{
    m_zustand.titel = verbinde(m_zustand.umgebung.istMuster() ? "MUSTER – "_t : ""_t, "Tolvek7 v"_t,
                               std::string_view(TOLVEK_VERSION));
    m_zustand.ablauf.setzeTitel(m_zustand.titel);
    m_zustand.pfade = bildePfade(m_zustand.umgebung.programmordner());
    baueProblemKatalog();
    m_zustand.defaultKernDS = erstelleDefaultKernDS();
    m_zustand.defaultBetrDS = erstelleDefaultBetrDS();
    m_zustand.defaultDiagDS = erstelleDefaultDiagDS();
    m_zustand.anzahlKernFelder = static_cast<std::int16_t>(klientenfelder().size());
    m_zustand.anzahlBetrFelder = static_cast<std::int16_t>(betreuungsfelder().size());
    registriereNationen(m_zustand.ressourcen);
    registriereAnweisungen(m_zustand.ressourcen);
    registriereVariablen(m_zustand.ressourcen);
}

namespace {

/// Better a clear word now than a lost entry later.
void prüfeSchreibbarkeit(Dateien& dateien, const Pfade& pfade)
{
    const auto probe = pfade.programm / "Tolvek7.probe";
    try {
        dateien.legeLeerAn(probe);
        dateien.lösche(probe);
    } catch (const Laufzeitfehler& fehler) {
        throw Laufzeitfehler(verbinde("Der Programmordner ist nicht beschreibbar. "_t, fehler.text()));
    }
}

void legeTabellenAn(Dateien& dateien, const Pfade& pfade)
{
    if (!dateien.istOrdner(pfade.daten)) {
        dateien.legeOrdnerAn(pfade.daten);
    }
    for (const auto* pfad :
         {&pfade.kernDat, &pfade.betrDat, &pfade.diagDat, &pfade.kernBak, &pfade.betrBak, &pfade.diagBak}) {
        dateien.legeLeerAn(*pfad);
    }
}

} // namespace

void prüfeDateien()
{
    auto& dateien = zustand().umgebung.dateien();
    const auto& pfade = zustand().pfade;
    const std::array tabellen{&pfade.kernDat, &pfade.betrDat, &pfade.diagDat};
    const bool alleFehlen =
        std::none_of(tabellen.begin(), tabellen.end(), [&](const auto* pfad) { return dateien.istLesbar(*pfad); });
    const bool iniFehlt = !dateien.istLesbar(pfade.ini);

    prüfeSchreibbarkeit(dateien, pfade);
    if (alleFehlen) {
        legeTabellenAn(dateien, pfade);
    }
    if (iniFehlt) {
        dateien.legeLeerAn(pfade.ini);
    }
}
