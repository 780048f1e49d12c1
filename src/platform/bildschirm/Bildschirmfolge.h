#pragma once

#include "platform/bildschirm/Bildschirm.h"

#include <functional>
#include <vector>

/// The order of screens: which are loaded, shown, enabled, which one is in use, and who becomes active.
///
/// Activation follows the program's own hand-overs: a screen that the program shows or enables again is
/// noted, and its `beiAktivierung` runs when the action that did so has come to its end (`führeAktivierungenAus`,
/// called by Ablauf), and only if it can then be used. Neither the end of a message box nor the focus of the
/// desktop activates anything.
class Bildschirmfolge {
public:
    /// Shows the screen (loading it if need be) on top and notes its activation.
    void zeige(Bildschirm& bildschirm);
    void verberge(Bildschirm& bildschirm);
    /// Takes no input any more, but stays in view.
    void sperre(Bildschirm& bildschirm);
    /// Takes input again and notes its activation.
    void gibFrei(Bildschirm& bildschirm);
    /// Hides it, calls `beiEntladen`, and forgets it.
    void entlade(Bildschirm& bildschirm);

    bool istGeladen(const Bildschirm& bildschirm) const;
    bool istSichtbar(const Bildschirm& bildschirm) const;
    bool istFrei(const Bildschirm& bildschirm) const;
    /// The topmost screen that is shown and enabled; nullptr for none.
    Bildschirm* inGebrauch() const;
    /// The loaded screen with the name, nullptr for none.
    Bildschirm* finde(std::string_view name) const;
    /// The loaded screens from the bottom to the top.
    std::vector<Bildschirm*> geladene() const;

    void führeAktivierungenAus();

    /// For the surface: shown, hidden, enabled, disabled.
    Melder<Bildschirm&> geändert;
    /// For the surface: the screen is about to be unloaded.
    Melder<Bildschirm&> entladen;

private:
    struct Stand {
        Bildschirm* bildschirm = nullptr;
        bool sichtbar = false;
        bool frei = true;
        bool sollAktivWerden = false;
    };

    Stand* stand(const Bildschirm& bildschirm);
    const Stand* stand(const Bildschirm& bildschirm) const;

    std::vector<Stand> m_stände; ///< bottom to top
};
