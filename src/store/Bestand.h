#pragma once

#include "platform/dateien/Dateien.h"
#include "store/Lesestand.h"

#include <memory>

/// The three tables on disk, with their backups. Every reading operation opens the file, scans it from the start and
/// lets it go; nothing is cached, so what another hand wrote is seen at the next operation. All that changes the
/// tables is a `Vorgang`.
class Bestand : public Lesestand {
public:
    /// Files, paths and door outlive the store; the paths may be filled in later, before the first operation.
    Bestand(Dateien& dateien, const Bestandspfade& pfade, const Bestandsmeldung& meldung)
        : Lesestand(pfade, meldung), m_dateien(dateien)
    {}

    void laufe(Tabelle tabelle, const Zeilenbesuch& besuch) const override;
    /// The content of a file of the store. When a table is missing while a work file of an older version lies there,
    /// the Laufzeitfehler names the work file too: that version could lose a table between deleting and renaming,
    /// and then its content is there.
    std::unique_ptr<Dateiinhalt> inhalt(Tabelle tabelle) const;

    Dateien& dateien() const { return m_dateien; }

private:
    Dateien& m_dateien;
};
