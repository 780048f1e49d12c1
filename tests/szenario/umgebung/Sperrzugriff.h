#pragma once

#include "platform/dateien/Dateizugriff.h"

#include <filesystem>
#include <set>

/// The operations of this system for a scenario: the next attempt to write a locked file fails, by opening it, by
/// writing its new version beside it, or by renaming onto it. Nothing is flushed to the disk, since the folder of a
/// scenario is thrown away.
class Sperrzugriff : public Zugriffsweiche {
public:
    using Zugriffsweiche::Zugriffsweiche;

    void sperre(const std::filesystem::path& pfad) { m_gesperrt.insert(pfad.lexically_normal()); }

    std::unique_ptr<OffeneDatei> öffne(const std::filesystem::path& pfad, Öffnung wie) override;
    void benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach) override;
    void sichereOrdnerAufPlatte(const std::filesystem::path& /*pfad*/) override {}

private:
    void prüfe(std::filesystem::path pfad);

    std::set<std::filesystem::path> m_gesperrt;
};
