#include "platform/dateien/Ordnersperre.h"

#include "platform/dateien/Dateizugriff.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// False when another open folder or file has the lock.
bool nimm(const Systemgriff& griff)
{
    while (::flock(static_cast<int>(griff.nummer()), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) {
            return false;
        }
        prüfeSystem(errno == EINTR);
    }
    return true;
}

Systemgriff öffne(const std::filesystem::path& pfad, int wie)
{
    constexpr mode_t nurEigentümer = 0600;
    return geprüft(Systemgriff(::open(pfad.c_str(), wie | O_CLOEXEC, nurEigentümer)));
}

} // namespace

Systemgriff sperreOrdner(const std::filesystem::path& ordner)
{
    auto sperre = öffne(ordner, O_RDONLY | O_DIRECTORY);
    bool istErste = false;
    try {
        istErste = nimm(sperre);
    } catch (const Dateifehler&) {
        // Some network file systems lock nothing that is not open for writing, and a folder never is: there an empty
        // file in the folder is locked in its place, the same one for everybody.
        sperre = öffne(ordner / "Tolvek7.sperre", O_RDWR | O_CREAT | O_NOFOLLOW);
        istErste = nimm(sperre);
    }
    return istErste ? std::move(sperre) : Systemgriff();
}

Systemgriff sperreWegwerfordner(const std::filesystem::path& ordner)
{
    Systemgriff sperre(::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    const int nummer = static_cast<int>(sperre.nummer());
    struct stat angaben = {};
    const bool gelungen = sperre.istOffen() && ::flock(nummer, LOCK_EX | LOCK_NB) == 0 &&
                          ::fstat(nummer, &angaben) == 0 && angaben.st_uid == ::geteuid() && angaben.st_nlink > 0;
    return gelungen ? std::move(sperre) : Systemgriff();
}
