#include "import/frmDatenUebernahme.h"

#include "platform/dateien/Dateien.h"
#include "platform/text/Eingabe.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "store/Niederschrift.h"
#include "zustand/Zustand.h"

namespace {

constexpr int höchsterFortschritt = 6;
constexpr auto bereit = "Bereit"_t;

/// As typed; "/" is taken on every system.
std::filesystem::path pfadAus(std::string_view text)
{
    const auto utf8 = alsUtf8(text);
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end())).make_preferred();
}

} // namespace

frmDatenÜbernahme::frmDatenÜbernahme() : Bildschirm("frmDatenÜbernahme"_t)
{
    using namespace anordnung;
    setzeTitel("Datenübernahme"_t);
    kopfband.titel = &lblHeader;
    aufbau = breit(karte({}, spalte({
                                 zeile({füllend(element(tbKernDatAlt)), element(cmdGetKernDat, 9)}),
                                 zeile({füllend(element(tbBetrDatAlt)), element(cmdGetBetreuungenDat, 9)}),
                                 platzhaltend(element(cmdBeiDerArbeit)),
                                 element(lblStatus),
                                 element(ProgressBar1),
                             })),
                   44);
    leiste.rechts = {&cmdOK, &cmdExit};
    beiEscape = &cmdExit;

    ProgressBar1.setzeBereich(0, höchsterFortschritt);
    ProgressBar1.setzeWert(höchsterFortschritt);
    cmdBeiDerArbeit.verberge();
    cmdGetKernDat.beiKlick = [this] { wähle(tbKernDatAlt, m_kernDatAlt); };
    cmdGetBetreuungenDat.beiKlick = [this] { wähle(tbBetrDatAlt, m_betrDatAlt); };
    cmdOK.beiKlick = [this] { beiOK(); };
    cmdExit.beiKlick = [this] { zustand().folge.schließe(*this); };
}

void frmDatenÜbernahme::wähle(Textfeld& ziel, std::filesystem::path& gewählt)
{
    constexpr int dateiMussDaSein = 528388; // and the read-only box is hidden
    const auto anfang = m_ordner.empty() ? zustand().pfade.programm : m_ordner;
    const auto pfad = zustand().umgebung.wähleDatei(
        {anfang, std::string("Text-Dateien (*.txt)|*.txt|alle Dateien (*.*)|*.*"_t), dateiMussDaSein});
    if (pfad) {
        m_ordner = pfad->parent_path();
        gewählt = *pfad;
        ziel.setzeText(pfadtext(*pfad));
    }
}

std::filesystem::path frmDatenÜbernahme::pfadIn(const Textfeld& feld, const std::filesystem::path& gewählt) const
{
    // a chosen path may hold characters that the box can't show
    const auto pfad = pfadtext(gewählt) == feld.text() ? gewählt : pfadAus(feld.text());
    return zustand().pfade.programm / pfad;
}

void frmDatenÜbernahme::beiOK()
{
    if (tbKernDatAlt.text().empty() || tbBetrDatAlt.text().empty()) {
        zeigeMeldung("Bitte zunächst kernDat.txt und betreuungenDat.txt aussuchen"_t);
        return;
    }
    const auto& stand = zustand();
    Importlauf lauf({stand.bestand, stand.pfade.programm, stand.umgebung.installation(), stand.pfade.importListe},
                    pfadIn(tbKernDatAlt, m_kernDatAlt), pfadIn(tbBetrDatAlt, m_betrDatAlt));
    lauf.beiSchritt = [this](std::string_view was, int schritt) {
        lblStatus.setzeText(was);
        ProgressBar1.setzeWert(schritt);
        zustand().umgebung.zeichne();
    };
    lauf.nachSchritt = [this] { lblStatus.setzeText(bereit); };
    ProgressBar1.setzeWert(0);
    cmdBeiDerArbeit.zeige();
    try {
        const auto zahlen = lauf.führeAus();
        cmdOK.sperre();
        cmdBeiDerArbeit.verberge();
        lblStatus.setzeText(verbinde("Import erfolgreich. #Klienten: "_t, std::to_string(zahlen.klienten),
                                     ", #Betreuungen: "_t, std::to_string(zahlen.betreuungen)));
    } catch (const UnvollendeterVorgang&) {
        throw; // the data are taken over; to say the contrary would have them typed in
    } catch (const Laufzeitfehler&) {
        Importlauf::entferneReste(zustand().bestand);
        zeigeFehlschlag();
    }
}

void frmDatenÜbernahme::zeigeFehlschlag()
{
    cmdBeiDerArbeit.verberge();
    zeigeMeldung("Bei der Übernahme der Daten trat ein Fehler auf.\r"
                 "Bitte überprüfen Sie, ob sie die richtigen Daten für die Übernahme ausgewählt haben.\r"
                 "Es wurden keine Daten übernommen."_t,
                 Symbol::Stop);
    cmdOK.gibFrei();
    ProgressBar1.setzeWert(höchsterFortschritt);
    lblStatus.setzeText(bereit);
}
