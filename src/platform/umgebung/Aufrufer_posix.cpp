#include "platform/umgebung/Aufrufer.h"

#include <iostream>

void sageDemAufrufer(std::string_view text)
{
    std::cout << text << std::flush;
}

void meldeDemAufrufer(std::string_view text)
{
    std::cerr << text << std::flush;
}
