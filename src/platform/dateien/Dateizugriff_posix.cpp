#include "platform/dateien/Dateizugriff.h"

#include "platform/dateien/Pfadkunde.h"
#include "platform/dateien/Systemgrund.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr mode_t nurEigentümerDatei = 0600;
constexpr mode_t nurEigentümerOrdner = 0700;

void prüfe(bool gelungen)
{
    if (!gelungen) {
        scheitereAmSystem();
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
        scheitereAmSystem();
    }
    if (!S_ISREG(angaben.st_mode)) {
        throw Dateifehler(std::string("unter diesem Namen liegt keine gewöhnliche Datei"_t));
    }
    return static_cast<std::uint64_t>(angaben.st_size);
}

/// Without waiting: an open pipe would otherwise stop the program until somebody writes into it.
int öffneZumLesen(const fs::path& pfad)
{
    return ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

/// A file that grows or shrinks meanwhile is read as far as it goes.
std::string liesBisEnde(const fs::path& pfad, std::uint64_t ab)
{
    const Griff griff(öffneZumLesen(pfad));
    const auto länge = längeVon(griff);
    prüfe(::lseek(griff.nummer(), static_cast<off_t>(ab), SEEK_SET) >= 0);
    std::string text(static_cast<std::size_t>(länge - std::min(länge, ab)) + 1, '\0'); // one more, to see the end
    std::size_t gelesen = 0;
    for (;;) {
        if (gelesen == text.size()) {
            text.resize(2 * text.size());
        }
        const auto menge = ::read(griff.nummer(), text.data() + gelesen, text.size() - gelesen);
        if (menge < 0 && errno == EINTR) {
            continue;
        }
        prüfe(menge >= 0);
        if (menge == 0) {
            break;
        }
        gelesen += static_cast<std::size_t>(menge);
    }
    text.resize(gelesen);
    return text;
}

class PosixDatei : public OffeneDatei {
public:
    PosixDatei(const fs::path& pfad, Öffnung wie)
        : m_griff(::open(pfad.c_str(),
                         O_WRONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | O_CREAT |
                             (wie == Öffnung::Leeren ? O_TRUNC : O_EXCL | O_NOFOLLOW),
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
    void sichereAufPlatte() override { prüfe(::fsync(m_griff.nummer()) == 0); }
    void schließe() override { m_griff.schließe(); }

private:
    Griff m_griff;
};

class PosixZugriff : public Dateizugriff {
public:
    std::unique_ptr<Dateiinhalt> lies(const fs::path& pfad, std::uint64_t ab) override
    {
        return std::make_unique<Dateiinhalt>(liesBisEnde(pfad, ab));
    }
    std::uint64_t länge(const fs::path& pfad) override { return längeVon(Griff(öffneZumLesen(pfad))); }
    std::unique_ptr<OffeneDatei> öffne(const fs::path& pfad, Öffnung wie) override
    {
        return std::make_unique<PosixDatei>(pfad, wie);
    }
    void benenneUm(const fs::path& von, const fs::path& nach) override
    {
        prüfe(::rename(von.c_str(), nach.c_str()) == 0);
    }
    void lösche(const fs::path& pfad) override { prüfe(::unlink(pfad.c_str()) == 0); }
    void verknüpfe(const fs::path& von, const fs::path& nach) override
    {
        prüfe(::link(von.c_str(), nach.c_str()) == 0);
    }
    void legeOrdnerAn(const fs::path& pfad) override { prüfe(::mkdir(pfad.c_str(), nurEigentümerOrdner) == 0); }
    void entferneOrdner(const fs::path& pfad) override { prüfe(::rmdir(pfad.c_str()) == 0); }
    void sichereOrdnerAufPlatte(const fs::path& pfad) override
    {
        Griff griff(::open(pfad.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        prüfe(::fsync(griff.nummer()) == 0);
        griff.schließe();
    }
    void verwehreAnderen(const fs::path& pfad) override
    {
        struct stat angaben = {};
        prüfe(::stat(pfad.c_str(), &angaben) == 0);
        constexpr mode_t andere = S_IRWXG | S_IRWXO;
        if ((angaben.st_mode & andere) != 0 && angaben.st_uid == ::geteuid()) {
            prüfe(::chmod(pfad.c_str(), angaben.st_mode & static_cast<mode_t>(~andere) & mode_t{07777}) == 0);
        }
    }
    Fund findet(const fs::path& pfad) override { return fundAn(pfad); }
    bool istVergeben(const fs::path& pfad) override { return istNameVergeben(pfad); }
    fs::path ziel(const fs::path& pfad) override { return endeDerVerweise(pfad); }
    std::string zeitVon(const fs::path& pfad) override
    {
        struct stat angaben = {};
        prüfe(::stat(pfad.c_str(), &angaben) == 0);
        return alsZeittext(angaben.st_mtime);
    }
    std::vector<fs::path> namenIn(const fs::path& ordner, bool sindOrdner) override
    {
        return listeNamen(ordner, sindOrdner);
    }
};

} // namespace

std::unique_ptr<Dateizugriff> erzeugeDateizugriff()
{
    return std::make_unique<PosixZugriff>();
}
