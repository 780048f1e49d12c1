#pragma once

#include "platform/dateien/Dateizugriff.h"
#include "platform/dateien/Pruefsumme.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// How files are handled, in one essay.
///
/// The records are health data that were confirmed with OK, so a write counts only when it is on the disk.
/// `Dateizugriff` holds the single operations of the system (open, write, flush, close, rename, …); each of
/// them reports its failure, and each can be made to fail in a test. `Dateien` builds from them what the
/// program needs: reading into a buffer, writing a new file, and replacing a file so that whoever pulls the plug
/// finds the old file or the new one: the work file is written completely, flushed to the disk, closed, renamed
/// over the target, and the folder is flushed. Every failure is a `Laufzeitfehler` that names file and
/// cause; the old file is then still there. A failed flush is a failure and is never retried, since the
/// system may have dropped the pages. Several tables at once are the work of `store/Vorgang`.
///
/// Files are created readable by their owner alone (0600), folders likewise (0700). A work file is always a new
/// file, so that nobody can lay a link in its place and have records written elsewhere. A table that is a link
/// is followed: `ziel` tells where it really lies, and its work file lies beside that place.
///
/// Files are read into a buffer: a mapped file that another program cuts short would kill the process.

/// A text file being written: collects lines in a block and hands them on. `schließe` flushes to the disk
/// and reports every failure; without it the file counts as not written.
class Schreiber {
public:
    Schreiber(Dateizugriff& zugriff, const std::filesystem::path& pfad, Öffnung wie);
    Schreiber(const Schreiber&) = delete;
    Schreiber& operator=(const Schreiber&) = delete;

    /// Text as it stands.
    void text(std::string_view bytes);
    /// A line with its line end (carriage return, line feed).
    void zeile(std::string_view inhalt);
    /// Everything to the disk, closed. Throws Laufzeitfehler.
    void schließe();

    /// What was written, once it is closed.
    std::uint64_t länge() const { return m_länge; }
    std::uint64_t prüfsumme() const { return m_prüfsumme.wert(); }

private:
    void leere();
    void schreibe(std::string_view bytes);

    std::filesystem::path m_pfad;
    std::unique_ptr<OffeneDatei> m_datei;
    std::string m_block;
    Prüfsumme m_prüfsumme;
    std::uint64_t m_länge = 0;
};

class Dateien {
public:
    /// `beiZugriff` is called before each operation of the system.
    explicit Dateien(
        std::unique_ptr<Dateizugriff> zugriff = std::make_unique<Dateizugriff>(),
        std::function<void()> beiZugriff = [] {})
        : m_zugriff(std::move(zugriff)), m_beiZugriff(std::move(beiZugriff))
    {}

    /// The content, from byte `ab` on. Throws Laufzeitfehler.
    std::unique_ptr<Dateiinhalt> lies(const std::filesystem::path& pfad, std::uint64_t ab = 0);
    std::uint64_t länge(const std::filesystem::path& pfad);
    /// What lies there, links followed. Laufzeitfehler when that can't be told (no permission, I/O error, a link to
    /// something that is not there): such a file must never be taken for missing.
    Fund findet(const std::filesystem::path& pfad);
    bool fehlt(const std::filesystem::path& pfad) { return findet(pfad) == Fund::Nichts; }
    bool istOrdner(const std::filesystem::path& pfad) { return findet(pfad) == Fund::Ordner; }
    bool istDatei(const std::filesystem::path& pfad) { return findet(pfad) == Fund::Datei; }
    /// Where the file really lies: the end of the chain of links, the path itself without one.
    std::filesystem::path ziel(const std::filesystem::path& pfad);
    /// When the file was last written, local time as "JJJJ-MM-TT hh.mm.ss".
    std::string zeitVon(const std::filesystem::path& pfad);

    /// Writes `arbeitsdatei` anew with what `inhalt` writes, then puts it in the place of `ziel` as told above.
    void ersetze(const std::filesystem::path& ziel, const std::filesystem::path& arbeitsdatei,
                 const std::function<void(Schreiber&)>& inhalt);
    /// Replaces `ziel` by a copy of `quelle` through its `fassungNeben`.
    void kopiereÜber(const std::filesystem::path& quelle, const std::filesystem::path& ziel);
    /// Creates the file empty; Laufzeitfehler when something lies there already, a link included.
    void legeLeerAn(const std::filesystem::path& pfad);
    /// A file for writing, emptied; for output that replaces nothing precious (export, stages).
    std::unique_ptr<Schreiber> schreibeNeu(const std::filesystem::path& pfad);
    /// A file that must not be there yet; what an earlier run has left under its name is removed before, a link
    /// itself and not what it points to.
    std::unique_ptr<Schreiber> schreibeArbeitsdatei(const std::filesystem::path& pfad);
    /// A second name for the file's content, or a copy of it where the system has no second names. On the disk.
    void verdopple(const std::filesystem::path& von, const std::filesystem::path& nach);

    void lösche(const std::filesystem::path& pfad);
    /// Removes the file or link if it is there.
    void entferne(const std::filesystem::path& pfad);
    /// Renames without a flush of the folder: `sichereOrdner` follows once for all.
    void benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach);
    void sichereOrdner(const std::filesystem::path& ordner);
    /// Makes the folder; it is on the disk then.
    void legeOrdnerAn(const std::filesystem::path& pfad);
    /// Makes the folder unless it is there; whether it was made.
    bool sorgeFürOrdner(const std::filesystem::path& pfad);
    /// Removes the folder with the files in it; it holds no folders.
    void entferneOrdner(const std::filesystem::path& ordner);
    std::vector<std::filesystem::path> dateienIn(const std::filesystem::path& ordner) { return namenIn(ordner, false); }
    std::vector<std::filesystem::path> ordnerIn(const std::filesystem::path& ordner) { return namenIn(ordner, true); }
    /// Takes the rights of others away from a file or folder that belongs to the user; what can't be changed stays.
    void verwehreAnderen(const std::filesystem::path& pfad);

private:
    Dateizugriff& zugriff();
    std::vector<std::filesystem::path> namenIn(const std::filesystem::path& ordner, bool sindOrdner);

    std::unique_ptr<Dateizugriff> m_zugriff;
    std::function<void()> m_beiZugriff;
};

/// The name under which the new version of a file or folder is written beside it: with ".neu" behind its own.
std::filesystem::path fassungNeben(std::filesystem::path pfad);
bool istFassungNeben(const std::filesystem::path& pfad);

/// The path as code-page text, for messages; what its name holds beyond the code page is replaced.
std::string pfadtext(const std::filesystem::path& pfad);
