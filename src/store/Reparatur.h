#pragma once

#include <filesystem>

/// The work file of the two repairs at start, in the program folder; it is gone after each.
std::filesystem::path reparaturdatei();
