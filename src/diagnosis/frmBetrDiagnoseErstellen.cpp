#include "diagnosis/frmBetrDiagnoseErstellen.h"

#include "platform/text/Zahl.h"
#include "satz/Diagnosesatz.h"
#include "satz/Wertelisten.h"
#include "satz/Zeilenfelder.h"
#include "zustand/Comboregeln.h"
#include "zustand/Zustand.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

namespace {

constexpr auto keineAngabe = antworttext::keine;
constexpr std::string_view keineAngaben = "keine Angaben"_t;

constexpr std::array<std::string_view, 8> fragen{
    "Problem:"_t,
    "Überwiegende Konsumart in den letzten 30 Tagen vor Betreuungsbeginn:"_t,
    "Anzahl Konsumtage in den letzten 30 Tagen vor Betreuungsbeginn:"_t,
    "Anzahl Konsumtage in den letzten 30 Tagen vor Betreuungsende:"_t,
    "ICD10-Diagnose (Stelle 4+5):"_t,
    "Alter bei Störungsbeginn:"_t,
    "Riskanter Konsum:"_t,
    "Alter Erstkonsum:"_t};

/// Widths of the answers in em.
constexpr std::array<double, 8> breiten{0, 16, 4.6, 4.6, 24, 4.6, 4.6, 4.6};

/// The questions whose answer is a number from a list, or not given; they take typing.
constexpr std::array zahlenfragen{TageBeginn, TageEnde, AlterStörung, AlterErstkonsum};

bool wirdGefragt(const Gruppenreihe* gruppe, int frage)
{
    return gruppe == nullptr ? frage != Konsumart && frage != Riskant : gruppe->frage(frage).gefragt;
}

/// The list of the question; its first entry stands for no answer.
std::vector<std::string> antwortliste(const Blockfrage& frage)
{
    std::vector<std::string> texte = werte::texte(frage.werte);
    if (texte.front() != keineAngabe && texte.front() != keineAngaben) {
        texte.insert(texte.begin(), std::string(keineAngabe));
    }
    return texte;
}

bool istKurzeAntwort(std::string_view text)
{
    return werte::codeZu(werte::kurz, text) != nullptr;
}

bool beginntMitZiffer(std::string_view text)
{
    return !text.empty() && text.front() >= '0' && text.front() <= '9';
}

} // namespace

frmBetrDiagnoseErstellen::frmBetrDiagnoseErstellen(std::int16_t gruppe)
    : Bildschirm("frmBetrDiagnoseErstellen"_t), gruppeAktuell(gruppe)
{
    for (int i = 0; i <= lblFrage.bis(); ++i) {
        lblFrage(i).setzeText(fragen[static_cast<std::size_t>(i)]);
    }
    for (const int i : zahlenfragen) {
        Auswahlfeld& antwort = comboAntwort(i);
        antwort.setzeArt(Auswahlfeld::Art::Tippbar);
        antwort.beiTastendruck = [&antwort](int& code) { ergänzeComboText(antwort, code); };
    }
    bestimmeAufbau();

    cbHD.beiÄnderung = [this] { prüfeHDWechsel(); };
    cmdOK.beiKlick = [this] { beiOK(); };
    cmdExit.beiKlick = [this] { beiExit(); };
}

void frmBetrDiagnoseErstellen::bestimmeAufbau()
{
    istKindfenster = true;
    breiteEm = 49;
    kopfband.vortitel = &lblFrage(0);
    kopfband.titel = &lblAntwort;
    std::vector<Anordnung> zeilen;
    for (int i = 1; i <= comboAntwort.bis(); ++i) {
        zeilen.push_back(anordnung::feld(lblFrage(i), comboAntwort(i), breiten[static_cast<std::size_t>(i)]));
    }
    zeilen.push_back(anordnung::trennlinie());
    zeilen.push_back(anordnung::feld({}, cbHD));
    aufbau = anordnung::karte({}, anordnung::formular(std::move(zeilen), 19));
    leiste.rechts = {&cmdOK, &cmdExit};
    beiEscape = &cmdExit;
}

void frmBetrDiagnoseErstellen::beiÖffnung()
{
    setzeTitel(verbinde(zustand().titel, " - Diagnose erstellen"_t));
    const std::string& dsDiag = zustand().arbeitskopie.DSDiag;
    m_hdGruppeAlt = getHDGruppenNr(dsDiag);
    m_block = zerlegeDSDiag(dsDiag, gruppeAktuell).block;
    bereiteFragenVor();
    fülleAntworten();
}

void frmBetrDiagnoseErstellen::bereiteFragenVor()
{
    const auto* gruppe = gruppenreihe(gruppeAktuell);
    lblAntwort.setzeText(gruppenname(gruppeAktuell));
    for (int i = 1; i <= comboAntwort.bis(); ++i) {
        lblFrage(i).zeige(wirdGefragt(gruppe, i));
        comboAntwort(i).zeige(wirdGefragt(gruppe, i));
        if (gruppe != nullptr && gruppe->frage(i).art == Feldart::option) {
            const auto liste = antwortliste(gruppe->frage(i));
            comboAntwort(i).fülle(liste, liste.front());
        }
    }
    for (const int i : zahlenfragen) {
        comboAntwort(i).fülle(werte::zahlen(keineAngabe, antwortbereich(i)), keineAngabe);
    }
}

void frmBetrDiagnoseErstellen::fülleAntworten()
{
    for (int i = 1; i <= comboAntwort.bis(); ++i) {
        const std::string_view wert = getrimmt(getFeld(m_block, i));
        if (!wert.empty() && comboAntwort(i).istSichtbar() && !fülleAntwort(i, wert)) {
            break;
        }
    }
    const std::string_view marke = getFeld(m_block, HDMarke);
    cbHD.setze(!marke.empty() && marke != "0"_t);
}

/// False when the loading ends here: with an answer of "ja", "nein" or "k.A." to question 4, the answers behind
/// it are not loaded, and OK empties them. Meant to stay.
bool frmBetrDiagnoseErstellen::fülleAntwort(int frage, std::string_view wert)
{
    if (frage == ICDStelle4 && !istKurzeAntwort(wert)) {
        wähleICD(wert);
        return true;
    }
    comboAntwort(frage).setzeText(wert);
    return frage != ICDStelle4;
}

void frmBetrDiagnoseErstellen::wähleICD(std::string_view wert)
{
    Auswahlfeld& antwort = comboAntwort(ICDStelle4);
    const auto gesucht = führendeZahl(wert);
    const auto fund = std::ranges::find_if(antwort.liste(), [gesucht](const std::string& eintrag) {
        return beginntMitZiffer(eintrag) && führendeZahl(eintrag) == gesucht;
    });
    if (fund != antwort.liste().end()) {
        antwort.setzeText(*fund);
    }
}

void frmBetrDiagnoseErstellen::prüfeHDWechsel()
{
    if (m_prüftHDWechsel) {
        return;
    }
    m_prüftHDWechsel = true;
    if (m_hdGruppeAlt >= 1 && m_hdGruppeAlt != gruppeAktuell) {
        frageHDWechsel();
    }
    m_prüftHDWechsel = false;
}

void frmBetrDiagnoseErstellen::frageHDWechsel()
{
    const std::string_view alt = gruppenname(m_hdGruppeAlt);
    const std::string_view neu = gruppenname(gruppeAktuell);
    if (!cbHD.istAn()) {
        zeigeMeldung(verbinde(alt, " wird wieder als Hauptdiagnose gesetzt"_t), Symbol::Info);
        return;
    }
    const std::string frage =
        verbinde("Es wurde schon "_t, alt, " als Hauptdiagnose gestellt.\r\nSoll nun stattdessen "_t, neu,
                 " als Hauptdiagnose gestellt werden ?"_t);
    if (zeigeMeldung(frage, Symbol::Keins, Knöpfe::JaNein) != Antwort::Ja) {
        cbHD.setze(false);
    }
}

/// Hidden answers are looked at as well.
bool frmBetrDiagnoseErstellen::prüfeAntworten()
{
    return std::ranges::all_of(zahlenfragen, [this](int i) { return prüfeComboWert(comboAntwort(i)); });
}

/// The answer as the block holds it; an answer that was not given is empty.
std::string frmBetrDiagnoseErstellen::sammleAntwort(int frage) const
{
    const std::string antwort = comboAntwort(frage).text();
    const std::string_view text = getrimmt(antwort);
    if (text.empty() || text == (frage == Konsumart ? keineAngaben : keineAngabe)) {
        return {};
    }
    if (frage == ICDStelle4 && !istKurzeAntwort(text)) {
        return alsText(führendeZahl(text));
    }
    return std::string(text);
}

std::string frmBetrDiagnoseErstellen::sammleAntworten() const
{
    std::string block;
    for (int i = 1; i <= comboAntwort.bis(); ++i) {
        block += verbinde(sammleAntwort(i), trenner);
    }
    return verbinde(block, cbHD.istAn() ? "1"_t : ""_t, trenner);
}

void frmBetrDiagnoseErstellen::beiOK()
{
    if (!prüfeAntworten()) {
        return;
    }
    std::string& dsDiag = zustand().arbeitskopie.DSDiag;
    schreibeGruppeInDSDiag(dsDiag, gruppeAktuell, sammleAntworten());
    if (cbHD.istAn() && m_hdGruppeAlt > 0 && m_hdGruppeAlt != gruppeAktuell) {
        nimmHDMarke(dsDiag, m_hdGruppeAlt);
    }
    trageGruppeEin(dsDiag, gruppeAktuell);
    zustand().folge.schließe(*this);
}

void frmBetrDiagnoseErstellen::beiExit()
{
    if (zeigeMeldung("Es werden alle Veränderungen verworfen, die nach Aufruf dieses Fensters vorgenommen wurden"_t,
                     Symbol::Keins, Knöpfe::OKAbbrechen) != Antwort::OK) {
        zeigeMeldung("Níchts wurde verändert"_t, Symbol::Info);
        return;
    }
    zustand().folge.schließe(*this);
}
