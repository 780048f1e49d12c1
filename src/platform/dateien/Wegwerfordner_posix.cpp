#include "platform/dateien/Wegwerfordner.h"

#include "platform/dateien/Dateien.h"
#include "platform/dateien/Systemgrund.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// Opens and locks the folder; -1 when another process holds it, or it is no folder of this user any more.
int sperre(const fs::path& ordner)
{
    const int griff = open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    struct stat angaben {};
    if (griff >= 0 && flock(griff, LOCK_EX | LOCK_NB) == 0 && fstat(griff, &angaben) == 0 &&
        angaben.st_uid == geteuid() && angaben.st_nlink > 0) {
        return griff;
    }
    if (griff >= 0) {
        close(griff);
    }
    return -1;
}

} // namespace

Wegwerfordner::Wegwerfordner(std::string_view vorsilbe)
{
    std::error_code fehler;
    const fs::path ablage = fs::temp_directory_path(fehler);
    // between making and locking, the clearing of another start may take the folder away
    constexpr int versuche = 10;
    for (int versuch = 0; !fehler && versuch < versuche && m_schloss < 0; ++versuch) {
        std::string muster = (ablage / vorsilbe).string() + "XXXXXX";
        if (mkdtemp(muster.data()) == nullptr) {
            fehler.assign(errno, std::generic_category());
        } else {
            m_pfad = muster;
            m_schloss = sperre(m_pfad);
        }
    }
    if (m_schloss < 0) {
        throw Laufzeitfehler(verbinde("In \""_t, pfadtext(ablage), "\" kann kein Zwischenordner angelegt werden: "_t,
                                      systemgrund(fehler)));
    }
}

Wegwerfordner::~Wegwerfordner()
{
    if (m_meiner) {
        std::error_code egal;
        fs::remove_all(m_pfad, egal);
    }
    close(static_cast<int>(m_schloss));
}

void Wegwerfordner::räumeAuf(std::string_view vorsilbe)
{
    std::error_code egal;
    for (const auto& eintrag : fs::directory_iterator(fs::temp_directory_path(egal), egal)) {
        if (!eintrag.path().filename().string().starts_with(vorsilbe)) {
            continue;
        }
        if (const int schloss = sperre(eintrag.path()); schloss >= 0) {
            fs::remove_all(eintrag.path(), egal);
            close(schloss);
        }
    }
}
