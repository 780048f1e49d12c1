#pragma once

#include "platform/dateien/Dateien.h"
#include "umgebung/Scheitern.h"
#include "umgebung/Sperrzugriff.h"

#include "platform/mappe/Arbeitsmappe.h"
#include "platform/umgebung/Umgebung.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>

/// The outside world as a scenario sets it: date, folder, instance test, answers to boxes and file dialogues.
/// Boxes are recorded until the scenario has spoken of them; the workbook that is handed over is kept.
class Szenarioumgebung : public Umgebung {
public:
    explicit Szenarioumgebung(std::filesystem::path programmordner);

    Datum heute() override { return m_heute; }
    std::filesystem::path programmordner() override { return m_programmordner; }
    bool istErsteInstanz(const std::filesystem::path& datenordner) override;
    Dateien& dateien() override { return m_dateien; }
    Antwort zeigeMeldung(const Meldung& meldung) override;
    std::optional<std::filesystem::path> wähleDatei(const Dateiwahl& wahl) override;
    bool findeTabellenprogramm() override { return m_tabellenprogramm; }
    bool übergibMappe(Arbeitsmappe& mappe, const std::function<void(double)>& fortschritt) override
    {
        fortschritt(1);
        m_mappe = std::move(mappe);
        return true;
    }
    Größe bildschirmgröße() override;
    void zeichne() override;
    void lasseEreignisseZu() override { zeichne(); }

    // what the scenario sets
    void setzeHeute(const Datum& heute) { m_heute = heute; }
    void sperre(const std::filesystem::path& pfad) { m_zugriff->sperre(pfad); }
    /// The process dies after so many file operations that change something, if it comes so far.
    void stirbNach(int operationen) { m_zugriff->stirbNach(operationen); }
    bool istTot() const { return m_zugriff->istTot(); }
    void lebe() { m_zugriff->lebe(); }
    void meldeZweiteInstanz() { m_zweiteInstanz = true; }
    void entferneTabellenprogramm() { m_tabellenprogramm = false; }
    void stelleAntwortBereit(Antwort antwort) { m_antworten.push_back(antwort); }
    /// Nothing: the dialogue is cancelled.
    void stelleDateiBereit(std::optional<std::filesystem::path> datei) { m_dateiwahlen.push_back(std::move(datei)); }
    /// Answers a box that offers a choice, or a file dialogue, for which nothing is queued; without them that
    /// is a failure of the scenario.
    std::function<Antwort(const Meldung&)> antwortgeber;
    std::function<std::optional<std::filesystem::path>()> dateigeber;
    /// How the surface draws at once; nothing without a toolkit.
    std::function<void()> zeichnung;

    /// The boxes not yet spoken of, oldest first.
    std::deque<Meldung> meldungen;
    /// The workbook handed over last, nullptr for none.
    const Arbeitsmappe* mappe() const { return m_mappe ? &*m_mappe : nullptr; }
    /// Throws the first failure that came up while the program was running (a box without an answer).
    void wirfVersäumnis();
    /// Throws for answers that nobody asked for.
    void prüfeVorrat() const;

private:
    Antwort beantworte(const Meldung& meldung);

    std::filesystem::path m_programmordner;
    Datum m_heute{2007, 8, 2};
    Sperrzugriff* m_zugriff;
    Dateien m_dateien;
    bool m_zweiteInstanz = false;
    bool m_tabellenprogramm = true;
    std::deque<Antwort> m_antworten;
    std::deque<std::optional<std::filesystem::path>> m_dateiwahlen;
    std::optional<Arbeitsmappe> m_mappe;
    std::optional<Scheitern> m_versäumnis;
};
