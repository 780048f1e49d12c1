#pragma once

#include "platform/dateien/Dateien.h"

#include <filesystem>
#include <string>
#include <string_view>

/// The path, told with "/", as messages show it: with the system's own separator.
inline std::string angezeigt(std::string_view pfad)
{
    return pfadtext(std::filesystem::path(pfad).make_preferred());
}
