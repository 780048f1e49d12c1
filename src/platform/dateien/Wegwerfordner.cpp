#include "platform/dateien/Wegwerfordner.h"

#include "platform/dateien/Dateien.h"
#include "platform/dateien/Ordnersperre.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <random>
#include <system_error>

namespace fs = std::filesystem;

namespace {

/// Removes what nobody shall begin to work in meanwhile. Where the lock is a file in the folder, that goes first, and
/// the rest behind it; and what is write-protected goes on some systems only when it is told so before.
void entferneGanz(const fs::path& ordner, Systemgriff& schloss)
{
    std::error_code egal;
    std::error_code fehler;
    for (fs::recursive_directory_iterator ort(ordner, fehler), ende; !fehler && ort != ende; ort.increment(fehler)) {
        fs::permissions(ort->path(), fs::perms::owner_write, fs::perm_options::add | fs::perm_options::nofollow, egal);
    }
    fs::remove_all(ordner, egal);
    schloss.schließe();
    fs::remove_all(ordner, egal);
}

} // namespace

Wegwerfordner::Wegwerfordner(std::string_view vorsilbe)
{
    std::error_code fehler;
    const fs::path ablage = fs::temp_directory_path(fehler);
    constexpr auto nichtDa = "die Datei oder der Ordner ist nicht da"_t;
    std::string grund(nichtDa);
    // between making and locking, the clearing of another start may take the folder away
    constexpr int versuche = 10;
    for (int versuch = 0; !fehler && versuch < versuche && !m_schloss.istOffen(); ++versuch) {
        m_pfad = ablage / (std::string(vorsilbe) + std::to_string(std::random_device()()));
        try {
            Dateizugriff().legeOrdnerAn(m_pfad);
            m_schloss = sperreWegwerfordner(m_pfad);
        } catch (const Dateifehler& mißlungen) {
            grund = mißlungen.what();
        }
    }
    if (!m_schloss.istOffen()) {
        throw Laufzeitfehler(
            verbinde("In \""_t, pfadtext(ablage), "\" kann kein Zwischenordner angelegt werden: "_t, grund));
    }
}

Wegwerfordner::~Wegwerfordner()
{
    if (m_meiner) {
        entferneGanz(m_pfad, m_schloss);
    }
}

void Wegwerfordner::räumeAuf(std::string_view vorsilbe)
{
    std::error_code egal;
    for (const auto& eintrag : fs::directory_iterator(fs::temp_directory_path(egal), egal)) {
        if (eintrag.path().filename().string().starts_with(vorsilbe)) {
            if (auto schloss = sperreWegwerfordner(eintrag.path()); schloss.istOffen()) {
                entferneGanz(eintrag.path(), schloss);
            }
        }
    }
}
