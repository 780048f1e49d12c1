#pragma once

#include <filesystem>

/// The folders that a run works in.
struct Laufort {
    /// The program folder: records, settings, exports, and the facility's own instruction files.
    std::filesystem::path programmordner;
    /// Where the files lie that the installation brings; never written to.
    std::filesystem::path installation;
    /// The records are made up, for training.
    bool istMuster = false;
};
