#pragma once

#include "care/Seitenfelder.h"
#include "platform/bildschirm/Bildschirm.h"
#include "zustand/Zustand.h"

#include <string>
#include <string_view>

/// What the pages A, B, C and E of a care episode share. A page edits its piece of the working copy and
/// nothing else: it takes the piece when it opens, gives it back on OK, and on Exit leaves it as it was
/// (asking first when the screen differs from it); what is on the screen lives through the memo. No page writes to a
/// table.
class Betreuungsseite : public Bildschirm {
public:
    Beschriftung lblHeader{*this, "lblHeader"_t};
    Beschriftung lblName{*this, "lblName"_t};
    Beschriftung lblBetrBeg{*this, "lblBetrBeg"_t};
    Beschriftung lblBetrEnd{*this, "lblBetrEnd"_t};
    Schaltfläche cmdMemo{*this, "cmdMemo"_t, "&Memo"_t};
    Schaltfläche cmdOK{*this, "cmdOK"_t, "&OK"_t, Schaltfläche::Rolle::Haupt};
    Schaltfläche cmdExit{*this, "cmdExit"_t, "&Exit"_t};

protected:
    /// `stück` is the page's piece of the working copy.
    Betreuungsseite(std::string_view name, std::string_view überschrift, std::string Arbeitskopie::*stück);

    /// The page's table of fields; filled by the constructor of the page.
    Seitenfelder tafel;

    void beiÖffnung() override;

    /// Rules that follow from what the fields have taken from the piece.
    virtual void nachLaden() {}
    /// Rules that set fields before they are collected.
    virtual void vorSammeln() {}

private:
    std::string sammleSeitenDaten();
    void beiOK();
    void beiExit();

    std::string Arbeitskopie::*m_stück;
};
