#pragma once

#include "platform/dateien/Dateizugriff.h"

#include <compare>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// A disk in memory that keeps books on what has reached it: the content of each file as programs see it and as it
/// was last flushed, the names in each folder likewise. So a test can stop after any operation and go on with what
/// the death of the process, or the loss of power, would have left.

/// Paths by their letters: the disk is asked and compared some hundred thousand times, and part by part takes long.
struct NachSchreibung {
    bool operator()(const std::filesystem::path& a, const std::filesystem::path& b) const
    {
        return a.native() < b.native();
    }
};

/// What lies on a disk: files with their contents, folders.
struct Plattenstand {
    std::map<std::filesystem::path, std::string, NachSchreibung> dateien;
    std::set<std::filesystem::path, NachSchreibung> ordner;

    std::strong_ordering operator<=>(const Plattenstand& anderer) const;
    bool operator==(const Plattenstand& anderer) const { return (*this <=> anderer) == std::strong_ordering::equal; }
};

/// How a run ends between two operations.
enum class Ende {
    Getötet,         ///< everything that was done is there, flushed or not
    Stromlos,        ///< only what was flushed is there
    StromlosBenannt, ///< names of files and folders are there, contents only as far as they were flushed
};
inline constexpr Ende alleEnden[] = {Ende::Getötet, Ende::Stromlos, Ende::StromlosBenannt};

class Platte {
public:
    Platte() = default;
    explicit Platte(const Plattenstand& stand);

    Plattenstand stand(Ende ende = Ende::Getötet) const;
    /// Puts a file there that was flushed long ago, with the folders on the way.
    void lege(const std::filesystem::path& pfad, std::string inhalt);

    /// Told after each operation that changes something, and in the middle of a write. Its name is that of the
    /// operation.
    std::function<void(const std::string& name)> beiOperation;
    /// Asked before each such operation; a reason makes it fail.
    std::function<std::optional<std::string>(const std::string& name)> verweigert;
    /// Writes take at most half of what they are given.
    bool schreibtKurz = false;

private:
    friend class Plattenzugriff;
    friend class Plattendatei;

    struct Inhalt {
        std::string jetzt;
        std::string gesichert;
    };
    /// A file, or a folder (without content).
    using Knoten = std::shared_ptr<Inhalt>;
    using Namen = std::map<std::filesystem::path, Knoten, NachSchreibung>;

    template <class F> void führeAus(const std::string& name, F operation);

    Namen m_namen;
    Namen m_gesicherteNamen;
};

/// The file operations on such a disk.
class Plattenzugriff : public Dateizugriff {
public:
    explicit Plattenzugriff(Platte& platte) : m_platte(platte) {}

    std::unique_ptr<Dateiinhalt> lies(const std::filesystem::path& pfad, std::uint64_t ab) override;
    std::uint64_t länge(const std::filesystem::path& pfad) override;
    std::unique_ptr<OffeneDatei> öffne(const std::filesystem::path& pfad, Öffnung wie) override;
    void benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach) override;
    void lösche(const std::filesystem::path& pfad) override;
    void verknüpfe(const std::filesystem::path& von, const std::filesystem::path& nach) override;
    void legeOrdnerAn(const std::filesystem::path& pfad) override;
    void entferneOrdner(const std::filesystem::path& pfad) override;
    void sichereOrdnerAufPlatte(const std::filesystem::path& pfad) override;
    void verwehreAnderen(const std::filesystem::path& /*pfad*/) override {}
    Fund findet(const std::filesystem::path& pfad) override;
    bool istVergeben(const std::filesystem::path& pfad) override;
    std::filesystem::path ziel(const std::filesystem::path& pfad) override { return pfad; }
    std::int64_t zeitVon(const std::filesystem::path& pfad) override;
    std::vector<std::filesystem::path> namenIn(const std::filesystem::path& ordner, bool sindOrdner) override;

private:
    const std::string& inhalt(const std::filesystem::path& pfad) const;

    Platte& m_platte;
};
