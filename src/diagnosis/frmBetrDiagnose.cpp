#include "diagnosis/frmBetrDiagnose.h"

#include "platform/text/Zahl.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosesatz.h"
#include "satz/WeitereDiagnosen.h"
#include "satz/moHelferlein.h"
#include "zustand/Fehlerort.h"
#include "zustand/Zustand.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

/// The place of a care field in DSBetrDiag.
constexpr int platz(int feldnummer)
{
    return feldnummer - feld::betr::hdOhne + 1;
}

/// The combo boxes with the care fields that they show.
template <class Form> auto wahlfelder(Form& form)
{
    using namespace feld::betr;
    return std::array{std::pair{icdPoly, &form.comboICDPoly}, std::pair{hivInfekt, &form.comboHIVInfekt},
                      std::pair{hepatB, &form.comboHepatB}, std::pair{hepatC, &form.comboHepatC}};
}

std::string& DSDiag()
{
    return zustand().arbeitskopie.DSDiag;
}

std::string& DSBetrDiag()
{
    return zustand().arbeitskopie.DSBetrDiag;
}

constexpr std::string_view wahr = "Wahr"_t;
constexpr std::string_view falsch = "Falsch"_t;

bool istWahr(std::string_view text)
{
    return klein(text) == klein(wahr);
}

/// None true leaves none marked; of several the last one is marked.
void zeigeOptionen(Elementreihe<Optionsfeld>& optionen, std::string_view satz, int ersterPlatz)
{
    for (int i = optionen.von(); i <= optionen.bis(); ++i) {
        optionen(i).setze(istWahr(getFeld(satz, ersterPlatz + i)));
    }
}

std::string sammleOptionen(const Elementreihe<Optionsfeld>& optionen)
{
    std::string ergebnis;
    for (const Optionsfeld& option : optionen) {
        ergebnis += verbinde(option.istAn() ? wahr : falsch, trenner);
    }
    return ergebnis;
}

/// The page offers "ja" before "nein", the other way round than the data set lists the answers; staff know
/// the box that way.
std::vector<std::string> jaVorNein(std::vector<std::string> texte)
{
    std::ranges::reverse(texte.begin() + 1, texte.end());
    return texte;
}

} // namespace

void frmBetrDiagnose::beiÖffnung()
{
    m_alteDSDiag = DSDiag();
    m_alteDSBetrDiag = DSBetrDiag();
    richteEin();
    beiAktivierung();
    setzeFokus(&ersteFrage()); // not the scroll bar of the listing above it
}

void frmBetrDiagnose::beiAktivierung()
{
    prüfeBitfeld();
    setFrmData();
}

Element& frmBetrDiagnose::ersteFrage()
{
    auto& grund = optHDohne(optHDohne.von());
    return istErreichbar(grund) ? grund : optIVKonsum(optIVKonsum.von());
}

/// A bit field that is no number would come up somewhere in the middle of the page; here its record can be named.
void frmBetrDiagnose::prüfeBitfeld()
{
    const auto& satz = zustand().arbeitskopie.aktDiagDS;
    const Satzschlüssel schlüssel{static_cast<std::int32_t>(führendeZahl(getFeld(satz, feld::diag::kernID))),
                                  static_cast<std::int32_t>(führendeZahl(getFeld(satz, feld::diag::betrID)))};
    mitSatzort(Tabelle::Diag, schlüssel, feld::diag::bitfeld, [] { leseBitfeld(DSDiag()); });
}

void frmBetrDiagnose::richteEin()
{
    const Arbeitskopie& kopie = zustand().arbeitskopie;
    setzeTitel(zustand().titel);
    lblHeader.setzeText("Diagnose und Konsum"_t);
    lblName.setzeText(klientenname(kopie.aktKernDS));
    lblBetrBeg.setzeText(kopie.betrBeg);
    lblBetrEnd.setzeText(kopie.betrEnd);
    setzeRollbereich();
    VScroll1.setzeWert(0);
    for (const auto& [feldnummer, combo] : wahlfelder(*this)) {
        combo->setzeListe(auswahlliste(feldAus(betreuungsfelder(), feldnummer)));
    }
    comboICDPoly.setzeListe(jaVorNein(comboICDPoly.liste()));
}

void frmBetrDiagnose::setFrmData()
{
    zeigeBetrDiag();
    for (int i = 1; i <= tbandereDiagnose.bis(); ++i) {
        tbandereDiagnose(i).setzeText(getFeld(DSDiag(), weitereDiagnose(i)));
    }
    zeigeDiagnosen();
    const bool hatHauptdiagnose = getHDGruppenNr(DSDiag()) != -1;
    cmdIsHDGestellt.zeige(hatHauptdiagnose);
    if (hatHauptdiagnose) {
        optHDohne(0).setze(true);
    }
}

void frmBetrDiagnose::zeigeBetrDiag()
{
    zeigeOptionen(optHDohne, DSBetrDiag(), platz(feld::betr::hdOhne));
    for (const auto& [feldnummer, combo] : wahlfelder(*this)) {
        combo->setzeText(getFeld(DSBetrDiag(), platz(feldnummer)));
    }
    zeigeOptionen(optIVKonsum, DSBetrDiag(), platz(feld::betr::ivKonsum));
}

std::string frmBetrDiagnose::sammleBetrDiag()
{
    if (!comboICDPoly.istFrei()) {
        comboICDPoly.setzeText("keine Angaben"_t);
    }
    return verbinde(sammleOptionen(optHDohne), comboICDPoly.text(), trenner, comboHIVInfekt.text(), trenner,
                    comboHepatB.text(), trenner, comboHepatC.text(), trenner, sammleOptionen(optIVKonsum));
}

std::string frmBetrDiagnose::sammleDSDiag() const
{
    std::string weitere;
    for (const Textfeld& feld : tbandereDiagnose) {
        weitere += verbinde(feld.text(), trenner);
    }
    return verbinde(felder(DSDiag(), blockposition(1, Konsumart), weitereDiagnose(0)), weitere,
                    getFeld(DSDiag(), bitfeldposition), trenner);
}

void frmBetrDiagnose::sammle()
{
    DSBetrDiag() = sammleBetrDiag();
    DSDiag() = sammleDSDiag();
}

void frmBetrDiagnose::steuereNeueDiagnose(bool neu)
{
    if (neu) {
        m_gruppeGemerkt = gruppeAktuell;
        zeigeCodeAuswahl();
    } else if (gruppeAktuell == -1) {
        gruppeAktuell = m_gruppeGemerkt;
    } else {
        // The page has come up again behind the chooser, which always fills it anew: what is collected now are
        // the working strings, not what stood on the page before.
        setFrmData();
        zeigeDiagnoseErstellen();
    }
}

void frmBetrDiagnose::zeigeCodeAuswahl()
{
    auto& auswahl = m_auswahl.neu();
    zustand().folge.öffneÜber(*this, auswahl, [this, &auswahl] {
        gruppeAktuell = auswahl.gruppe();
        steuereNeueDiagnose(false);
    });
    zustand().folge.verberge(*this);
}

void frmBetrDiagnose::zeigeDiagnoseErstellen()
{
    sammle();
    zustand().folge.öffneÜber(*this, m_erstellen.neu(gruppeAktuell));
    zustand().folge.verberge(*this);
}

void frmBetrDiagnose::beiBearbeiten()
{
    const int zeile = getMarkierteZeile();
    if (zeile == -1 || !verlasseFeld()) {
        return;
    }
    gruppeAktuell = static_cast<std::int16_t>(gruppeZuName(lblProblem(zeile).text()));
    zeigeDiagnoseErstellen();
}

void frmBetrDiagnose::beiLöschen()
{
    const int zeile = getMarkierteZeile();
    if (zeile == -1) {
        return;
    }
    const std::string name = lblProblem(zeile).text();
    if (zeigeMeldung(verbinde("Eintrag: "_t, name, " wird gelöscht"_t), Symbol::Keins, Knöpfe::OKAbbrechen) !=
        Antwort::OK) {
        zeigeMeldung("Nichts wurde verändert"_t);
        return;
    }
    löscheGruppe(DSDiag(), gruppeZuName(name));
    zeigeDiagnosen();
}

bool frmBetrDiagnose::prüfeWeitereDiagnose(int nummer)
{
    Textfeld& feld = tbandereDiagnose(nummer);
    std::string& angenommen = m_angenommen.at(static_cast<std::size_t>(nummer - 1));
    const std::string text = feld.text();
    if (istWeitereDiagnose(nummer, text)) {
        angenommen = text;
        return true;
    }
    zeigeMeldung(meldungZuWeitererDiagnose(nummer), Symbol::Info);
    feld.setzeText(angenommen);
    return false;
}

/// The leave test of the field that has the focus, for actions that a key or a double click starts without
/// moving the focus.
bool frmBetrDiagnose::verlasseFeld()
{
    return fokus() == nullptr || !fokus()->beiVerlassen || fokus()->beiVerlassen();
}

void frmBetrDiagnose::beiOK()
{
    if (!verlasseFeld()) {
        return;
    }
    sammle();
    zustand().folge.schließe(*this);
}

void frmBetrDiagnose::beiExit()
{
    if (sammleBetrDiag() != m_alteDSBetrDiag || sammleDSDiag() != m_alteDSDiag) {
        const auto antwort = zeigeMeldung(
            "Sollen alle Veränderungen, die nach Aufruf dieses Fensters vorgenommen wurden, verworfen werden ?"_t,
            Symbol::Keins, Knöpfe::OKAbbrechen);
        if (antwort != Antwort::OK) {
            return;
        }
    }
    DSBetrDiag() = m_alteDSBetrDiag;
    DSDiag() = m_alteDSDiag;
    zustand().folge.schließe(*this);
}
