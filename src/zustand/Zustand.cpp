#include "zustand/Zustand.h"

#include <stdexcept>
#include <utility>

namespace {

Zustand* aktuell = nullptr;

} // namespace

Pfade bildePfade(const std::filesystem::path& programmordner)
{
    Pfade pfade;
    static_cast<Bestandspfade&>(pfade) = bildeBestandspfade(programmordner);
    pfade.programm = programmordner;
    pfade.ini = programmordner / "Tolvek7.ini";
    pfade.dummyIni = programmordner / "Tolvhek7Dummy.ini";
    pfade.importListe = programmordner / "importDatenListe.txt";
    return pfade;
}

Zustand::Zustand(Umgebung& umgebungDesLaufs)
    : umgebung(umgebungDesLaufs), ablauf(umgebungDesLaufs, folge),
      bestandsmeldung([this](std::string_view text, Symbol symbol) {
          umgebung.zeigeMeldung({std::string(text), symbol, Knöpfe::OK, Antwort::OK, titel});
      }),
      bestand(umgebungDesLaufs.dateien(), pfade, bestandsmeldung)
{}

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
    return zustand().ressourcen.finde(nummer).value_or("<leer>");
}
