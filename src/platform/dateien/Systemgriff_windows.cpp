#include "platform/dateien/Systemgriff.h"

#include "platform/dateien/Dateizugriff.h"
#include "platform/text/Text.h"

#include <windows.h>

namespace {

constexpr DWORD kontingentErschöpft = 1295; // ERROR_DISK_QUOTA_EXCEEDED, which the headers at hand lack

constexpr std::array gründe{
    Systemgrund{"die Datei oder der Ordner ist nicht da"_t, {ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND}},
    Systemgrund{"das Recht dazu fehlt"_t, {ERROR_ACCESS_DENIED, ERROR_PRIVILEGE_NOT_HELD, ERROR_NETWORK_ACCESS_DENIED}},
    Systemgrund{"ein anderes Programm hat die Datei geöffnet"_t,
                {ERROR_SHARING_VIOLATION, ERROR_LOCK_VIOLATION, ERROR_USER_MAPPED_FILE, ERROR_DELETE_PENDING}},
    Systemgrund{"auf dem Datenträger ist kein Platz mehr"_t, {ERROR_HANDLE_DISK_FULL, ERROR_DISK_FULL}},
    Systemgrund{"der zugeteilte Platz auf dem Datenträger ist voll"_t, {kontingentErschöpft}},
    Systemgrund{"die Datei wird zu groß"_t, {ERROR_FILE_TOO_LARGE}},
    Systemgrund{"der Datenträger läßt sich nur lesen"_t, {ERROR_WRITE_PROTECT}},
    Systemgrund{"das Laufwerk ist nicht bereit"_t,
                {ERROR_INVALID_DRIVE, ERROR_NOT_READY, ERROR_DEVICE_NOT_CONNECTED, ERROR_NO_MEDIA_IN_DRIVE}},
    Systemgrund{"das Netzlaufwerk ist nicht erreichbar"_t,
                {ERROR_DEV_NOT_EXIST, ERROR_BAD_NETPATH, ERROR_BAD_NET_NAME, ERROR_NETNAME_DELETED, ERROR_UNEXP_NET_ERR,
                 ERROR_SEM_TIMEOUT, ERROR_NETWORK_UNREACHABLE, ERROR_NO_NET_OR_BAD_PATH}},
    Systemgrund{"der Datenträger meldet einen Fehler"_t,
                {ERROR_CRC, ERROR_WRITE_FAULT, ERROR_READ_FAULT, ERROR_GEN_FAILURE, ERROR_IO_DEVICE, ERROR_FILE_CORRUPT,
                 ERROR_DISK_CORRUPT}},
    Systemgrund{"unter diesem Namen liegt schon etwas"_t, {ERROR_FILE_EXISTS, ERROR_ALREADY_EXISTS}},
    Systemgrund{"der Name ist auf diesem Laufwerk nicht erlaubt"_t, {ERROR_INVALID_NAME}},
    Systemgrund{"der Pfad ist zu lang"_t, {ERROR_FILENAME_EXCED_RANGE, ERROR_BUFFER_OVERFLOW}},
    Systemgrund{"ein Teil des Pfades ist kein Ordner"_t, {ERROR_DIRECTORY}},
    Systemgrund{"der Ordner ist nicht leer"_t, {ERROR_DIR_NOT_EMPTY}},
};

} // namespace

std::span<const Systemgrund> systemgründe()
{
    return gründe;
}

void prüfeSystem(bool gelungen)
{
    if (!gelungen) {
        throw Dateifehler(systemgrund(::GetLastError()));
    }
}

bool Systemgriff::schließe()
{
    return !istOffen() || ::CloseHandle(reinterpret_cast<HANDLE>(std::exchange(m_nummer, keine))) != 0;
}
