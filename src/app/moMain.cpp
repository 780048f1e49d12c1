#include "app/moMain.h"

#include "import/Importlauf.h"
#include "import/moAnweisungen.h"
#include "platform/dateien/Dateien.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Satzaufbau.h"
#include "satz/moData.h"
#include "satz/moNationen.h"
#include "spreadsheet/moVariablen.h"
#include "store/Bruchstuecke.h"
#include "store/Niederschrift.h"
#include "store/Sicherungen.h"
#include "store/moBereinigeBetrOA.h"
#include "store/moBereinigeDatum.h"

Programm::Programm(Umgebung& umgebung)
    : m_zustand(umgebung), m_platz(m_zustand), m_extras(m_zustand), m_rahmen(m_zustand, m_extras)
{
    m_zustand.ablauf.hinweisBeiAbsturz = [this] {
        const auto ort = ortDerSicherung(m_zustand.bestand);
        return ort.empty() ? ort : verbinde("Die letzte Sicherung liegt in "_t, ort, '.');
    };
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
    vollendeVorgang(m_zustand.bestand);
    Importlauf::entferneReste(m_zustand.bestand);
    prüfeDateien();
    stelleBruchstückeBeiseite(m_zustand.bestand);
    bereinigeDatum(m_zustand.bestand);
    bereinigeBetrOA(m_zustand.bestand);
    m_rahmen.zeige();
    m_hauptmenü = std::make_unique<frmHauptmenü>([this] { m_rahmen.aufräumen(); });
    m_zustand.folge.zeige(*m_hauptmenü);
}

bool Programm::istErsteInstanz()
{
    const auto daten = bildeBestandspfade(m_zustand.umgebung.programmordner()).daten;
    const bool erste = m_zustand.umgebung.istErsteInstanz(daten);
    if (!erste) {
        zeigeMeldung("Es ist schon eine Instanz dieses Programms geöffnet"_t, Symbol::Info);
    }
    return erste;
}

void Programm::initialisiere()
{
    m_zustand.titel = verbinde(m_zustand.umgebung.istMuster() ? verbinde(mustermarke, " – "_t) : std::string(),
                               "Tolvek7 v"_t, std::string_view(TOLVEK_VERSION));
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
    try {
        dateien.entferne(pfade.probe);
        dateien.legeLeerAn(pfade.probe);
        dateien.lösche(pfade.probe);
    } catch (const Laufzeitfehler& fehler) {
        throw Laufzeitfehler(verbinde("Der Programmordner ist nicht beschreibbar. "_t, fehler.text()));
    }
}

/// Health data are nobody else's business: files that were copied here, or made by an older version, may be open to
/// others.
void verwehreAnderen(Dateien& dateien, const Pfade& pfade)
{
    for (const auto& pfad : {pfade.daten, pfade.sicherungen, pfade.importListe, pfade.dummyDatei, pfade.ini}) {
        dateien.verwehreAnderen(pfad);
    }
    for (const auto tabelle : alleSechs) {
        dateien.verwehreAnderen(pfade.von(tabelle));
    }
}

} // namespace

void prüfeDateien()
{
    auto& dateien = zustand().umgebung.dateien();
    const auto& pfade = zustand().pfade;
    // what is there and can't be asked for is a failure here, never a missing table: it must not be made anew
    bool alleFehlen = true;
    for (const auto tabelle : dieTabellen) {
        alleFehlen = dateien.fehlt(pfade.von(tabelle)) && alleFehlen;
    }
    const bool iniFehlt = dateien.fehlt(pfade.ini);

    prüfeSchreibbarkeit(dateien, pfade);
    dateien.entferne(pfade.dummyIni); // of a run that was broken off
    if (alleFehlen) {
        legeTabellenAn(zustand().bestand);
    }
    if (iniFehlt) {
        dateien.legeLeerAn(pfade.ini);
    }
    verwehreAnderen(dateien, pfade);
}
