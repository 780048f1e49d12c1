#pragma once

#include "platform/dateien/Dateien.h"
#include "platform/umgebung/Umgebung.h"
#include "zustand/Zustand.h"

/// A world in which nobody answers: every box counts as seen.
class Stummeumgebung : public Umgebung {
public:
    Datum heute() override { return {2007, 8, 2}; }
    std::filesystem::path programmordner() override { return {}; }
    bool istErsteInstanz(const std::filesystem::path& /*datenordner*/) override { return true; }
    Dateien& dateien() override { return m_dateien; }
    Antwort zeigeMeldung(const Meldung& /*meldung*/) override { return Antwort::OK; }
    std::optional<std::filesystem::path> wähleDatei(const Dateiwahl& /*wahl*/) override { return std::nullopt; }
    bool findeTabellenprogramm() override { return false; }
    bool übergibMappe(Arbeitsmappe& /*mappe*/, const std::function<void(double)>& /*fortschritt*/) override
    {
        return false;
    }
    Größe bildschirmgröße() override { return {20490, 11520}; }
    void zeichne() override {}
    void lasseEreignisseZu() override {}

private:
    Dateien m_dateien;
};
