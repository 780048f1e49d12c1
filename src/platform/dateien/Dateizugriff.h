#pragma once

#include "platform/dateien/Systemgriff.h"

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

/// A file that is open for writing.
class OffeneDatei {
public:
    OffeneDatei() = default;
    explicit OffeneDatei(Systemgriff griff) : m_griff(std::move(griff)) {}
    virtual ~OffeneDatei() = default;
    /// Writes as much as it can; returns the number of bytes written or throws Dateifehler.
    virtual std::size_t schreibe(std::string_view bytes);
    virtual void sichereAufPlatte();
    virtual void schließe();

private:
    Systemgriff m_griff;
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

/// The operations of the system; every one throws Dateifehler. What shall go otherwise in a test is overridden.
class Dateizugriff {
public:
    using Pfad = std::filesystem::path;

    Dateizugriff() = default;
    Dateizugriff(const Dateizugriff&) = delete;
    Dateizugriff& operator=(const Dateizugriff&) = delete;
    virtual ~Dateizugriff() = default;

    /// The content from byte `ab` on (0: all of it). Never waits: a pipe or a device in the place of a file is a
    /// failure. A file that grows or shrinks meanwhile is read as far as it goes.
    virtual std::unique_ptr<Dateiinhalt> lies(const Pfad& pfad, std::uint64_t ab);
    virtual std::uint64_t länge(const Pfad& pfad);
    virtual std::unique_ptr<OffeneDatei> öffne(const Pfad& pfad, Öffnung wie);
    virtual void benenneUm(const Pfad& von, const Pfad& nach);
    virtual void lösche(const Pfad& pfad);
    /// A second name for the same content.
    virtual void verknüpfe(const Pfad& von, const Pfad& nach);
    virtual void legeOrdnerAn(const Pfad& pfad);
    virtual void entferneOrdner(const Pfad& pfad);
    virtual void sichereOrdnerAufPlatte(const Pfad& pfad);
    virtual void verwehreAnderen(const Pfad& pfad);

    /// Links followed; a link to nothing is a failure.
    virtual Fund findet(const Pfad& pfad);
    /// Whether anything, a link to nothing included, has the name.
    virtual bool istVergeben(const Pfad& pfad);
    /// The end of the chain of links, the path itself without one.
    virtual Pfad ziel(const Pfad& pfad);
    /// When the file was last written, in seconds since 1970.
    virtual std::int64_t zeitVon(const Pfad& pfad);
    /// The names in the folder that are folders (or are none), sorted.
    virtual std::vector<Pfad> namenIn(const Pfad& ordner, bool sindOrdner);
};
