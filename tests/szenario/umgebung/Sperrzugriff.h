#pragma once

#include "platform/dateien/Dateien.h"

#include <filesystem>
#include <memory>
#include <set>
#include <vector>

/// The operations of this system for a scenario: the next attempt to write a locked file fails, by opening it
/// or by renaming onto it. Nothing is flushed to the disk, since the folder of a scenario is thrown away.
class Sperrzugriff : public Dateizugriff {
public:
    explicit Sperrzugriff(std::unique_ptr<Dateizugriff> system) : m_system(std::move(system)) {}

    void sperre(const std::filesystem::path& pfad) { m_gesperrt.insert(pfad.lexically_normal()); }

    std::unique_ptr<Dateiinhalt> lies(const std::filesystem::path& pfad) override { return m_system->lies(pfad); }
    std::unique_ptr<OffeneDatei> öffne(const std::filesystem::path& pfad, Öffnung wie) override;
    void benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach) override;
    void lösche(const std::filesystem::path& pfad) override { m_system->lösche(pfad); }
    void legeOrdnerAn(const std::filesystem::path& pfad) override { m_system->legeOrdnerAn(pfad); }
    void entferneOrdner(const std::filesystem::path& pfad) override { m_system->entferneOrdner(pfad); }
    void sichereOrdnerAufPlatte(const std::filesystem::path& /*pfad*/) override {}
    bool istDatei(const std::filesystem::path& pfad) override { return m_system->istDatei(pfad); }
    bool istOrdner(const std::filesystem::path& pfad) override { return m_system->istOrdner(pfad); }
    std::vector<std::filesystem::path> dateienIn(const std::filesystem::path& ordner) override
    {
        return m_system->dateienIn(ordner);
    }

private:
    void prüfe(const std::filesystem::path& pfad);

    std::unique_ptr<Dateizugriff> m_system;
    std::set<std::filesystem::path> m_gesperrt;
};
