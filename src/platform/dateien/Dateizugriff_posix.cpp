#include "platform/dateien/Dateien.h"

#include "platform/dateien/Systemgrund.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr mode_t nurEigentümerDatei = 0600;
constexpr mode_t nurEigentümerOrdner = 0700;

[[noreturn]] void scheitere()
{
    throw Dateifehler(systemgrund(std::error_code(errno, std::generic_category())));
}

void prüfe(bool gelungen)
{
    if (!gelungen) {
        scheitere();
    }
}

/// Owns a file descriptor.
class Griff {
public:
    explicit Griff(int nummer) : m_nummer(nummer) { prüfe(nummer >= 0); }
    Griff(const Griff&) = delete;
    Griff& operator=(const Griff&) = delete;
    ~Griff()
    {
        if (m_nummer >= 0) {
            ::close(m_nummer);
        }
    }
    int nummer() const { return m_nummer; }
    void schließe() { prüfe(::close(std::exchange(m_nummer, -1)) == 0); }

private:
    int m_nummer;
};

std::uint64_t längeVon(const Griff& griff)
{
    struct stat angaben = {};
    prüfe(::fstat(griff.nummer(), &angaben) == 0);
    if (S_ISDIR(angaben.st_mode)) {
        errno = EISDIR;
        scheitere();
    }
    return static_cast<std::uint64_t>(angaben.st_size);
}

class AbgebildeteDatei : public Dateiinhalt {
public:
    explicit AbgebildeteDatei(const fs::path& pfad)
    {
        const Griff griff(::open(pfad.c_str(), O_RDONLY | O_CLOEXEC));
        m_länge = static_cast<std::size_t>(längeVon(griff));
        if (m_länge > 0) {
            m_ort = ::mmap(nullptr, m_länge, PROT_READ, MAP_PRIVATE, griff.nummer(), 0);
            prüfe(m_ort != MAP_FAILED);
        }
    }
    AbgebildeteDatei(const AbgebildeteDatei&) = delete;
    AbgebildeteDatei& operator=(const AbgebildeteDatei&) = delete;
    ~AbgebildeteDatei() override
    {
        if (m_länge > 0) {
            ::munmap(m_ort, m_länge);
        }
    }

    std::string_view text() const override { return {static_cast<const char*>(m_ort), m_länge}; }

private:
    void* m_ort = nullptr;
    std::size_t m_länge = 0;
};

class PosixDatei : public OffeneDatei {
public:
    PosixDatei(const fs::path& pfad, Öffnung wie)
        : m_griff(::open(pfad.c_str(), O_WRONLY | O_CLOEXEC | O_CREAT | (wie == Öffnung::Leeren ? O_TRUNC : O_APPEND),
                         nurEigentümerDatei))
    {
        // a file from elsewhere may have been readable by others; where that can't be changed it is no failure
        static_cast<void>(::fchmod(m_griff.nummer(), nurEigentümerDatei));
    }

    std::size_t schreibe(std::string_view bytes) override
    {
        const auto geschrieben = ::write(m_griff.nummer(), bytes.data(), bytes.size());
        if (geschrieben < 0 && errno == EINTR) {
            return schreibe(bytes);
        }
        prüfe(geschrieben >= 0);
        return static_cast<std::size_t>(geschrieben);
    }
    std::uint64_t länge() override { return längeVon(m_griff); }
    void schneideAb(std::uint64_t länge) override
    {
        prüfe(::ftruncate(m_griff.nummer(), static_cast<off_t>(länge)) == 0);
    }
    void sichereAufPlatte() override { prüfe(::fsync(m_griff.nummer()) == 0); }
    void schließe() override { m_griff.schließe(); }

private:
    Griff m_griff;
};

class PosixZugriff : public Dateizugriff {
public:
    std::unique_ptr<Dateiinhalt> lies(const fs::path& pfad) override
    {
        return std::make_unique<AbgebildeteDatei>(pfad);
    }
    std::unique_ptr<OffeneDatei> öffne(const fs::path& pfad, Öffnung wie) override
    {
        return std::make_unique<PosixDatei>(pfad, wie);
    }
    void benenneUm(const fs::path& von, const fs::path& nach) override
    {
        prüfe(::rename(von.c_str(), nach.c_str()) == 0);
    }
    void lösche(const fs::path& pfad) override { prüfe(::unlink(pfad.c_str()) == 0); }
    void legeOrdnerAn(const fs::path& pfad) override { prüfe(::mkdir(pfad.c_str(), nurEigentümerOrdner) == 0); }
    void entferneOrdner(const fs::path& pfad) override { prüfe(::rmdir(pfad.c_str()) == 0); }
    void sichereOrdnerAufPlatte(const fs::path& pfad) override
    {
        Griff griff(::open(pfad.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        prüfe(::fsync(griff.nummer()) == 0);
        griff.schließe();
    }
};

} // namespace

std::unique_ptr<Dateizugriff> erzeugeDateizugriff()
{
    return std::make_unique<PosixZugriff>();
}
