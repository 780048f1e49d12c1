#pragma once

#include "export/Exportsaetze.h"
#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/moHelferlein.h"
#include "zustand/Zustand.h"

#include <string>
#include <string_view>

/// The export as it is told: for each client the whole care table, for each episode the diagnosis table from the
/// top. Slow and plain; the program's own run has to give the same.
struct ZeilenweiserExport {
    std::string kern;
    std::string diagnose;
    int exportierte = 0;

    void führeAus(std::string_view kernDat, std::string_view betrDat, std::string_view diagDat, int jahr)
    {
        Zeilen klienten(kernDat);
        while (const auto kernDS = klienten.nächste()) {
            const auto kernID = zahl(getFeld(*kernDS, 2));
            Zeilen betreuungen(betrDat);
            while (const auto betrDS = betreuungen.nächste()) {
                const bool gehört = zahl(getFeld(*betrDS, 1)) == kernID;
                const bool imJahr = liegtIm(getFeld(*betrDS, 3), getFeld(*betrDS, 4), jahr);
                if (gehört && imJahr) {
                    exportiere(*kernDS, *betrDS, kernID, diagDat);
                }
            }
        }
    }

private:
    static int zahl(std::string_view text)
    {
        const auto wert = leseGanzzahl32(text);
        if (!wert) {
            throw Laufzeitfehler("no number");
        }
        return *wert;
    }

    static int jahrVon(std::string_view datum)
    {
        return zahl(datum.size() > 4 ? datum.substr(datum.size() - 4) : datum);
    }

    static bool liegtIm(std::string_view beginn, std::string_view ende, int jahr)
    {
        if (jahr < jahrVon(beginn)) {
            return false;
        }
        return klein(ende) == "offen" || jahr <= jahrVon(ende);
    }

    void exportiere(std::string_view kernDS, std::string_view betrDS, int kernID, std::string_view diagDat)
    {
        ++exportierte;
        const auto betrID = zahl(getFeld(betrDS, 2));
        Zeilen diagnosen(diagDat);
        while (const auto diagDS = diagnosen.nächste()) {
            const bool klient = zahl(getFeld(*diagDS, 1)) == kernID;
            const bool episode = zahl(getFeld(*diagDS, 2)) == betrID;
            if (klient && episode) {
                kern += kernzeile(kernDS, betrDS, zustand().bestandsmeldung) + "\r\n";
                diagnose += diagnosezeile(betrDS, *diagDS, zustand().bestandsmeldung) + "\r\n";
                return;
            }
        }
        zeigeMeldung("Fehler im Export: zu " + std::to_string(kernID) + "-" + std::to_string(betrID) +
                     " wurde kein diagDS gefunden");
    }
};
