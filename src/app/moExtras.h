#pragma once

#include "clients/frmMemo.h"
#include "platform/bildschirm/Bildschirmplatz.h"
#include "zustand/Zustand.h"

/// Placing of the screens and handing over from one to the next. Owns the memo form, which the client form and
/// all pages of a care episode open.
class moExtras : public Bildschirmwechsel {
public:
    explicit moExtras(Zustand& zustand) : m_zustand(zustand) {}

    void setzeFensterPosition(Bildschirm& bildschirm) override;
    void speichereRahmenlage(const Bildschirm& bildschirm) override;
    void holeFensterlage(Bildschirm& bildschirm) override;
    void speichereFensterlage(const Bildschirm& bildschirm) override;

    void zeigeDatenÜbernahme(Bildschirm& rufer, Bildschirm& frmDatenÜbernahme) override;
    void zeigeZeitraum(Bildschirm& rufer, Bildschirm& frmBetreuungZeitraum) override;
    void zeigeDiagnoseErstellen(Bildschirm& rufer, Bildschirm& frmBetrDiagnoseErstellen) override;
    void zeigeCodeAuswahl(Bildschirm& rufer, Bildschirm& frmBetrDiagnoseCodeAuswahl) override;
    void zeigeMemo(Bildschirm& rufer, bool zeigeMemoB) override;

    void zeigeAufrufer() override;
    void aktualisiereAufrufer() override;
    void zeigeMemoAufrufer() override;

    /// Width and height in twips for the frame, at most those of the desktop's screen. A maximised frame stays.
    void passeRahmenAn(double breite, double höhe);
    /// Places the topmost page in sight anew; windows over it keep their own place.
    void platziereAktiven();

private:
    void öffneÜber(Bildschirm& rufer, Bildschirm& dialog);

    Zustand& m_zustand;
    Bildschirm* m_aufrufer = nullptr;
    Bildschirm* m_memoAufrufer = nullptr;
    Bildschirmplatz<frmMemo> m_memo;
};
