#include "store/Reparatur.h"

#include "zustand/Zustand.h"

std::filesystem::path reparaturdatei()
{
    return zustand().pfade.programm / "Tolvekdummy.txt";
}
