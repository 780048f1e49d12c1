#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// How files are handled, in one essay.
///
/// The records are health data that were confirmed with OK, so a write counts only when it is on the disk.
/// `Dateizugriff` holds the single operations of the system (open, write, flush, close, rename, …); each of
/// them reports its failure, and each can be made to fail in a test. `Dateien` builds from them what the
/// program needs: reading as a view, appending, and replacing a file so that whoever pulls the plug finds
/// the old file or the new one: the work file is written completely, flushed to the disk, closed, renamed
/// over the target, and the folder is flushed. Every failure is a `Laufzeitfehler` that names file and
/// cause; the old file is then still there. A failed flush is a failure and is never retried, since the
/// system may have dropped the pages. An append that fails part-way is cut back to the old length.
/// Files are created readable by their owner alone (0600), folders likewise (0700).

/// The content of a file as a view that stays valid as long as the object lives (a mapped file or a
/// buffer).
class Dateiinhalt {
public:
    virtual ~Dateiinhalt() = default;
    virtual std::string_view text() const = 0;
};

/// An open file as the system knows it.
class OffeneDatei {
public:
    virtual ~OffeneDatei() = default;
    /// Writes as much as it can; returns the number of bytes written or throws Dateifehler.
    virtual std::size_t schreibe(std::string_view bytes) = 0;
    virtual std::uint64_t länge() = 0;
    virtual void schneideAb(std::uint64_t länge) = 0;
    virtual void sichereAufPlatte() = 0;
    virtual void schließe() = 0;
};

/// What one operation of the system failed with; `Dateien` turns it into a Laufzeitfehler.
class Dateifehler : public std::runtime_error {
public:
    /// `grund` is the system's reason in German, code page.
    explicit Dateifehler(const std::string& grund) : std::runtime_error(grund) {}
};

enum class Öffnung { Leeren, Anhängen };

/// The operations of the system; every one throws Dateifehler.
class Dateizugriff {
public:
    Dateizugriff() = default;
    Dateizugriff(const Dateizugriff&) = delete;
    Dateizugriff& operator=(const Dateizugriff&) = delete;
    virtual ~Dateizugriff() = default;

    virtual std::unique_ptr<Dateiinhalt> lies(const std::filesystem::path& pfad) = 0;
    virtual std::unique_ptr<OffeneDatei> öffne(const std::filesystem::path& pfad, Öffnung wie) = 0;
    virtual void benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach) = 0;
    virtual void lösche(const std::filesystem::path& pfad) = 0;
    virtual void legeOrdnerAn(const std::filesystem::path& pfad) = 0;
    virtual void entferneOrdner(const std::filesystem::path& pfad) = 0;
    virtual void sichereOrdnerAufPlatte(const std::filesystem::path& pfad) = 0;

    // the same on every system
    virtual bool istDatei(const std::filesystem::path& pfad);
    virtual bool istOrdner(const std::filesystem::path& pfad);
    /// The names of the files in the folder, sorted.
    virtual std::vector<std::filesystem::path> dateienIn(const std::filesystem::path& ordner);
};

/// The operations of this system (one source file per system).
std::unique_ptr<Dateizugriff> erzeugeDateizugriff();

/// A text file being written: collects lines in a block and hands them on. `schließe` flushes to the disk
/// and reports every failure; without it the file counts as not written.
class Schreiber {
public:
    Schreiber(Dateizugriff& zugriff, const std::filesystem::path& pfad);
    Schreiber(const Schreiber&) = delete;
    Schreiber& operator=(const Schreiber&) = delete;
    ~Schreiber();

    /// Text as it stands.
    void text(std::string_view bytes);
    /// A line with its line end (carriage return, line feed).
    void zeile(std::string_view inhalt);
    /// Everything to the disk, closed. Throws Laufzeitfehler.
    void schließe();

private:
    void leere();

    std::filesystem::path m_pfad;
    std::unique_ptr<OffeneDatei> m_datei;
    std::string m_block;
};

class Dateien {
public:
    explicit Dateien(std::unique_ptr<Dateizugriff> zugriff);
    ~Dateien();

    /// The content as a view. Throws Laufzeitfehler.
    std::unique_ptr<Dateiinhalt> lies(const std::filesystem::path& pfad);
    /// Whether the file can be opened for reading.
    bool istLesbar(const std::filesystem::path& pfad);
    bool istOrdner(const std::filesystem::path& pfad);
    bool istDatei(const std::filesystem::path& pfad);

    /// Writes `arbeitsdatei` with what `inhalt` writes, then puts it in the place of `ziel` as told above.
    void ersetze(const std::filesystem::path& ziel, const std::filesystem::path& arbeitsdatei,
                 const std::function<void(Schreiber&)>& inhalt);
    /// Replaces `ziel` by a copy of `quelle` through `ziel` + ".neu" beside it.
    void kopiereÜber(const std::filesystem::path& quelle, const std::filesystem::path& ziel);
    /// Appends the line; a last line without a line end gets one before. On failure the file is cut back.
    void hängeZeileAn(const std::filesystem::path& pfad, std::string_view zeile);
    /// Creates the file empty (or empties it).
    void legeLeerAn(const std::filesystem::path& pfad);
    /// A new file for writing, emptied; for output that replaces nothing precious (export, stages).
    std::unique_ptr<Schreiber> schreibeNeu(const std::filesystem::path& pfad);

    void lösche(const std::filesystem::path& pfad);
    void benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach);
    void legeOrdnerAn(const std::filesystem::path& pfad);
    void entferneOrdner(const std::filesystem::path& pfad);
    std::vector<std::filesystem::path> dateienIn(const std::filesystem::path& ordner);

private:
    std::unique_ptr<Dateizugriff> m_zugriff;
};

/// The path as code-page text, for messages.
std::string pfadtext(const std::filesystem::path& pfad);
