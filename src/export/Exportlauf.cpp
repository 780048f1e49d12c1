#include "export/Exportlauf.h"

#include "export/Datumspruefung.h"
#include "export/Diagnosezeile.h"
#include "export/Kernzeile.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"
#include "satz/moHelferlein.h"

namespace {

constexpr int bits = 32;

} // namespace

void beimSchreiben(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const Laufzeitfehler& fehler) {
        throw Exportfehler{fehler.text()};
    }
}

Diagnosesuche::Diagnosesuche(Dateien& dateien, const std::filesystem::path& pfad)
    : m_pfad(pfad), m_inhalt(dateien.lies(pfad)), m_zeilen(m_inhalt->text())
{}

Diagnosesuche::Schlüssel Diagnosesuche::schlüssel(std::int32_t kernID, std::int32_t betrID)
{
    return (static_cast<Schlüssel>(static_cast<std::uint32_t>(kernID)) << 32U) | static_cast<std::uint32_t>(betrID);
}

std::optional<std::string_view> Diagnosesuche::finde(std::int32_t kernID, std::int32_t betrID)
{
    const auto gesucht = schlüssel(kernID, betrID);
    if (const auto ort = m_gelesene.find(gesucht); ort != m_gelesene.end()) {
        return ort->second;
    }
    while (const auto zeile = m_zeilen.nächste()) {
        const auto gelesen = schlüssel(leseSchlüssel(*zeile, feld::diag::kernID, bits, m_pfad, m_zeilen.nummer()),
                                       leseSchlüssel(*zeile, feld::diag::betrID, bits, m_pfad, m_zeilen.nummer()));
        m_gelesene.try_emplace(gelesen, *zeile);
        if (gelesen == gesucht) {
            return zeile;
        }
    }
    return std::nullopt;
}

Exportlauf::Exportlauf(const Bestand& bestand, int jahr, const std::filesystem::path& ordner)
    : m_bestand(bestand), m_jahr(jahr), m_ordner(ordner), m_klienten(dateien().lies(pfade().kernDat)),
      m_klientenzahl(static_cast<std::int32_t>(zähleZeilen(m_klienten->text()))), m_sätze{.meldung = bestand.meldung()}
{}

std::int32_t Exportlauf::führeAus()
{
    beimSchreiben([&] {
        m_kern = dateien().schreibeNeu(m_ordner / exportort::kern);
        m_diagnose = dateien().schreibeNeu(m_ordner / exportort::diagnose);
    });
    try {
        exportiereAlle();
    } catch (const Laufzeitfehler&) {
        behalteGeschriebenes();
        throw;
    }
    beimSchreiben([&] {
        m_kern->schließe();
        m_diagnose->schließe();
    });
    return m_exportierte;
}

void Exportlauf::exportiereAlle()
{
    Zeilen klienten(m_klienten->text());
    while (const auto zeile = klienten.nächste()) {
        if (beiKlient) {
            beiKlient(static_cast<std::int32_t>(klienten.nummer()));
        }
        exportiereKlient(*zeile, klienten.nummer());
    }
}

/// What ends the program is told to the person, not whether these rows could be kept as well.
void Exportlauf::behalteGeschriebenes()
{
    for (const auto& schreiber : {m_kern.get(), m_diagnose.get()}) {
        try {
            schreiber->schließe();
        } catch (const Laufzeitfehler&) {
            continue;
        }
    }
}

void Exportlauf::exportiereKlient(std::string_view zeile, std::size_t nummer)
{
    const auto kernID = leseSchlüssel(zeile, feld::kern::kernID, bits, pfade().kernDat, nummer);
    m_sätze.klient.lies(zeile);
    if (!m_betreuungen) {
        sucheBetreuungen(kernID);
    } else if (const auto ort = m_imJahr.find(kernID); ort != m_imJahr.end()) {
        for (const auto& betreuung : ort->second) {
            exportiere(kernID, betreuung.zeile, betreuung.nummer);
        }
    }
}

void Exportlauf::sucheBetreuungen(std::int32_t erster)
{
    const auto& pfad = pfade().betrDat;
    m_betreuungen = dateien().lies(pfad);
    Zeilen zeilen(m_betreuungen->text());
    while (const auto zeile = zeilen.nächste()) {
        const auto kernID = leseSchlüssel(*zeile, feld::betr::kernID, bits, pfad, zeilen.nummer());
        if (!berührtJahrDesExports(*zeile, zeilen.nummer())) {
            continue;
        }
        m_imJahr[kernID].push_back({*zeile, zeilen.nummer()});
        if (kernID == erster) {
            exportiere(kernID, *zeile, zeilen.nummer());
        }
    }
}

bool Exportlauf::berührtJahrDesExports(std::string_view betrDS, std::size_t nummer) const
{
    try {
        const auto bezeichnung =
            verbinde(getFeld(betrDS, feld::betr::kernID), '-', getFeld(betrDS, feld::betr::betrID));
        return berührtJahr(getFeld(betrDS, feld::betr::beginn), getFeld(betrDS, feld::betr::ende), m_jahr, bezeichnung);
    } catch (const Laufzeitfehler& fehler) {
        throw Laufzeitfehler(verbinde(ortsangabe(pfade().betrDat, nummer), ", "_t, fehler.text()));
    }
}

void Exportlauf::exportiere(std::int32_t kernID, std::string_view betrDS, std::size_t nummer)
{
    ++m_exportierte;
    const auto betrID = leseSchlüssel(betrDS, feld::betr::betrID, bits, pfade().betrDat, nummer);
    if (!m_diagnosen) {
        m_diagnosen.emplace(dateien(), pfade().diagDat);
    }
    if (const auto diagDS = m_diagnosen->finde(kernID, betrID)) {
        schreibe(betrDS, *diagDS);
    } else {
        m_bestand.meldung()(
            verbinde("Fehler im Export: zu "_t, alsText(kernID), '-', alsText(betrID), " wurde kein diagDS gefunden"_t),
            Symbol::Keins);
    }
}

void Exportlauf::schreibe(std::string_view betrDS, std::string_view diagDS)
{
    m_sätze.betreuung.lies(betrDS);
    m_sätze.diagnose.lies(diagDS);
    const auto kernzeile = erstelleKernZeile(m_sätze);
    const auto diagnosezeile = erstelleDiagZeile(m_sätze);
    // only when both are there: a failure between them would leave the files with different numbers of lines
    beimSchreiben([&] {
        m_kern->zeile(kernzeile);
        m_diagnose->zeile(diagnosezeile);
    });
}
