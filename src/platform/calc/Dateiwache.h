#pragma once

#include <cstdint>
#include <filesystem>

/// Removes a temporary file and its folder on Windows as soon as nobody has the file open any more; built there alone.
/// A timer of the calling thread looks now and then, so that thread has to take its messages, as every one with windows
/// does. What is still open at the end of the program stays for the next start.
///
/// `schloss` is a handle that keeps the folder locked for others; the guard takes a copy of it.
void bewacheBisGeschlossen(const std::filesystem::path& datei, std::intptr_t schloss);
