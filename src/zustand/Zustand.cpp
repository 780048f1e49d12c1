#include "zustand/Zustand.h"

#include <stdexcept>
#include <utility>

namespace {

Zustand* aktuell = nullptr;

} // namespace

Pfade bildePfade(const std::filesystem::path& programmordner)
{
    const auto daten = programmordner / "Daten";
    return {.programm = programmordner,
            .ini = programmordner / "Tolvek7.ini",
            .dummyIni = programmordner / "Tolvhek7Dummy.ini",
            .daten = daten,
            .kernDat = daten / "kernDat.txt",
            .betrDat = daten / "betrDat.txt",
            .diagDat = daten / "diagDat.txt",
            .kernBak = daten / "kernDat.bak",
            .betrBak = daten / "betrDat.bak",
            .diagBak = daten / "diagDat.bak",
            .dummyDatei = programmordner / "dummyFile.txt",
            .importListe = programmordner / "importDatenListe.txt"};
}

Zustand& zustand()
{
    if (aktuell == nullptr) {
        throw std::logic_error("no program run is going on");
    }
    return *aktuell;
}

Zustandsplatz::Zustandsplatz(Zustand& zustand) : m_vorher(std::exchange(aktuell, &zustand))
{}

Zustandsplatz::~Zustandsplatz()
{
    aktuell = m_vorher;
}

Antwort zeigeMeldung(std::string_view text, Symbol symbol, Knöpfe knöpfe)
{
    return zeigeMeldung(text, symbol, knöpfe, knöpfe == Knöpfe::JaNein ? Antwort::Ja : Antwort::OK);
}

Antwort zeigeMeldung(std::string_view text, Symbol symbol, Knöpfe knöpfe, Antwort vorgabe)
{
    return zustand().umgebung.zeigeMeldung({std::string(text), symbol, knöpfe, vorgabe, zustand().titel});
}

std::string ladeResText(int nummer)
{
    const auto* text = zustand().ressourcen.finde(nummer);
    return text == nullptr ? std::string("<leer>") : *text;
}
