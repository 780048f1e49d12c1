#pragma once

#include <cstdint>
#include <filesystem>

/// Removes a temporary file and its folder on Windows as soon as nobody has the file open any more; built there alone.
/// A thread looks now and then. What is still open at the end of the program stays for the next start.
///
/// `schloss` is a handle that keeps the folder locked for others; the guard takes a copy of it.
void bewacheBisGeschlossen(const std::filesystem::path& datei, std::intptr_t schloss);
