#pragma once

#include "platform/bildschirm/Bildschirm.h"

#include <string_view>

class Arbeitsmappe;

/// Sends the whole data set to a spreadsheet program: a workbook with one sheet for each table and an
/// evaluation sheet. It runs from start to end as soon as it is in view; only its status text and its bar are
/// drawn meanwhile. The bar shows how much of the time is over: its steps take very different times, so what is
/// drawn follows the work within them. It changes no data.
class frmZuExcel : public Bildschirm {
public:
    Beschriftung lblHeader{*this, "lblHeader"_t, "Datenmenge > Excel"_t};
    Beschriftung lblText{*this, "lblText"_t};
    Beschriftung lblStatus{*this, "lblStatus"_t};
    Fortschrittsbalken ProgressBar1{*this, "ProgressBar1"_t};
    Schaltfläche cmdFertig{*this, "cmdFertig"_t};

    frmZuExcel();

private:
    void beiÖffnung() override;
    void platziere();
    void schreibeTabellen();
    void zeigeFortschritt(std::string_view text, bool zurücksetzen = false);
    void zeigeDatensatz(int nummer, int anzahl);
    bool übergib(Arbeitsmappe& mappe);
    void brichAb();

    bool m_abbruch = false;
    int m_fortschritt = 0;
};
