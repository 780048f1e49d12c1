#include "app/MDIfrm.h"

#include "platform/dateien/Dateien.h"

MDIfrm::MDIfrm(Zustand& zustand, moExtras& extras) : m_zustand(zustand), m_extras(extras)
{
    m_zustand.rahmen.beiSchließwunsch = [] {
        zeigeMeldung("Bitte die Schaltfläche <Exit> zum Beenden klicken"_t);
        return false;
    };
    m_zustand.rahmen.beiGrößenänderung = [this] { beiGrößenänderung(); };
}

void MDIfrm::zeige()
{
    const Größe schirm = m_zustand.umgebung.bildschirmgröße();
    m_zustand.rahmen.setzeTitel(m_zustand.titel);
    m_zustand.rahmen.setzeGröße(schirm.breite, schirm.höhe);
    m_zustand.rahmen.zeige(true);
}

void MDIfrm::aufräumen()
{
    m_zustand.rahmen.zeige(false);
    for (Bildschirm* bildschirm : m_zustand.folge.geladene()) {
        m_zustand.folge.entlade(*bildschirm);
    }
    m_zustand.ablauf.beende();
}

void MDIfrm::leereIni()
{
    m_zustand.umgebung.dateien().schreibeNeu(m_zustand.pfade.ini)->schließe();
}

void MDIfrm::beiGrößenänderung()
{
    if (m_zustand.rahmen.istMaximiert()) {
        m_warMaximiert = true;
    } else if (m_warMaximiert) {
        m_warMaximiert = false;
        m_extras.platziereAktiven();
    }
}
