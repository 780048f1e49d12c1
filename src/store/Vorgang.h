#pragma once

#include "store/Bestand.h"
#include "store/Fassung.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

/// One action, one transaction, in one essay.
///
/// What one press of a button writes is one `Vorgang`: OK on an episode (care, diagnosis, client), the deletion of a
/// client with everything of it, the import's last stage, the session backup, the creation of the six files. It is
/// there as a whole or not at all, whenever the plug is pulled.
///
/// The action owns the new versions of the tables that it changes (`Fassung`), in memory; reading inside the action
/// sees them. Boxes that an operation shows come while nothing is written yet. `bestätige` then does, in this order:
///
/// 1. Each table is written whole to `<table>.neu` beside it, a new file, flushed to the disk. Killed here, the tables
///    are the old ones, and the next start removes what lies beside them.
/// 2. The commit record `Daten/Vorgang.txt` (names, old and new lengths, checksums of the new files and of itself) is
///    written under another name, flushed, renamed into place, and the folder is flushed. This is the moment of the
///    OK: killed before it, the old state holds; killed after it, the new one.
/// 3. The new files are renamed over the tables, the folder is flushed, the record is removed. Killed between, the
///    next start finds the record and does the rest (`vollendeVorgang`), as often as it is killed itself: a table that
///    is new already is recognised by its checksum. A record that comes back after a loss of power, because its removal
///    had not reached the disk, finds all tables new and is removed again.
///
/// An append is a rewrite too: so there is no half line, ever. A table that is a link is followed, its new file lies
/// beside the place where it really is, so that the last step is a renaming on one file system.
///
/// A failure before step 2 is done leaves the old state and a message; one after it (`UnvollendeterVorgang`) says that
/// the entry is saved and will be completed at the next start. An action that is dropped without `bestätige` has
/// changed nothing.
class Vorgang : public Lesestand {
public:
    explicit Vorgang(const Bestand& bestand) : Lesestand(bestand.pfade(), bestand.meldung()), m_bestand(bestand) {}

    void anfügeKernDS(std::string_view satz) { anfüge(Tabelle::Kern, satz); }
    void anfügeBetrDS(std::string_view satz) { anfüge(Tabelle::Betr, satz); }
    void anfügeDiagDS(std::string_view satz) { anfüge(Tabelle::Diag, satz); }
    /// Puts the record in the place of every line with the key. Without one the box "Achtung: ersetze… hat nicht
    /// ersetzt", and false.
    bool ersetzeKernDS(std::int32_t kernID, std::string_view satz) { return ersetze(Tabelle::Kern, {kernID}, satz); }
    bool ersetzeBetrDS(std::int32_t kernID, std::int32_t betrID, std::string_view satz)
    {
        return ersetze(Tabelle::Betr, {kernID, betrID}, satz);
    }
    bool ersetzeDiagDS(std::int32_t kernID, std::int32_t betrID, std::string_view satz)
    {
        return ersetze(Tabelle::Diag, {kernID, betrID}, satz);
    }
    /// Takes out every line with the key; without one the box "Achtung: lösche… nicht gefunden …".
    void löscheKernDS(std::int32_t kernID) { lösche(Tabelle::Kern, {kernID}); }
    void löscheBetrDS(std::int32_t kernID, std::int32_t betrID) { lösche(Tabelle::Betr, {kernID, betrID}); }
    void löscheDiagDS(std::int32_t kernID, std::int32_t betrID) { lösche(Tabelle::Diag, {kernID, betrID}); }

    /// Takes out every care and diagnosis line of the client without a word: nothing of a person stays behind.
    void löscheAllesVon(std::int32_t kernID);
    /// Takes out what an earlier episode has left under the key, without a word: its diagnosis must not appear
    /// under another one.
    void löscheDiagReste(std::int32_t kernID, std::int32_t betrID);
    /// The whole content of a file of the store.
    void setzeInhalt(Tabelle tabelle, std::string inhalt);
    void setzeInhalt(Tabelle tabelle, std::unique_ptr<Dateiinhalt> inhalt);

    void laufe(Tabelle tabelle, const Zeilenbesuch& besuch) const override;

    /// Everything to the disk, as told above. Laufzeitfehler.
    void bestätige();

private:
    Fassung& fassung(Tabelle tabelle);
    void anfüge(Tabelle tabelle, std::string_view satz);
    bool ersetze(Tabelle tabelle, const Satzschlüssel& schlüssel, std::string_view satz);
    void lösche(Tabelle tabelle, const Satzschlüssel& schlüssel);

    const Bestand& m_bestand;
    std::map<Tabelle, Fassung> m_fassungen;
};
