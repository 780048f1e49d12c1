#pragma once

#include "platform/dateien/Dateien.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Umgebung.h"
#include "zustand/Zustand.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A folder of its own for one test, gone afterwards.
class Testordner {
public:
    Testordner() : m_pfad(neuerOrdner()) {}
    Testordner(const Testordner&) = delete;
    Testordner& operator=(const Testordner&) = delete;
    ~Testordner()
    {
        std::error_code egal;
        std::filesystem::remove_all(m_pfad, egal);
    }

    const std::filesystem::path& pfad() const { return m_pfad; }

private:
    static std::filesystem::path neuerOrdner()
    {
        for (int versuch = 0; versuch < 1000; ++versuch) {
            const auto name = "tolvek7-" + std::to_string(std::rand()) + "-" + std::to_string(versuch);
            auto pfad = std::filesystem::temp_directory_path() / name;
            if (std::filesystem::create_directory(pfad)) {
                return pfad;
            }
        }
        throw std::runtime_error("no temporary folder");
    }

    std::filesystem::path m_pfad;
};

/// The outside world of a test: a fixed day, a folder of its own, answers that were queued before, and a record
/// of all boxes. A box with a choice but without a queued answer fails the test.
class Testumgebung : public Umgebung {
public:
    /// With a program folder of one's own, or a fresh one that goes with the object.
    explicit Testumgebung(std::unique_ptr<Dateizugriff> zugriff = std::make_unique<Dateizugriff>(),
                          std::filesystem::path programmordner = {})
        : m_dateien(std::move(zugriff)), m_programmordner(std::move(programmordner))
    {
        if (m_programmordner.empty()) {
            m_ordner.emplace();
            m_programmordner = m_ordner->pfad();
        }
    }

    Datum datum{2007, 8, 2};
    bool ersteInstanz = true;
    bool tabellenprogramm = true;
    bool tabellenprogrammStartet = true;
    bool muster = false;
    std::optional<std::filesystem::path> installationsordner; ///< nothing: the program folder
    std::deque<Antwort> antworten;
    std::vector<Meldung> meldungen;
    std::deque<std::optional<std::filesystem::path>> dateiwahlen;
    std::function<void(Arbeitsmappe&)> beiMappe;
    /// Told at every box, before it is answered.
    std::function<void(const Meldung&)> beiMeldung;

    /// The texts of all boxes so far.
    std::vector<std::string> meldungstexte() const
    {
        std::vector<std::string> texte;
        for (const auto& meldung : meldungen) {
            texte.push_back(meldung.text);
        }
        return texte;
    }

    Datum heute() override { return datum; }
    std::filesystem::path programmordner() override { return m_programmordner; }
    std::filesystem::path installation() override { return installationsordner.value_or(m_programmordner); }
    bool istMuster() override { return muster; }
    bool istErsteInstanz(const std::filesystem::path& /*datenordner*/) override { return ersteInstanz; }
    Dateien& dateien() override { return m_dateien; }
    Antwort zeigeMeldung(const Meldung& meldung) override
    {
        meldungen.push_back(meldung);
        if (beiMeldung) {
            beiMeldung(meldung);
        }
        return meldung.knöpfe == Knöpfe::OK ? Antwort::OK : nächste(antworten, meldung.text);
    }
    std::optional<std::filesystem::path> wähleDatei(const Dateiwahl&) override
    {
        return nächste(dateiwahlen, "file dialogue");
    }
    bool findeTabellenprogramm() override { return tabellenprogramm; }
    bool übergibMappe(Arbeitsmappe& mappe, const std::function<void(double)>& fortschritt) override
    {
        fortschritt(0.5);
        if (beiMappe) {
            beiMappe(mappe);
        }
        return tabellenprogrammStartet;
    }
    Größe bildschirmgröße() override { return {28800, 16200}; }
    void zeichne() override {}
    void lasseEreignisseZu() override {}

private:
    template <class T> static T nächste(std::deque<T>& schlange, const std::string& wofür)
    {
        if (schlange.empty()) {
            throw std::logic_error("no answer queued for: " + wofür);
        }
        T erstes = std::move(schlange.front());
        schlange.pop_front();
        return erstes;
    }

    std::optional<Testordner> m_ordner;
    Dateien m_dateien;
    std::filesystem::path m_programmordner;
};

/// A program run for a test: the state with its paths below the test's folder, without screens. `legeTabellenAn`
/// makes what a first start makes.
class Testlauf {
public:
    explicit Testlauf(std::unique_ptr<Dateizugriff> zugriff = std::make_unique<Dateizugriff>())
        : umgebung(std::move(zugriff)), stand(umgebung), m_platz(stand)
    {
        stand.titel = "Tolvek7 v7.0.0";
        stand.pfade = bildePfade(umgebung.programmordner());
        stand.anzahlKernFelder = 11;
        stand.anzahlBetrFelder = 192;
    }

    Testumgebung umgebung;
    Zustand stand;

    const Pfade& pfade() const { return stand.pfade; }

    void legeTabellenAn() const
    {
        for (const auto& pfad :
             {pfade().kernDat, pfade().betrDat, pfade().diagDat, pfade().kernBak, pfade().betrBak, pfade().diagBak}) {
            schreibe(pfad, "");
        }
    }

    /// Writes the bytes past the program's file layer, as another hand would.
    static void schreibe(const std::filesystem::path& pfad, std::string_view inhalt)
    {
        std::filesystem::create_directories(pfad.parent_path());
        std::ofstream strom(pfad, std::ios::binary | std::ios::trunc);
        strom.write(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
        if (!strom.flush()) {
            throw std::runtime_error("cannot write " + pfad.string());
        }
    }
    /// The same, each line ended by carriage return and line feed.
    static void schreibeZeilen(const std::filesystem::path& pfad, const std::vector<std::string>& zeilen)
    {
        schreibe(pfad, alsInhalt(zeilen));
    }
    static std::string lies(const std::filesystem::path& pfad)
    {
        std::ifstream strom(pfad, std::ios::binary);
        if (!strom) {
            throw std::runtime_error("cannot read " + pfad.string());
        }
        std::string inhalt(std::filesystem::file_size(pfad), '\0');
        strom.read(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
        return inhalt;
    }
    static std::string alsInhalt(const std::vector<std::string>& zeilen)
    {
        std::string inhalt;
        for (const auto& zeile : zeilen) {
            inhalt.append(zeile).append("\r\n");
        }
        return inhalt;
    }

private:
    Zustandsplatz m_platz;
};

/// A record line from its fields.
inline std::string satz(std::initializer_list<std::string_view> felder)
{
    std::string zeile;
    for (const auto& feld : felder) {
        if (&feld != felder.begin()) {
            zeile.push_back(trenner);
        }
        zeile.append(feld);
    }
    return zeile;
}
