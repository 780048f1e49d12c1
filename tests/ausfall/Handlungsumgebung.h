#pragma once

#include "hilfen/Schreibhandlungen.h"
#include "platform/dateien/Dateien.h"
#include "platform/dateien/Ordnersperre.h"
#include "platform/text/Eingabe.h"
#include "platform/umgebung/Umgebung.h"
#ifdef AUSFALL_CALC
#include "platform/calc/Rechenprogramm.h"
#endif

#include <functional>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>

/// The outside world of a program run in a process of its own, for the fault tests: the real files and the real lock.
/// It says on the standard output what happens, and answers each box with its confirming button.

inline void sage(std::string_view wort, std::string_view text = {})
{
    std::string zeile(text);
    for (auto& zeichen : zeile) {
        zeichen = zeichen == '\r' || zeichen == '\n' ? ' ' : zeichen;
    }
    std::cout << wort << (zeile.empty() ? "" : " ") << alsUtf8(zeile) << std::endl;
}

class Handlungsumgebung : public Umgebung {
public:
    Handlungsumgebung(std::filesystem::path ordner, std::unique_ptr<Dateizugriff> zugriff)
        : m_ordner(std::move(ordner)), m_dateien(std::move(zugriff))
    {}

    Datum heute() override { return {2007, 8, 2}; }
    std::filesystem::path programmordner() override { return m_ordner; }
    bool istErsteInstanz(const std::filesystem::path& datenordner) override
    {
        m_sperre = sperreDatenordner(m_dateien, datenordner);
        return m_sperre.istOffen();
    }
    Dateien& dateien() override { return m_dateien; }
    Antwort zeigeMeldung(const Meldung& meldung) override
    {
        sage("MELDUNG", meldung.text);
        return meldung.knöpfe == Knöpfe::JaNein ? Antwort::Ja : Antwort::OK;
    }
    std::optional<std::filesystem::path> wähleDatei(const Dateiwahl& /*wahl*/) override { return std::nullopt; }
#ifdef AUSFALL_CALC
    bool findeTabellenprogramm() override
    {
        return m_rechenprogramm.istDa();
    }
    bool übergibMappe(Arbeitsmappe& mappe, const std::function<void(double)>& fortschritt) override
    {
        return m_rechenprogramm.öffne(mappe, fortschritt);
    }
#else
    bool findeTabellenprogramm() override
    {
        return false;
    }
    bool übergibMappe(Arbeitsmappe& /*mappe*/, const std::function<void(double)>& /*fortschritt*/) override
    {
        return false;
    }
#endif
    Größe bildschirmgröße() override
    {
        return {28800, 16200};
    }
    void zeichne() override
    {
        beiZeichnen();
    }
    void lasseEreignisseZu() override
    {
        beiZeichnen();
    }

    std::function<void()> beiZeichnen = [] {};

private:
    std::filesystem::path m_ordner;
    Dateien m_dateien;
    Systemgriff m_sperre;
#ifdef AUSFALL_CALC
    Rechenprogramm m_rechenprogramm;
#endif
};

/// Starts the program, says when the main menu stands, and lets `tue(Hand&)` act; `danach()` speaks when it has acted.
/// The exit status: that of the run, 2 when `tue` knows no such action.
template <class Tue, class Danach> int starteUndTue(Umgebung& umgebung, const Tue& tue, const Danach& danach)
{
    Programm programm(umgebung);
    programm.starte();
    auto& ablauf = programm.zustand().ablauf;
    if (!ablauf.läuft()) {
        return ablauf.status();
    }
    sage("HAUPTMENÜ");
    Hand hand(programm);
    if (!tue(hand)) {
        return 2;
    }
    danach(ablauf.läuft());
    return ablauf.status();
}
