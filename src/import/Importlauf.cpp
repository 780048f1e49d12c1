#include "import/Importlauf.h"

#include "import/moImp1TolvekToExport.h"
#include "import/moImp3AltKDStoKDS.h"
#include "import/moImp4KDStoMorvek.h"
#include "import/moimp2TolvekExportTOaltKDS.h"
#include "platform/dateien/Dateien.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

Importlauf::Importlauf(Importort ort, std::filesystem::path kernAlt, std::filesystem::path betreuungenAlt)
    : m_ort(std::move(ort)), m_kernAlt(std::move(kernAlt)), m_betreuungenAlt(std::move(betreuungenAlt)),
      m_ordner(m_ort.bestand.pfade().importordner), m_tabellen{datei("KernDat.txt"), datei("BetrDat.txt"),
                                                               datei("DiagDat.txt"), datei("dummyDat.txt")}
{}

Importzahlen Importlauf::führeAus()
{
    bereiteVor();
    führeStufenAus();
    entferneDoppelte(dateien(), m_tabellen);
    beiSchritt("Markiere importierte Datensätze, import: NATION und BETRGRU"_t, 6);
    markiereBetreuungen(dateien(), m_tabellen, m_kernAlt);
    nachSchritt();
    fülleStatus(dateien(), m_tabellen, m_ort.bestand.pfade().betrDat);
    const auto zahlen = schreibeImportListe(dateien(), m_tabellen, m_ort.importListe);
    ersetzeTabellen(m_ort.bestand, m_tabellen, [this] { dateien().entferneOrdner(m_ordner); });
    return zahlen;
}

void Importlauf::entferneReste(const Bestand& bestand)
{
    const auto& ordner = bestand.pfade().importordner;
    try {
        if (bestand.dateien().istOrdner(ordner)) {
            bestand.dateien().entferneOrdner(ordner);
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
    moImp1TolvekToExport(dateien(), m_kernAlt, m_betreuungenAlt, kernExp, betreuungenExp, extraExp);
    nachSchritt();
    beiSchritt("aus Tolvek-Export altKDS schreiben"_t, 2);
    moimp2TolvekExportTOaltKDS(m_ort, kernExp, betreuungenExp, aKDSKern, aKDSDiagnose);
    nachSchritt();
    beiSchritt("konvertiere aKDS nach KDS"_t, 3);
    moImp3AltKDStoKDS(dateien(), aKDSKern, aKDSDiagnose, kdsKern, kdsDiagnose);
    nachSchritt();
    beiSchritt("Konvertierung KDS-DB in Morvek-DB"_t, 4);
    moImp4KDStoMorvek(dateien(), kdsKern, kdsDiagnose, m_tabellen.kernDat, m_tabellen.betrDat, m_tabellen.diagDat,
                      extraExp);
    nachSchritt();
    beiSchritt("Bereit"_t, 5);
}
