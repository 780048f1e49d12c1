#include "platform/dateien/Ordnersperre.h"

#include "platform/dateien/Dateizugriff.h"
#include "platform/dateien/Systemgrund.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

class PosixSperre : public Ordnersperre {
public:
    explicit PosixSperre(int nummer) : m_nummer(nummer) {}
    PosixSperre(const PosixSperre&) = delete;
    PosixSperre& operator=(const PosixSperre&) = delete;
    ~PosixSperre() override { ::close(m_nummer); }

    /// False when another open folder or file has the lock.
    bool nimm() const
    {
        while (::flock(m_nummer, LOCK_EX | LOCK_NB) != 0) {
            if (errno == EWOULDBLOCK) {
                return false;
            }
            if (errno != EINTR) {
                scheitereAmSystem();
            }
        }
        return true;
    }

private:
    int m_nummer;
};

std::unique_ptr<PosixSperre> öffne(const std::filesystem::path& pfad, int wie)
{
    constexpr mode_t nurEigentümer = 0600;
    const int nummer = ::open(pfad.c_str(), wie | O_CLOEXEC, nurEigentümer);
    if (nummer < 0) {
        scheitereAmSystem();
    }
    return std::make_unique<PosixSperre>(nummer);
}

/// Some network file systems lock nothing that is not open for writing, and a folder never is: there an empty file
/// in the folder is locked in its place, the same one for everybody.
std::unique_ptr<PosixSperre> öffneErsatz(const std::filesystem::path& ordner)
{
    return öffne(ordner / "Tolvek7.sperre", O_RDWR | O_CREAT | O_NOFOLLOW);
}

} // namespace

std::unique_ptr<Ordnersperre> sperreOrdner(const std::filesystem::path& ordner)
{
    auto sperre = öffne(ordner, O_RDONLY | O_DIRECTORY);
    bool istErste = false;
    try {
        istErste = sperre->nimm();
    } catch (const Dateifehler&) {
        sperre = öffneErsatz(ordner);
        istErste = sperre->nimm();
    }
    return istErste ? std::move(sperre) : nullptr;
}
