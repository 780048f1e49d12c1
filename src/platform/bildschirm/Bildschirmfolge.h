#pragma once

#include "platform/bildschirm/Bildschirm.h"

#include <functional>
#include <vector>

/// The order of screens: which are loaded, shown, enabled, which one is in use, and who becomes active.
///
/// A screen is opened from another one, its caller, either instead of it (a page) or over it (a dialogue), and
/// `schließe` brings the caller back, whatever the opening has done to it. A dialogue leaves its answer in its own
/// members; the caller reads them in the function that it gave at the opening:
///
///     auto& dialog = m_zeitraum.neu(kernID);
///     folge.öffneÜber(*this, dialog, [this, &dialog] { nimm(dialog.strVon, dialog.strBis); });
///
/// Activation follows the program's own hand-overs: a screen that the program shows or enables again is
/// noted, and its `beiÖffnung`, the next times its `beiAktivierung`, runs when the action that did so has come to its
/// end (`führeAktivierungenAus`, called by Ablauf), and only if it can then be used. Neither the end of a message box
/// nor the focus of the desktop activates anything.
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

    using Antwort = std::function<void()>;
    /// Opens the page; the caller is hidden meanwhile.
    void öffneStatt(Bildschirm& rufer, Bildschirm& seite);
    /// Opens the dialogue; the caller stays in view and takes no input.
    void öffneÜber(Bildschirm& rufer, Bildschirm& dialog, Antwort antwort = {});
    /// Unloads the screen, brings its caller back and runs the caller's answer function.
    void schließe(Bildschirm& bildschirm);

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
    /// The screen is about to be unloaded.
    Melder<Bildschirm&> entladen;
    /// The screen is about to become active: time to place its window.
    Melder<Bildschirm&> wirdAktiv;

private:
    struct Stand {
        Bildschirm* bildschirm = nullptr;
        bool sichtbar = false;
        bool frei = true;
        bool sollAktivWerden = false;
        bool warAktiv = false;
        Bildschirm* aufrufer = nullptr; ///< whom closing brings back
        Antwort antwort;
    };

    void öffne(Bildschirm& rufer, Bildschirm& neuer, Antwort antwort);
    Stand* stand(const Bildschirm& bildschirm);
    const Stand* stand(const Bildschirm& bildschirm) const;

    std::vector<Stand> m_stände; ///< bottom to top
};
