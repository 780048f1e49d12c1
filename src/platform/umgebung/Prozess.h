#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

/// What the system alone knows about this process and does for it. `main.cpp` asks, nothing in the logic does. Paths
/// are the system's own bytes (on Windows its wide characters), so a folder whose name is no readable text is found
/// too.

struct Systemorte {
    std::filesystem::path programm;      ///< the folder that holds the program file, links resolved
    bool programmBeschreibbar = false;   ///< whether this user may create files in it, and finds them there again
    std::filesystem::path person;        ///< the user's home, on Windows the documents; empty where there is none
    std::filesystem::path arbeitsordner; ///< what relative paths begin at
};

Systemorte frageSystem();

/// The arguments behind the program's name.
std::vector<std::filesystem::path> argumente(int anzahl, char** werte);

/// Says something (UTF-8) to whoever has called the program without wanting a window: on the terminal. A program of
/// windows may have none on Windows; then a box says it.
void sageDemAufrufer(std::string_view text);
/// The same for what went wrong.
void meldeDemAufrufer(std::string_view text);

/// No image of the process on the disk when it crashes: its memory holds client data, and such files stay where nobody
/// looks for them. To be called first in `main`; what the system refuses stays as it is.
void verhindereSpeicherabbilder();
