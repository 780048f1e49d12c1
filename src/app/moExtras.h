#pragma once

#include "clients/frmMemo.h"
#include "platform/bildschirm/Bildschirmplatz.h"
#include "zustand/Zustand.h"

#include <vector>

/// The places of windows, from the settings and back into them: each screen that becomes active is placed, each that is
/// unloaded leaves its place. A page has the frame's place, a child window its own, both under the keys ".top" and
/// ".left" of its name.
///
/// Owns the memo form, which the client form and all pages of a care episode open.
class moExtras {
public:
    explicit moExtras(Zustand& zustand);

    /// Places the topmost page in sight anew; windows over it keep their own place.
    void platziereAktiven();

private:
    void platziere(Bildschirm& bildschirm);
    /// Places the frame for the page by its keys and fits its size to it, at most that of the desktop's screen. A
    /// maximised frame stays.
    void setzeFensterPosition(Bildschirm& bildschirm);
    void merkeLage(const Bildschirm& bildschirm);

    Zustand& m_zustand;
    Bildschirmplatz<frmMemo> m_memo;
    std::vector<Abonnement> m_abonnements;
};
