#include "platform/dateien/Dateien.h"

#include "platform/text/Eingabe.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t blockgröße = std::size_t{1} << 20U;

[[noreturn]] void scheitere(std::string_view was, const fs::path& pfad, const Dateifehler& fehler)
{
    throw Laufzeitfehler(verbinde(was, " \""_t, pfadtext(pfad), "\": "_t, std::string_view(fehler.what())));
}

/// Runs the operation and names what failed on which file.
template <class F> auto mitNamen(std::string_view was, const fs::path& pfad, F operation) -> decltype(operation())
{
    try {
        return operation();
    } catch (const Dateifehler& fehler) {
        scheitere(was, pfad, fehler);
    }
}

/// Writes everything; a system that takes only a part of it gets the rest, one that takes nothing has failed.
void schreibeGanz(OffeneDatei& datei, std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto geschrieben = datei.schreibe(bytes);
        if (geschrieben == 0) {
            throw Dateifehler(std::string("es wurde nicht alles geschrieben"_t));
        }
        bytes.remove_prefix(geschrieben);
    }
}

bool fehltZeilenende(std::string_view inhalt)
{
    return !inhalt.empty() && inhalt.back() != '\n' && inhalt.back() != '\r';
}

} // namespace

std::string pfadtext(const fs::path& pfad)
{
    const auto utf8 = pfad.u8string();
    const std::u32string zeichen = ausUtf8({reinterpret_cast<const char*>(utf8.data()), utf8.size()});
    return nimmEingabe(zeichen, false).text;
}

Schreiber::Schreiber(Dateizugriff& zugriff, const fs::path& pfad) : m_pfad(pfad)
{
    m_datei =
        mitNamen("Die Datei kann nicht angelegt werden:"_t, pfad, [&] { return zugriff.öffne(pfad, Öffnung::Leeren); });
    m_block.reserve(blockgröße);
}

Schreiber::~Schreiber() = default;

void Schreiber::text(std::string_view bytes)
{
    m_block.append(bytes);
    if (m_block.size() >= blockgröße) {
        leere();
    }
}

void Schreiber::zeile(std::string_view inhalt)
{
    text(inhalt);
    text("\r\n");
}

void Schreiber::leere()
{
    mitNamen("In die Datei kann nicht geschrieben werden:"_t, m_pfad, [&] { schreibeGanz(*m_datei, m_block); });
    m_block.clear();
}

void Schreiber::schließe()
{
    leere();
    mitNamen("Die Datei kann nicht auf die Platte gesichert werden:"_t, m_pfad, [&] {
        m_datei->sichereAufPlatte();
        m_datei->schließe();
    });
}

Dateien::Dateien(std::unique_ptr<Dateizugriff> zugriff) : m_zugriff(std::move(zugriff))
{}

Dateien::~Dateien() = default;

std::unique_ptr<Dateiinhalt> Dateien::lies(const fs::path& pfad)
{
    return mitNamen("Die Datei kann nicht gelesen werden:"_t, pfad, [&] { return m_zugriff->lies(pfad); });
}

bool Dateien::istLesbar(const fs::path& pfad)
{
    try {
        return m_zugriff->lies(pfad) != nullptr;
    } catch (const Dateifehler&) {
        return false;
    }
}

bool Dateien::istOrdner(const fs::path& pfad)
{
    return m_zugriff->istOrdner(pfad);
}

bool Dateien::istDatei(const fs::path& pfad)
{
    return m_zugriff->istDatei(pfad);
}

void Dateien::ersetze(const fs::path& ziel, const fs::path& arbeitsdatei, const std::function<void(Schreiber&)>& inhalt)
{
    Schreiber schreiber(*m_zugriff, arbeitsdatei);
    inhalt(schreiber);
    schreiber.schließe();
    benenneUm(arbeitsdatei, ziel);
}

void Dateien::kopiereÜber(const fs::path& quelle, const fs::path& ziel)
{
    const auto inhalt = lies(quelle);
    auto daneben = ziel;
    daneben += ".neu";
    ersetze(ziel, daneben, [&](Schreiber& schreiber) { schreiber.text(inhalt->text()); });
}

void Dateien::hängeZeileAn(const fs::path& pfad, std::string_view zeile)
{
    const auto ergänzung = verbinde(fehltZeilenende(lies(pfad)->text()) ? "\r\n" : "", zeile, "\r\n");
    mitNamen("An die Datei kann nichts angefügt werden:"_t, pfad, [&] {
        const auto datei = m_zugriff->öffne(pfad, Öffnung::Anhängen);
        const auto länge = datei->länge();
        try {
            schreibeGanz(*datei, ergänzung);
            datei->sichereAufPlatte();
        } catch (const Dateifehler&) {
            datei->schneideAb(länge);
            throw;
        }
        datei->schließe();
    });
}

void Dateien::legeLeerAn(const fs::path& pfad)
{
    Schreiber(*m_zugriff, pfad).schließe();
}

std::unique_ptr<Schreiber> Dateien::schreibeNeu(const fs::path& pfad)
{
    return std::make_unique<Schreiber>(*m_zugriff, pfad);
}

void Dateien::lösche(const fs::path& pfad)
{
    mitNamen("Die Datei kann nicht gelöscht werden:"_t, pfad, [&] { m_zugriff->lösche(pfad); });
}

void Dateien::benenneUm(const fs::path& von, const fs::path& nach)
{
    mitNamen("Die Datei kann nicht ersetzt werden:"_t, nach, [&] {
        m_zugriff->benenneUm(von, nach);
        m_zugriff->sichereOrdnerAufPlatte(nach.parent_path());
    });
}

void Dateien::legeOrdnerAn(const fs::path& pfad)
{
    mitNamen("Der Ordner kann nicht angelegt werden:"_t, pfad, [&] { m_zugriff->legeOrdnerAn(pfad); });
}

void Dateien::entferneOrdner(const fs::path& pfad)
{
    mitNamen("Der Ordner kann nicht entfernt werden:"_t, pfad, [&] { m_zugriff->entferneOrdner(pfad); });
}

std::vector<fs::path> Dateien::dateienIn(const fs::path& ordner)
{
    return mitNamen("Der Ordner kann nicht gelesen werden:"_t, ordner, [&] { return m_zugriff->dateienIn(ordner); });
}
