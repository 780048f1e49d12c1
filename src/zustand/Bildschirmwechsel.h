#pragma once

#include "platform/bildschirm/Bildschirm.h"

#include <string>
#include <string_view>

/// Handing over from one screen to the next, and the places of windows. The frame subsystem (`app/moExtras`)
/// carries it out; the screens below reach it through this interface, so that calls go down and never up.
///
/// The caller of a dialogue is remembered (`aufrufer`, and `memoAufrufer` for the memo, so that a memo can be
/// opened from a dialogue without losing its caller).
class Bildschirmwechsel {
public:
    virtual ~Bildschirmwechsel() = default;

    /// Places the frame for the screen by the keys ".top" and ".left" of its name and fits its size.
    virtual void setzeFensterPosition(Bildschirm& bildschirm) = 0;
    /// Writes the frame's place under the screen's keys.
    virtual void speichereRahmenlage(const Bildschirm& bildschirm) = 0;
    /// Takes the place of a child window from its own keys, or 0.
    virtual void holeFensterlage(Bildschirm& bildschirm) = 0;
    /// Writes the place of a child window under its own keys.
    virtual void speichereFensterlage(const Bildschirm& bildschirm) = 0;

    /// Remembers the caller, hides it, shows the import screen.
    virtual void zeigeDatenÜbernahme(Bildschirm& rufer, Bildschirm& frmDatenÜbernahme) = 0;
    /// Remember the caller, disable it, show the dialogue.
    virtual void zeigeZeitraum(Bildschirm& rufer, Bildschirm& frmBetreuungZeitraum) = 0;
    virtual void zeigeDiagnoseErstellen(Bildschirm& rufer, Bildschirm& frmBetrDiagnoseErstellen) = 0;
    virtual void zeigeCodeAuswahl(Bildschirm& rufer, Bildschirm& frmBetrDiagnoseCodeAuswahl) = 0;
    /// Opens the memo over the caller. `zeigeMemoB` is set by a caller that has no care episode.
    virtual void zeigeMemo(Bildschirm& rufer, bool zeigeMemoB = false) = 0;

    /// Enables the caller of the dialogue and places it.
    virtual void zeigeAufrufer() = 0;
    /// Asks the caller to refresh itself.
    virtual void aktualisiereAufrufer() = 0;
    /// Enables the caller of the memo.
    virtual void zeigeMemoAufrufer() = 0;
};
