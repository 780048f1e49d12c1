#pragma once

#include "app/moExtras.h"

/// The frame window as the program sees it: full size on opening, closed by the main menu alone.
class MDIfrm {
public:
    MDIfrm(Zustand& zustand, moExtras& extras);
    MDIfrm(const MDIfrm&) = delete;
    MDIfrm& operator=(const MDIfrm&) = delete;

    /// Caption, full screen size, in sight.
    void zeige();
    /// Hides and unloads the frame and what still stands over it (each writes its place); the run has ended.
    void aufräumen();
    /// Empties the settings file. No screen calls it; it is there for maintenance.
    void leereIni();

private:
    void beiGrößenänderung();

    Zustand& m_zustand;
    moExtras& m_extras;
    bool m_warMaximiert = false;
};
