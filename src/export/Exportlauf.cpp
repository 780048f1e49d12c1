#include "export/Exportlauf.h"

#include "export/Diagnosezeile.h"
#include "export/Kernzeile.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"
#include "satz/moHelferlein.h"

#include <algorithm>

namespace {

constexpr int bits = 32;

int jahrVon(std::string_view datum, int feld, std::string_view bezeichnung)
{
    constexpr std::size_t stellen = 4;
    const auto jahr = leseGanzzahl16(datum.substr(datum.size() - std::min(datum.size(), stellen)));
    if (!jahr) {
        throw Laufzeitfehler(verbinde("Feld "_t, std::to_string(feld), ": Das Datum \""_t, datum, "\" der Betreuung "_t,
                                      bezeichnung, " hat keine Jahreszahl."_t));
    }
    return *jahr;
}

/// Both ids as the diagnosis table is searched for them.
std::string episode(std::int32_t kernID, std::int32_t betrID)
{
    return verbinde(alsText(kernID), '-', alsText(betrID));
}

} // namespace

void beimSchreiben(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const Laufzeitfehler& fehler) {
        throw Exportfehler{fehler.text()};
    }
}

bool berührtJahr(std::string_view beginn, std::string_view ende, int jahr, std::string_view bezeichnung)
{
    if (jahr < jahrVon(beginn, feld::betr::beginn, bezeichnung)) {
        return false;
    }
    return klein(ende) == "offen"_t || jahr <= jahrVon(ende, feld::betr::ende, bezeichnung);
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
        Zeilen klienten(m_klienten->text());
        while (const auto zeile = klienten.nächste()) {
            if (beiKlient) {
                beiKlient(static_cast<std::int32_t>(klienten.nummer()));
            }
            exportiereKlient(*zeile, klienten.nummer());
        }
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
    const auto gesucht = episode(kernID, leseSchlüssel(betrDS, feld::betr::betrID, bits, pfade().betrDat, nummer));
    if (!m_diagnosesuche) {
        beginneDiagnosesuche();
    }
    if (const auto diagDS = m_diagnosesuche->finde(gesucht); !diagDS.empty()) {
        schreibe(betrDS, diagDS);
    } else {
        m_bestand.meldung()(verbinde("Fehler im Export: zu "_t, gesucht, " wurde kein diagDS gefunden"_t),
                            Symbol::Keins);
    }
}

/// Ids are compared as numbers; one on the way to the record that is none ends the run.
void Exportlauf::beginneDiagnosesuche()
{
    m_diagnosen = dateien().lies(pfade().diagDat);
    m_diagnosesuche.emplace(m_diagnosen->text(), [this, nummer = std::size_t{0}](std::string_view zeile) mutable {
        ++nummer;
        return episode(leseSchlüssel(zeile, feld::diag::kernID, bits, pfade().diagDat, nummer),
                       leseSchlüssel(zeile, feld::diag::betrID, bits, pfade().diagDat, nummer));
    });
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
