#include "platform/dateien/Dateizugriff.h"

#include "platform/text/Text.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr mode_t nurEigentümerDatei = 0600;
constexpr mode_t nurEigentümerOrdner = 0700;

int nummer(const Systemgriff& griff)
{
    return static_cast<int>(griff.nummer());
}

void prüfe(const std::error_code& fehler)
{
    if (fehler) {
        throw Dateifehler(systemgrund(static_cast<unsigned long>(fehler.value())));
    }
}

struct stat angabenZu(const fs::path& pfad)
{
    struct stat angaben = {};
    prüfeSystem(::stat(pfad.c_str(), &angaben) == 0);
    return angaben;
}

} // namespace

Systemgriff öffneZumLesen(const fs::path& pfad)
{
    return geprüft(Systemgriff(::open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)));
}

std::uint64_t längeVon(const Systemgriff& griff)
{
    struct stat angaben = {};
    prüfeSystem(::fstat(nummer(griff), &angaben) == 0);
    if (S_ISDIR(angaben.st_mode)) {
        throw Dateifehler(systemgrund(EISDIR));
    }
    if (!S_ISREG(angaben.st_mode)) {
        throw Dateifehler(std::string("unter diesem Namen liegt keine gewöhnliche Datei"_t));
    }
    return static_cast<std::uint64_t>(angaben.st_size);
}

std::size_t liesAb(const Systemgriff& griff, std::uint64_t ab, std::span<char> ziel)
{
    const auto menge = ::pread(nummer(griff), ziel.data(), ziel.size(), static_cast<off_t>(ab));
    if (menge < 0 && errno == EINTR) {
        return liesAb(griff, ab, ziel);
    }
    prüfeSystem(menge >= 0);
    return static_cast<std::size_t>(menge);
}

std::size_t OffeneDatei::schreibe(std::string_view bytes)
{
    const auto geschrieben = ::write(nummer(m_griff), bytes.data(), bytes.size());
    if (geschrieben < 0 && errno == EINTR) {
        return schreibe(bytes);
    }
    prüfeSystem(geschrieben >= 0);
    return static_cast<std::size_t>(geschrieben);
}

void OffeneDatei::sichereAufPlatte()
{
    prüfeSystem(::fsync(nummer(m_griff)) == 0);
}

std::unique_ptr<OffeneDatei> Dateizugriff::öffne(const fs::path& pfad, Öffnung wie)
{
    const int art = wie == Öffnung::Leeren ? O_TRUNC : O_EXCL | O_NOFOLLOW;
    auto griff = geprüft(Systemgriff(
        ::open(pfad.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | O_CREAT | art, nurEigentümerDatei)));
    // a file from elsewhere may have been readable by others; where that can't be changed it is no failure
    static_cast<void>(::fchmod(nummer(griff), nurEigentümerDatei));
    return std::make_unique<OffeneDatei>(std::move(griff));
}

void Dateizugriff::benenneUm(const fs::path& von, const fs::path& nach)
{
    prüfeSystem(::rename(von.c_str(), nach.c_str()) == 0);
}

void Dateizugriff::lösche(const fs::path& pfad)
{
    prüfeSystem(::unlink(pfad.c_str()) == 0);
}

void Dateizugriff::verknüpfe(const fs::path& von, const fs::path& nach)
{
    prüfeSystem(::link(von.c_str(), nach.c_str()) == 0);
}

void Dateizugriff::legeOrdnerAn(const fs::path& pfad)
{
    prüfeSystem(::mkdir(pfad.c_str(), nurEigentümerOrdner) == 0);
}

void Dateizugriff::entferneOrdner(const fs::path& pfad)
{
    prüfeSystem(::rmdir(pfad.c_str()) == 0);
}

void Dateizugriff::sichereOrdnerAufPlatte(const fs::path& pfad)
{
    auto griff = geprüft(Systemgriff(::open(pfad.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    prüfeSystem(::fsync(nummer(griff)) == 0);
    prüfeSystem(griff.schließe());
}

void Dateizugriff::verwehreAnderen(const fs::path& pfad)
{
    const auto angaben = angabenZu(pfad);
    constexpr mode_t andere = S_IRWXG | S_IRWXO;
    if ((angaben.st_mode & andere) != 0 && angaben.st_uid == ::geteuid()) {
        prüfeSystem(::chmod(pfad.c_str(), angaben.st_mode & static_cast<mode_t>(~andere) & mode_t{07777}) == 0);
    }
}

Fund Dateizugriff::findet(const fs::path& pfad)
{
    std::error_code fehler;
    switch (fs::status(pfad, fehler).type()) {
    case fs::file_type::not_found:
        if (istVergeben(pfad)) {
            throw Dateifehler(std::string("der Verweis führt auf etwas, das nicht da ist"_t));
        }
        return Fund::Nichts;
    case fs::file_type::regular:
        return Fund::Datei;
    case fs::file_type::directory:
        return Fund::Ordner;
    case fs::file_type::none:
    case fs::file_type::unknown:
        throw Dateifehler(systemgrund(static_cast<unsigned long>(fehler.value())));
    default:
        return Fund::Anderes;
    }
}

bool Dateizugriff::istVergeben(const fs::path& pfad)
{
    std::error_code fehler;
    return fs::exists(fs::symlink_status(pfad, fehler));
}

fs::path Dateizugriff::ziel(const fs::path& pfad)
{
    std::error_code fehler;
    if (!fs::is_symlink(fs::symlink_status(pfad, fehler))) {
        return pfad;
    }
    auto ende = fs::canonical(pfad, fehler);
    prüfe(fehler);
    return ende;
}

std::int64_t Dateizugriff::zeitVon(const fs::path& pfad)
{
    return angabenZu(pfad).st_mtime;
}

std::vector<fs::path> Dateizugriff::namenIn(const fs::path& ordner, bool sindOrdner)
{
    std::vector<fs::path> namen;
    std::error_code fehler;
    for (fs::directory_iterator ort(ordner, fehler), ende; !fehler && ort != ende; ort.increment(fehler)) {
        std::error_code verweisInsLeere;
        if (ort->is_directory(verweisInsLeere) == sindOrdner) {
            namen.push_back(ort->path().filename());
        }
    }
    prüfe(fehler);
    std::sort(namen.begin(), namen.end());
    return namen;
}
