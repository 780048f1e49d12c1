#include "app/moMain.h"
#include "platform/calc/Rechenprogramm.h"
#include "platform/qt/QtOberflaeche.h"
#include "platform/qt/QtUmgebung.h"
#include "platform/qt/Stil.h"
#include "platform/umgebung/Prozessschutz.h"
#include "store/Pruefung.h"

#include <QApplication>

#include <filesystem>
#include <iostream>
#include <optional>
#include <string_view>

namespace {

/// The checker needs no windows. Its report goes to the output, its result is the exit status.
std::optional<int> prüfeAufWunsch(int argc, char** argv)
{
    if (argc < 2 || std::string_view(argv[1]) != "--pruefe") {
        return std::nullopt;
    }
    const QCoreApplication anwendung(argc, argv); // knows where the program lies, whatever it was called by
    const std::filesystem::path programmordner(QCoreApplication::applicationDirPath().toStdU16String());
    return pruefe(argc > 2 ? std::filesystem::path(argv[2]) : programmordner, std::cout);
}

} // namespace

int main(int argc, char** argv)
{
    verhindereSpeicherabbilder();
    if (const auto status = prüfeAufWunsch(argc, argv)) {
        return *status;
    }
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
