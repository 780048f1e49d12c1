#include "platform/dateien/Systemgriff.h"

#include "platform/dateien/Dateizugriff.h"
#include "platform/text/Text.h"

#include <cerrno>

#include <unistd.h>

namespace {

constexpr std::array gründe{
    Systemgrund{"die Datei oder der Ordner ist nicht da"_t, {ENOENT}},
    Systemgrund{"das Recht dazu fehlt"_t, {EACCES, EPERM}},
    Systemgrund{"auf dem Datenträger ist kein Platz mehr"_t, {ENOSPC}},
    Systemgrund{"die Datei wird zu groß"_t, {EFBIG}},
    Systemgrund{"der Datenträger läßt sich nur lesen"_t, {EROFS}},
    Systemgrund{"der Datenträger meldet einen Fehler"_t, {EIO}},
    Systemgrund{"unter diesem Namen gibt es einen Ordner"_t, {EISDIR}},
    Systemgrund{"ein Teil des Pfades ist kein Ordner"_t, {ENOTDIR}},
    Systemgrund{"der Ordner ist nicht leer"_t, {ENOTEMPTY}},
};

} // namespace

std::span<const Systemgrund> systemgründe()
{
    return gründe;
}

void prüfeSystem(bool gelungen)
{
    if (!gelungen) {
        throw Dateifehler(systemgrund(static_cast<unsigned long>(errno)));
    }
}

bool Systemgriff::schließe()
{
    return !istOffen() || ::close(static_cast<int>(std::exchange(m_nummer, keine))) == 0;
}
