#include "platform/dateien/Windowssystem.h"

#include "platform/text/Text.h"

#include <array>
#include <string_view>

#include <windows.h>

namespace {

struct Grund {
    DWORD fehler;
    std::string_view text;
};

constexpr auto nichtDa = "die Datei oder der Ordner ist nicht da"_t;
constexpr auto keinRecht = "das Recht dazu fehlt"_t;
constexpr auto keinPlatz = "auf dem Datenträger ist kein Platz mehr"_t;
constexpr auto keinNetz = "das Netzlaufwerk ist nicht erreichbar"_t;
constexpr auto nichtBereit = "das Laufwerk ist nicht bereit"_t;
constexpr auto schadhaft = "der Datenträger meldet einen Fehler"_t;
constexpr auto geöffnet = "ein anderes Programm hat die Datei geöffnet"_t;
constexpr auto vergeben = "unter diesem Namen liegt schon etwas"_t;
constexpr auto zuLang = "der Pfad ist zu lang"_t;

constexpr DWORD kontingentErschöpft = 1295; // ERROR_DISK_QUOTA_EXCEEDED, which the headers at hand lack

constexpr std::array gründe{
    Grund{ERROR_FILE_NOT_FOUND, nichtDa},
    Grund{ERROR_PATH_NOT_FOUND, nichtDa},
    Grund{ERROR_ACCESS_DENIED, keinRecht},
    Grund{ERROR_PRIVILEGE_NOT_HELD, keinRecht},
    Grund{ERROR_NETWORK_ACCESS_DENIED, keinRecht},
    Grund{ERROR_SHARING_VIOLATION, geöffnet},
    Grund{ERROR_LOCK_VIOLATION, geöffnet},
    Grund{ERROR_USER_MAPPED_FILE, geöffnet},
    Grund{ERROR_DELETE_PENDING, geöffnet},
    Grund{ERROR_HANDLE_DISK_FULL, keinPlatz},
    Grund{ERROR_DISK_FULL, keinPlatz},
    Grund{kontingentErschöpft, "der zugeteilte Platz auf dem Datenträger ist voll"_t},
    Grund{ERROR_FILE_TOO_LARGE, "die Datei wird zu groß"_t},
    Grund{ERROR_WRITE_PROTECT, "der Datenträger läßt sich nur lesen"_t},
    Grund{ERROR_INVALID_DRIVE, nichtBereit},
    Grund{ERROR_NOT_READY, nichtBereit},
    Grund{ERROR_DEV_NOT_EXIST, keinNetz},
    Grund{ERROR_DEVICE_NOT_CONNECTED, nichtBereit},
    Grund{ERROR_NO_MEDIA_IN_DRIVE, nichtBereit},
    Grund{ERROR_BAD_NETPATH, keinNetz},
    Grund{ERROR_BAD_NET_NAME, keinNetz},
    Grund{ERROR_NETNAME_DELETED, keinNetz},
    Grund{ERROR_UNEXP_NET_ERR, keinNetz},
    Grund{ERROR_SEM_TIMEOUT, keinNetz},
    Grund{ERROR_NETWORK_UNREACHABLE, keinNetz},
    Grund{ERROR_NO_NET_OR_BAD_PATH, keinNetz},
    Grund{ERROR_CRC, schadhaft},
    Grund{ERROR_WRITE_FAULT, schadhaft},
    Grund{ERROR_READ_FAULT, schadhaft},
    Grund{ERROR_GEN_FAILURE, schadhaft},
    Grund{ERROR_IO_DEVICE, schadhaft},
    Grund{ERROR_FILE_CORRUPT, schadhaft},
    Grund{ERROR_DISK_CORRUPT, schadhaft},
    Grund{ERROR_FILE_EXISTS, vergeben},
    Grund{ERROR_ALREADY_EXISTS, vergeben},
    Grund{ERROR_INVALID_NAME, "der Name ist auf diesem Laufwerk nicht erlaubt"_t},
    Grund{ERROR_FILENAME_EXCED_RANGE, zuLang},
    Grund{ERROR_BUFFER_OVERFLOW, zuLang},
    Grund{ERROR_DIRECTORY, "ein Teil des Pfades ist kein Ordner"_t},
    Grund{ERROR_DIR_NOT_EMPTY, "der Ordner ist nicht leer"_t},
};

} // namespace

std::string windowsgrund(unsigned long fehler)
{
    for (const auto& grund : gründe) {
        if (fehler == grund.fehler) {
            return std::string(grund.text);
        }
    }
    return verbinde("Systemfehler "_t, std::to_string(fehler));
}
