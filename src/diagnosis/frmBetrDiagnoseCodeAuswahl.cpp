#include "diagnosis/frmBetrDiagnoseCodeAuswahl.h"

#include "satz/Diagnosesatz.h"
#include "zustand/Zustand.h"

#include <string>
#include <utility>
#include <vector>

namespace {

std::vector<std::string> zeilenDesKatalogs()
{
    std::vector<std::string> zeilen;
    for (std::size_t gruppe = 1; gruppe < aryProblem.size(); ++gruppe) {
        zeilen.push_back(verbinde(aryICD[gruppe], trenner, aryProblem[gruppe]));
    }
    return zeilen;
}

} // namespace

frmBetrDiagnoseCodeAuswahl::frmBetrDiagnoseCodeAuswahl() : Bildschirm("frmBetrDiagnoseCodeAuswahl"_t)
{
    istKindfenster = true;
    breiteEm = 34;
    kopfband.titel = &lblName;
    aufbau = anordnung::füllend(anordnung::karte({}, anordnung::füllend(anordnung::element(lvwDiagCodes))));
    leiste.rechts = {&cmdOK, &cmdExit};
    beiEingabe = &cmdOK;
    beiEscape = &cmdExit;

    lvwDiagCodes.beiDoppelklick = [this] { beiOK(); };
    cmdOK.beiKlick = [this] { beiOK(); };
    cmdExit.beiKlick = [this] { zustand().folge.schließe(*this); };
}

void frmBetrDiagnoseCodeAuswahl::beiÖffnung()
{
    setzeTitel(verbinde(zustand().titel, " - Diagnose auswählen"_t));
    lvwDiagCodes.setzeZeilen(zeilenDesKatalogs());
    lvwDiagCodes.wähleUndZeige(1);
}

/// Only the stored bit counts: a group that is listed for its answers alone is taken as new.
bool frmBetrDiagnoseCodeAuswahl::willBearbeiten(int gruppe) const
{
    if (!hatBit(leseBitfeld(zustand().arbeitskopie.DSDiag), gruppe)) {
        return true;
    }
    const std::string_view name = lvwDiagCodes.zelle(lvwDiagCodes.auswahl(), 2);
    return zeigeMeldung(verbinde("Für "_t, name, " wurde schon eine Diagnose gestellt. Bearbeiten ?"_t), Symbol::Keins,
                        Knöpfe::OKAbbrechen) == Antwort::OK;
}

void frmBetrDiagnoseCodeAuswahl::beiOK()
{
    const auto gruppe = static_cast<std::int16_t>(lvwDiagCodes.auswahl());
    if (gruppe == 0) {
        return;
    }
    if (!willBearbeiten(gruppe)) {
        zeigeMeldung("Nichts wurde verändert"_t, Symbol::Info);
        return;
    }
    m_gruppe = gruppe;
    zustand().folge.schließe(*this);
}
