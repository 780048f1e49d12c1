#pragma once

#include <filesystem>
#include <vector>

/// What the system alone knows about this process. `main.cpp` asks, nothing in the logic does. Paths are the
/// system's own bytes (on Windows its wide characters), so a folder whose name is no readable text is found too.
struct Systemorte {
    std::filesystem::path programm;      ///< the folder that holds the program file, links resolved
    bool programmBeschreibbar = false;   ///< whether this user may create files in it, and finds them there again
    std::filesystem::path person;        ///< the user's home, on Windows the documents; empty where there is none
    std::filesystem::path arbeitsordner; ///< what relative paths begin at
};

Systemorte frageSystem();

/// The arguments behind the program's name.
std::vector<std::filesystem::path> argumente(int anzahl, char** werte);
