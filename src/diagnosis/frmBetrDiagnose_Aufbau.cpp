// Captions, arrangement and wiring of the diagnosis page; its rules stand in frmBetrDiagnose.cpp.

#include "diagnosis/frmBetrDiagnose.h"
#include "zustand/Zustand.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr double zeilenhöhe = 375; // twips
constexpr int sichtbareZeilen = 4;

constexpr std::array gründe{"keine Angaben"_t,
                            "Kein Diagnosekriterium nach ICD-10 erfüllt, aber riskanter Konsum"_t,
                            "Kein Diagnosekriterium nach ICD-10 erfüllt und auch kein riskanter Konsum"_t,
                            "Keine ausreichenden Informationen für Diagnosestellung nach ICD-10 vorhanden"_t,
                            "Keine ausreichende Qualifikation für Diagnosestellung nach ICD-10 vorhanden"_t,
                            "Andere Gründe"_t};

constexpr std::array ivAntworten{"keine Angaben"_t, "Nein, nie"_t,
                                 "Ja, aber nicht in den letzten 30 Tagen vor Betreuungsbeginn"_t,
                                 "Ja, (auch) in den letzten 30 Tagen vor Betreuungsbeginn"_t};

template <std::size_t N>
void bereiteOptionenVor(Elementreihe<Optionsfeld>& optionen, Optionsgruppe& gruppe,
                        const std::array<std::string_view, N>& texte)
{
    for (int i = optionen.von(); i <= optionen.bis(); ++i) {
        optionen(i).setzeText(texte.at(static_cast<std::size_t>(i)));
        optionen(i).trittBei(gruppe);
    }
}

template <class E> Anordnung untereinander(Elementreihe<E>& reihe)
{
    std::vector<Anordnung> teile;
    for (E& feld : reihe) {
        teile.push_back(anordnung::element(feld));
    }
    return anordnung::spalte(std::move(teile));
}

Anordnung platzDesBuchstabens(std::string_view buchstabe)
{
    return anordnung::breit(anordnung::text(buchstabe), 1);
}

constexpr std::array<std::string_view, diagnosearten.size()> überschriften{
    "Psychiatrische Diagnosen"_t, "Neurologische Diagnosen"_t, "Andere wichtige Diagnosen"_t};

/// The fields of each kind side by side, each behind its letter.
std::vector<Anordnung> diagnosereihen(Elementreihe<Textfeld>& felder)
{
    std::vector<Anordnung> reihen;
    int nummer = 0;
    for (std::size_t art = 0; art < diagnosearten.size(); ++art) {
        std::vector<Anordnung> teile;
        for (int i = 0; i < diagnosearten[art].anzahl; ++i) {
            teile.push_back(platzDesBuchstabens(diagnosearten[art].buchstabe));
            teile.push_back(anordnung::element(felder(++nummer), 5));
        }
        reihen.push_back(anordnung::feld(überschriften[art], std::move(teile)));
    }
    return reihen;
}

std::vector<Tabellenspalte> spaltenDerListung()
{
    const auto spalte = [](std::string_view titel, double breite, std::string_view gruppe = {}) {
        return Tabellenspalte{std::string(titel), std::string(gruppe), nullptr, breite};
    };
    constexpr std::string_view konsumtage = "Anzahl Konsumtage\r\nletzte 30 Tage ..."_t;
    return {spalte("Problem"_t, 0),
            spalte("Überwiegende Konsumart"_t, 12),
            spalte("...vor BetrBeg"_t, 5, konsumtage),
            spalte("...am BetrEnd"_t, 5, konsumtage),
            spalte("ICD10 Stelle\r\n4 und 5"_t, 5),
            spalte("Alter bei Störungs- beginn"_t, 5),
            spalte("Riskanter Konsum"_t, 5),
            spalte("Alter Erst- konsum"_t, 5)};
}

} // namespace

frmBetrDiagnose::frmBetrDiagnose() : Bildschirm("frmBetrDiagnose"_t)
{
    bereiteOptionenVor(optHDohne, m_hdOhne, gründe);
    bereiteOptionenVor(optIVKonsum, m_ivKonsum, ivAntworten);
    frameVorne.setzeHöhe(zeilenhöhe * letzteZeile);
    frameHinten.setzeHöhe(zeilenhöhe * sichtbareZeilen);
    cmdIsHDGestellt.verberge();
    ordneAn();
    bestimmeRegeln();
}

void frmBetrDiagnose::ordneAn()
{
    kopfband.titel = &lblHeader;
    kopfband.name = &lblName;
    kopfband.werte = {{std::string("Betreuungszeitraum von:"_t), &lblBetrBeg}, {std::string("bis:"_t), &lblBetrEnd}};
    aufbau = anordnung::spalte({listungskarte(), antwortkarten()});
    leiste.links = {&cmdMemo};
    leiste.rechts = {&cmdOK, &cmdExit};
    beiEscape = &cmdExit;
}

Anordnung frmBetrDiagnose::listungskarte()
{
    std::vector<Anordnung> zeilen;
    for (int zeile = 0; zeile <= letzteZeile; ++zeile) {
        std::vector<Anordnung> zellen;
        for (Elementreihe<Beschriftung>* spalte : m_spalten) {
            zellen.push_back(anordnung::element((*spalte)(zeile)));
        }
        zeilen.push_back(anordnung::zeile(std::move(zellen)));
    }
    return anordnung::karte(
        {}, anordnung::spalte(
                {anordnung::listung(spaltenDerListung(), "Hauptdiagnose"_t, "Diagnosen"_t, std::move(zeilen), VScroll1,
                                    frameVorne, frameHinten),
                 anordnung::zeile({anordnung::element(cmdNeueDiagnose), anordnung::element(cmdDiagnoseBearbeiten),
                                   anordnung::dehnung(), anordnung::element(cmdDiagnoseLöschen)})}));
}

Anordnung frmBetrDiagnose::antwortkarten()
{
    Anordnung links =
        anordnung::spalte({anordnung::karte(frameHDohne, anordnung::decke(untereinander(optHDohne), cmdIsHDGestellt)),
                           anordnung::karte(frameivKonsum, untereinander(optIVKonsum))});
    auto weitere = diagnosereihen(tbandereDiagnose);
    weitere.push_back(anordnung::feld(lblICDPoly, {platzDesBuchstabens({}), anordnung::element(comboICDPoly, 10)}));
    Anordnung diagnosen = anordnung::formular(std::move(weitere), 11);
    Anordnung infektionen = anordnung::formular({anordnung::feld("HIV-Infektionsstatus"_t, comboHIVInfekt, 10),
                                                 anordnung::feld("Hepatitis B - Infektionsstatus"_t, comboHepatB, 10),
                                                 anordnung::feld("Hepatitis C - Infektionsstatus"_t, comboHepatC, 10)},
                                                12);
    Anordnung rechts =
        anordnung::spalte({anordnung::karte("ICD-10-Diagnosen"_t, std::move(diagnosen), {&lblWeitereICD}),
                           anordnung::karte("Infektionsstatus"_t, std::move(infektionen))});
    return anordnung::karten({std::move(links), std::move(rechts)});
}

void frmBetrDiagnose::bestimmeRegeln()
{
    for (int zeile = 0; zeile <= letzteZeile; ++zeile) {
        bestimmeZeilenregeln(zeile);
    }
    for (int i = 1; i <= tbandereDiagnose.bis(); ++i) {
        tbandereDiagnose(i).beiVerlassen = [this, i] { return prüfeWeitereDiagnose(i); };
    }
    VScroll1.beiÄnderung = [this] { frameVorne.setzeOben(-VScroll1.wert()); };
    VScroll1.beiLeertaste = [this] { markiereNächsteZeile(); };
    frameVorne.beiGrößenänderung = [this] { setzeRollbereich(); };
    frameHinten.beiGrößenänderung = [this] { setzeRollbereich(); };
    cmdNeueDiagnose.beiKlick = [this] { steuereNeueDiagnose(true); };
    cmdDiagnoseBearbeiten.beiKlick = [this] { beiBearbeiten(); };
    cmdDiagnoseLöschen.beiKlick = [this] { beiLöschen(); };
    cmdMemo.beiKlick = [this] { zustand().zeigeMemo(*this, false); };
    cmdOK.beiKlick = [this] { beiOK(); };
    cmdExit.beiKlick = [this] { beiExit(); };
}

void frmBetrDiagnose::bestimmeZeilenregeln(int zeile)
{
    for (Elementreihe<Beschriftung>* spalte : m_spalten) {
        (*spalte)(zeile).beiKlick = [this, zeile] { beiZeilenklick(zeile); };
        (*spalte)(zeile).beiDoppelklick = [this, zeile] {
            beiZeilenklick(zeile);
            beiBearbeiten();
        };
    }
}
