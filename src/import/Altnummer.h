#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

/// A number that the older system gave a client or an episode and that is taken over as id. One that is no
/// number from 1 to 32767 is a Laufzeitfehler: the tables could not be read past it.
std::int32_t leseAltnummer(std::string_view text, const std::filesystem::path& datei);
