#include "app/moMain.h"
#include "platform/calc/Rechenprogramm.h"
#include "platform/qt/QtOberflaeche.h"
#include "platform/qt/QtUmgebung.h"
#include "platform/qt/Stil.h"
#include "platform/umgebung/Prozessschutz.h"

#include <QApplication>

int main(int argc, char** argv)
{
    verhindereSpeicherabbilder();
    QApplication anwendung(argc, argv);
    richteStilEin(anwendung);
    Rechenprogramm rechenprogramm;
    QtUmgebung umgebung(rechenprogramm);
    Programm programm(umgebung);
    auto& zustand = programm.zustand();
    QtOberfläche oberfläche(zustand.ablauf, zustand.folge, zustand.rahmen, umgebung);
    programm.starte();
    return zustand.ablauf.läuft() ? QApplication::exec() : zustand.ablauf.status();
}
