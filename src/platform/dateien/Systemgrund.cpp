#include "platform/dateien/Systemgrund.h"

#include "platform/dateien/Dateizugriff.h"
#include "platform/text/Text.h"

#include <array>
#include <cerrno>
#include <string_view>

namespace {

struct Grund {
    std::errc fehler;
    std::string_view text;
};

constexpr std::array<Grund, 10> gründe{{
    {std::errc::no_such_file_or_directory, "die Datei oder der Ordner ist nicht da"_t},
    {std::errc::permission_denied, "das Recht dazu fehlt"_t},
    {std::errc::operation_not_permitted, "das Recht dazu fehlt"_t},
    {std::errc::no_space_on_device, "auf dem Datenträger ist kein Platz mehr"_t},
    {std::errc::file_too_large, "die Datei wird zu groß"_t},
    {std::errc::read_only_file_system, "der Datenträger läßt sich nur lesen"_t},
    {std::errc::io_error, "der Datenträger meldet einen Fehler"_t},
    {std::errc::is_a_directory, "unter diesem Namen gibt es einen Ordner"_t},
    {std::errc::not_a_directory, "ein Teil des Pfades ist kein Ordner"_t},
    {std::errc::directory_not_empty, "der Ordner ist nicht leer"_t},
}};

} // namespace

std::string systemgrund(const std::error_code& fehler)
{
    for (const auto& grund : gründe) {
        if (fehler == grund.fehler) {
            return std::string(grund.text);
        }
    }
    return verbinde("Systemfehler "_t, std::to_string(fehler.value()));
}

void scheitereAmSystem()
{
    throw Dateifehler(systemgrund(std::error_code(errno, std::generic_category())));
}
