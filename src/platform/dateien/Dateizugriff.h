#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// The single operations of the system on files; `Dateien` builds from them what the program needs, tests make
/// each of them fail.

/// The content of a file, held in memory as long as the object lives.
class Dateiinhalt {
public:
    explicit Dateiinhalt(std::string text) : m_text(std::move(text)) {}
    std::string_view text() const { return m_text; }

private:
    std::string m_text;
};

/// An open file as the system knows it.
class OffeneDatei {
public:
    virtual ~OffeneDatei() = default;
    /// Writes as much as it can; returns the number of bytes written or throws Dateifehler.
    virtual std::size_t schreibe(std::string_view bytes) = 0;
    virtual void sichereAufPlatte() = 0;
    virtual void schließe() = 0;
};

/// What one operation of the system failed with; `Dateien` turns it into a Laufzeitfehler.
class Dateifehler : public std::runtime_error {
public:
    /// `grund` is the system's reason in German, code page.
    explicit Dateifehler(const std::string& grund) : std::runtime_error(grund) {}
};

enum class Öffnung {
    Leeren, ///< an existing file is emptied, a link followed
    Neu     ///< there must be nothing under the name, not even a link
};

/// What lies under a path.
enum class Fund { Nichts, Datei, Ordner, Anderes };

/// The operations of the system; every one throws Dateifehler.
class Dateizugriff {
public:
    using Pfad = std::filesystem::path;

    Dateizugriff() = default;
    Dateizugriff(const Dateizugriff&) = delete;
    Dateizugriff& operator=(const Dateizugriff&) = delete;
    virtual ~Dateizugriff() = default;

    /// The content from byte `ab` on (0: all of it). Never waits: a pipe or a device in the place of a file is a
    /// failure.
    virtual std::unique_ptr<Dateiinhalt> lies(const Pfad& pfad, std::uint64_t ab) = 0;
    virtual std::uint64_t länge(const Pfad& pfad) = 0;
    virtual std::unique_ptr<OffeneDatei> öffne(const Pfad& pfad, Öffnung wie) = 0;
    virtual void benenneUm(const Pfad& von, const Pfad& nach) = 0;
    virtual void lösche(const Pfad& pfad) = 0;
    /// A second name for the same content.
    virtual void verknüpfe(const Pfad& von, const Pfad& nach) = 0;
    virtual void legeOrdnerAn(const Pfad& pfad) = 0;
    virtual void entferneOrdner(const Pfad& pfad) = 0;
    virtual void sichereOrdnerAufPlatte(const Pfad& pfad) = 0;
    virtual void verwehreAnderen(const Pfad& pfad) = 0;

    /// Links followed; a link to nothing is a failure.
    virtual Fund findet(const Pfad& pfad) = 0;
    /// Whether anything, a link to nothing included, has the name.
    virtual bool istVergeben(const Pfad& pfad) = 0;
    virtual Pfad ziel(const Pfad& pfad) = 0;
    /// Local time, "JJJJ-MM-TT hh.mm.ss".
    virtual std::string zeitVon(const Pfad& pfad) = 0;
    /// The names in the folder that are folders (or are none), sorted.
    virtual std::vector<Pfad> namenIn(const Pfad& ordner, bool sindOrdner) = 0;
};

/// An access that hands everything on to another one; what is to go otherwise is overridden.
class Zugriffsweiche : public Dateizugriff {
public:
    explicit Zugriffsweiche(std::unique_ptr<Dateizugriff> dahinter) : m_dahinter(std::move(dahinter)) {}

    std::unique_ptr<Dateiinhalt> lies(const Pfad& pfad, std::uint64_t ab) override { return dahinter().lies(pfad, ab); }
    std::uint64_t länge(const Pfad& pfad) override { return dahinter().länge(pfad); }
    std::unique_ptr<OffeneDatei> öffne(const Pfad& pfad, Öffnung wie) override { return dahinter().öffne(pfad, wie); }
    void benenneUm(const Pfad& von, const Pfad& nach) override { dahinter().benenneUm(von, nach); }
    void lösche(const Pfad& pfad) override { dahinter().lösche(pfad); }
    void verknüpfe(const Pfad& von, const Pfad& nach) override { dahinter().verknüpfe(von, nach); }
    void legeOrdnerAn(const Pfad& pfad) override { dahinter().legeOrdnerAn(pfad); }
    void entferneOrdner(const Pfad& pfad) override { dahinter().entferneOrdner(pfad); }
    void sichereOrdnerAufPlatte(const Pfad& pfad) override { dahinter().sichereOrdnerAufPlatte(pfad); }
    void verwehreAnderen(const Pfad& pfad) override { dahinter().verwehreAnderen(pfad); }
    Fund findet(const Pfad& pfad) override { return dahinter().findet(pfad); }
    bool istVergeben(const Pfad& pfad) override { return dahinter().istVergeben(pfad); }
    Pfad ziel(const Pfad& pfad) override { return dahinter().ziel(pfad); }
    std::string zeitVon(const Pfad& pfad) override { return dahinter().zeitVon(pfad); }
    std::vector<Pfad> namenIn(const Pfad& ordner, bool sindOrdner) override
    {
        return dahinter().namenIn(ordner, sindOrdner);
    }

protected:
    /// Asked by every operation that goes on to it.
    virtual Dateizugriff& dahinter() { return *m_dahinter; }

private:
    std::unique_ptr<Dateizugriff> m_dahinter;
};

/// The operations of this system (one source file per system).
std::unique_ptr<Dateizugriff> erzeugeDateizugriff();
