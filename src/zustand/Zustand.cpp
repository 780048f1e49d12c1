#include "zustand/Zustand.h"

#include <stdexcept>
#include <utility>

namespace {

Zustand* aktuell = nullptr;

} // namespace

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
