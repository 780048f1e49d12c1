#include "platform/dateien/Windowssystem.h"

#include "platform/text/Text.h"

#include <array>
#include <string_view>

#include <windows.h>

namespace {

struct Windowsgrund {
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

constexpr std::array windowsgründe{
    Windowsgrund{ERROR_FILE_NOT_FOUND, nichtDa},
    Windowsgrund{ERROR_PATH_NOT_FOUND, nichtDa},
    Windowsgrund{ERROR_ACCESS_DENIED, keinRecht},
    Windowsgrund{ERROR_PRIVILEGE_NOT_HELD, keinRecht},
    Windowsgrund{ERROR_NETWORK_ACCESS_DENIED, keinRecht},
    Windowsgrund{ERROR_SHARING_VIOLATION, geöffnet},
    Windowsgrund{ERROR_LOCK_VIOLATION, geöffnet},
    Windowsgrund{ERROR_USER_MAPPED_FILE, geöffnet},
    Windowsgrund{ERROR_DELETE_PENDING, geöffnet},
    Windowsgrund{ERROR_HANDLE_DISK_FULL, keinPlatz},
    Windowsgrund{ERROR_DISK_FULL, keinPlatz},
    Windowsgrund{kontingentErschöpft, "der zugeteilte Platz auf dem Datenträger ist voll"_t},
    Windowsgrund{ERROR_FILE_TOO_LARGE, "die Datei wird zu groß"_t},
    Windowsgrund{ERROR_WRITE_PROTECT, "der Datenträger läßt sich nur lesen"_t},
    Windowsgrund{ERROR_INVALID_DRIVE, nichtBereit},
    Windowsgrund{ERROR_NOT_READY, nichtBereit},
    Windowsgrund{ERROR_DEV_NOT_EXIST, keinNetz},
    Windowsgrund{ERROR_DEVICE_NOT_CONNECTED, nichtBereit},
    Windowsgrund{ERROR_NO_MEDIA_IN_DRIVE, nichtBereit},
    Windowsgrund{ERROR_BAD_NETPATH, keinNetz},
    Windowsgrund{ERROR_BAD_NET_NAME, keinNetz},
    Windowsgrund{ERROR_NETNAME_DELETED, keinNetz},
    Windowsgrund{ERROR_UNEXP_NET_ERR, keinNetz},
    Windowsgrund{ERROR_SEM_TIMEOUT, keinNetz},
    Windowsgrund{ERROR_NETWORK_UNREACHABLE, keinNetz},
    Windowsgrund{ERROR_NO_NET_OR_BAD_PATH, keinNetz},
    Windowsgrund{ERROR_CRC, schadhaft},
    Windowsgrund{ERROR_WRITE_FAULT, schadhaft},
    Windowsgrund{ERROR_READ_FAULT, schadhaft},
    Windowsgrund{ERROR_GEN_FAILURE, schadhaft},
    Windowsgrund{ERROR_IO_DEVICE, schadhaft},
    Windowsgrund{ERROR_FILE_CORRUPT, schadhaft},
    Windowsgrund{ERROR_DISK_CORRUPT, schadhaft},
    Windowsgrund{ERROR_FILE_EXISTS, vergeben},
    Windowsgrund{ERROR_ALREADY_EXISTS, vergeben},
    Windowsgrund{ERROR_INVALID_NAME, "der Name ist auf diesem Laufwerk nicht erlaubt"_t},
    Windowsgrund{ERROR_FILENAME_EXCED_RANGE, zuLang},
    Windowsgrund{ERROR_BUFFER_OVERFLOW, zuLang},
    Windowsgrund{ERROR_DIRECTORY, "ein Teil des Pfades ist kein Ordner"_t},
    Windowsgrund{ERROR_DIR_NOT_EMPTY, "der Ordner ist nicht leer"_t},
};

} // namespace

std::string windowsgrund(unsigned long fehler)
{
    for (const auto& grund : windowsgründe) {
        if (fehler == grund.fehler) {
            return std::string(grund.text);
        }
    }
    return verbinde("Systemfehler "_t, std::to_string(fehler));
}
