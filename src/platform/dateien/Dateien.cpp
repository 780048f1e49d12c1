#include "platform/dateien/Dateien.h"

#include "platform/text/Eingabe.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <array>
#include <ctime>

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

constexpr auto neueFassung = ".neu";

} // namespace

fs::path fassungNeben(fs::path pfad)
{
    pfad += neueFassung;
    return pfad;
}

bool istFassungNeben(const fs::path& pfad)
{
    return pfad.extension() == neueFassung;
}

std::string pfadtext(const fs::path& pfad)
{
    const auto utf8 = pfad.u8string();
    const std::u32string zeichen = ausUtf8({reinterpret_cast<const char*>(utf8.data()), utf8.size()});
    return nimmEingabe(zeichen, false).text;
}

Schreiber::Schreiber(Dateizugriff& zugriff, const fs::path& pfad, Öffnung wie) : m_pfad(pfad)
{
    m_datei = mitNamen("Die Datei kann nicht angelegt werden:"_t, pfad, [&] { return zugriff.öffne(pfad, wie); });
}

void Schreiber::text(std::string_view bytes)
{
    if (bytes.size() >= blockgröße) {
        leere();
        schreibe(bytes);
        return;
    }
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
    schreibe(m_block);
    m_block.clear();
}

void Schreiber::schreibe(std::string_view bytes)
{
    m_prüfsumme.nimm(bytes);
    m_länge += bytes.size();
    mitNamen("In die Datei kann nicht geschrieben werden:"_t, m_pfad, [&] { schreibeGanz(*m_datei, bytes); });
}

void Schreiber::schließe()
{
    leere();
    mitNamen("Die Datei kann nicht auf die Platte gesichert werden:"_t, m_pfad, [&] {
        m_datei->sichereAufPlatte();
        m_datei->schließe();
    });
}

Dateizugriff& Dateien::zugriff()
{
    m_beiZugriff();
    return *m_zugriff;
}

std::unique_ptr<Dateiinhalt> Dateien::lies(const fs::path& pfad, std::uint64_t ab)
{
    return mitNamen("Die Datei kann nicht gelesen werden:"_t, pfad, [&] { return zugriff().lies(pfad, ab); });
}

std::uint64_t Dateien::länge(const fs::path& pfad)
{
    return mitNamen("Die Datei kann nicht gelesen werden:"_t, pfad, [&] { return zugriff().länge(pfad); });
}

Fund Dateien::findet(const fs::path& pfad)
{
    return mitNamen("Es kann nicht festgestellt werden, was unter diesem Namen liegt:"_t, pfad,
                    [&] { return zugriff().findet(pfad); });
}

fs::path Dateien::ziel(const fs::path& pfad)
{
    return mitNamen("Der Verweis kann nicht verfolgt werden:"_t, pfad, [&] { return zugriff().ziel(pfad); });
}

std::string Dateien::zeitVon(const fs::path& pfad)
{
    const std::time_t zeit =
        mitNamen("Die Zeit der Datei kann nicht gelesen werden:"_t, pfad, [&] { return zugriff().zeitVon(pfad); });
    std::array<char, 32> text{};
    const auto länge = std::strftime(text.data(), text.size(), "%Y-%m-%d %H.%M.%S", std::localtime(&zeit));
    return {text.data(), länge};
}

void Dateien::ersetze(const fs::path& ziel, const fs::path& arbeitsdatei, const std::function<void(Schreiber&)>& inhalt)
{
    const auto schreiber = schreibeArbeitsdatei(arbeitsdatei);
    inhalt(*schreiber);
    schreiber->schließe();
    benenneUm(arbeitsdatei, ziel);
    sichereOrdner(ziel.parent_path());
}

void Dateien::legeLeerAn(const fs::path& pfad)
{
    Schreiber(zugriff(), pfad, Öffnung::Neu).schließe();
}

std::unique_ptr<Schreiber> Dateien::schreibeNeu(const fs::path& pfad)
{
    return std::make_unique<Schreiber>(zugriff(), pfad, Öffnung::Leeren);
}

std::unique_ptr<Schreiber> Dateien::schreibeArbeitsdatei(const fs::path& pfad)
{
    entferne(pfad);
    return std::make_unique<Schreiber>(zugriff(), pfad, Öffnung::Neu);
}

void Dateien::verdopple(const fs::path& von, const fs::path& nach)
{
    try {
        zugriff().verknüpfe(von, nach);
    } catch (const Dateifehler&) {
        const auto schreiber = schreibeArbeitsdatei(nach);
        schreiber->text(lies(von)->text());
        schreiber->schließe();
    }
}

void Dateien::lösche(const fs::path& pfad)
{
    mitNamen("Die Datei kann nicht gelöscht werden:"_t, pfad, [&] { zugriff().lösche(pfad); });
}

void Dateien::entferne(const fs::path& pfad)
{
    mitNamen("Die Datei kann nicht gelöscht werden:"_t, pfad, [&] {
        if (zugriff().istVergeben(pfad)) {
            zugriff().lösche(pfad);
        }
    });
}

void Dateien::benenneUm(const fs::path& von, const fs::path& nach)
{
    mitNamen("Die Datei kann nicht ersetzt werden:"_t, nach, [&] { zugriff().benenneUm(von, nach); });
}

void Dateien::sichereOrdner(const fs::path& ordner)
{
    mitNamen("Der Ordner kann nicht auf die Platte gesichert werden:"_t, ordner,
             [&] { zugriff().sichereOrdnerAufPlatte(ordner); });
}

void Dateien::legeOrdnerAn(const fs::path& pfad)
{
    mitNamen("Der Ordner kann nicht angelegt werden:"_t, pfad, [&] {
        zugriff().legeOrdnerAn(pfad);
        zugriff().sichereOrdnerAufPlatte(pfad.parent_path());
    });
}

bool Dateien::sorgeFürOrdner(const fs::path& pfad)
{
    const bool fehlt = !istOrdner(pfad);
    if (fehlt) {
        legeOrdnerAn(pfad);
    }
    return fehlt;
}

void Dateien::entferneOrdner(const fs::path& ordner)
{
    if (ziel(ordner) != ordner) {
        lösche(ordner); // a link to somebody's folder is not ours to empty
        return;
    }
    for (const auto& name : dateienIn(ordner)) {
        lösche(ordner / name);
    }
    mitNamen("Der Ordner kann nicht entfernt werden:"_t, ordner, [&] { zugriff().entferneOrdner(ordner); });
}

std::vector<fs::path> Dateien::namenIn(const fs::path& ordner, bool sindOrdner)
{
    return mitNamen("Der Ordner kann nicht gelesen werden:"_t, ordner,
                    [&] { return zugriff().namenIn(ordner, sindOrdner); });
}

void Dateien::verwehreAnderen(const fs::path& pfad)
{
    try {
        zugriff().verwehreAnderen(pfad);
    } catch (const Dateifehler&) {
        // some file systems know no rights
    }
}
