#include "import/Importlauf.h"

#include "import/moImp1TolvekToExport.h"
#include "import/moImp3AltKDStoKDS.h"
#include "import/moImp4KDStoMorvek.h"
#include "import/moimp2TolvekExportTOaltKDS.h"
#include "platform/dateien/Dateien.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "zustand/Zustand.h"

namespace {

Dateien& dateien()
{
    return zustand().umgebung.dateien();
}

} // namespace

Importlauf::Importlauf(std::filesystem::path kernAlt, std::filesystem::path betreuungenAlt)
    : m_kernAlt(std::move(kernAlt)), m_betreuungenAlt(std::move(betreuungenAlt)),
      m_ordner(zustand().pfade.importordner), m_tabellen{datei("KernDat.txt"), datei("BetrDat.txt"),
                                                         datei("DiagDat.txt"), datei("dummyDat.txt")}
{}

Importzahlen Importlauf::führeAus()
{
    bereiteVor();
    führeStufenAus();
    entferneDoppelte(m_tabellen);
    beiSchritt("Markiere importierte Datensätze, import: NATION und BETRGRU"_t, 6);
    markiereBetreuungen(m_tabellen, m_kernAlt);
    nachSchritt();
    fülleStatus(m_tabellen);
    const auto zahlen = schreibeImportListe(m_tabellen, zustand().pfade.importListe);
    ersetzeTabellen(m_tabellen, [this] { dateien().entferneOrdner(m_ordner); });
    return zahlen;
}

void Importlauf::entferneReste()
{
    try {
        if (dateien().istOrdner(zustand().pfade.importordner)) {
            dateien().entferneOrdner(zustand().pfade.importordner);
        }
    } catch (const Laufzeitfehler&) {
        // whoever broke off has been told; the next run or start tries again
    }
}

void Importlauf::bereiteVor() const
{
    if (dateien().istOrdner(m_ordner)) {
        dateien().entferneOrdner(m_ordner);
    }
    dateien().legeOrdnerAn(m_ordner);
}

void Importlauf::führeStufenAus() const
{
    const auto kernExp = datei("kernExp.txt");
    const auto betreuungenExp = datei("betreuungenExp.txt");
    const auto extraExp = datei("extraExp.txt");
    const auto aKDSKern = datei("aKDSKern.txt");
    const auto aKDSDiagnose = datei("aKDSDiagnose.txt");
    const auto kdsKern = datei("KDSKern.txt");
    const auto kdsDiagnose = datei("KDSDiagnose.txt");

    beiSchritt("erstelle Tolvek-Export"_t, 1);
    moImp1TolvekToExport(m_kernAlt, m_betreuungenAlt, kernExp, betreuungenExp, extraExp);
    nachSchritt();
    beiSchritt("aus Tolvek-Export altKDS schreiben"_t, 2);
    moimp2TolvekExportTOaltKDS(kernExp, betreuungenExp, aKDSKern, aKDSDiagnose);
    nachSchritt();
    beiSchritt("konvertiere aKDS nach KDS"_t, 3);
    moImp3AltKDStoKDS(aKDSKern, aKDSDiagnose, kdsKern, kdsDiagnose);
    nachSchritt();
    beiSchritt("Konvertierung KDS-DB in Morvek-DB"_t, 4);
    moImp4KDStoMorvek(kdsKern, kdsDiagnose, m_tabellen.kernDat, m_tabellen.betrDat, m_tabellen.diagDat, extraExp);
    nachSchritt();
    beiSchritt("Bereit"_t, 5);
}
