#pragma once

#include "platform/dateien/Dateizugriff.h"

#include <filesystem>
#include <optional>
#include <set>

/// The operations of this system for a scenario: the next attempt to write a locked file fails, by opening it, by
/// writing its new version beside it, or by renaming onto it. Nothing is flushed to the disk, since the folder of a
/// scenario is thrown away. It can also play dead: from some operation on nothing changes on the disk any more, as
/// if the process had been killed there.
class Sperrzugriff : public Dateizugriff {
public:
    void sperre(const std::filesystem::path& pfad) { m_gesperrt.insert(pfad.lexically_normal()); }

    /// Dies after so many further operations that change something.
    void stirbNach(int operationen) { m_frist = operationen; }
    bool istTot() const { return m_frist == 0; }
    void lebe() { m_frist.reset(); }

    std::unique_ptr<OffeneDatei> öffne(const std::filesystem::path& pfad, Öffnung wie) override;
    void lösche(const std::filesystem::path& pfad) override;
    void verknüpfe(const std::filesystem::path& von, const std::filesystem::path& nach) override;
    void legeOrdnerAn(const std::filesystem::path& pfad) override;
    void entferneOrdner(const std::filesystem::path& pfad) override;
    void benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach) override;
    void sichereOrdnerAufPlatte(const std::filesystem::path& /*pfad*/) override {}

private:
    friend class FlüchtigeDatei;

    void prüfe(std::filesystem::path pfad);
    /// Counts the operation; throws when the process is dead.
    void zähle();

    std::optional<int> m_frist;
    std::set<std::filesystem::path> m_gesperrt;
};
