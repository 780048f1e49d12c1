#include "ablauf/Programmdateien.h"

#include "sprache/Unicode.h"
#include "umgebung/Szenarioumgebung.h"

#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

std::string namensende(const fs::path& pfad)
{
    const auto u8 = pfad.filename().u8string();
    return {u8.begin(), u8.end()};
}

} // namespace

void schreibeDatei(const fs::path& pfad, std::string_view inhalt)
{
    fs::create_directories(pfad.parent_path());
    std::ofstream datei(pfad, std::ios::binary);
    datei.write(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
    datei.close();
    if (!datei) {
        throw Scheitern("eine beschreibbare Datei " + namensende(pfad), "keine");
    }
}

std::string liesDatei(const fs::path& pfad)
{
    std::ifstream datei(pfad, std::ios::binary);
    if (!datei || fs::is_directory(pfad)) {
        throw Scheitern("die Datei " + namensende(pfad), "keine");
    }
    std::ostringstream inhalt; // at once: byte for byte takes long where nothing is optimised
    inhalt << datei.rdbuf();
    return inhalt.str();
}

void hängeZeileAn(const fs::path& pfad, const std::string& zeile)
{
    std::string inhalt = liesDatei(pfad);
    if (!inhalt.empty() && !inhalt.ends_with('\n') && !inhalt.ends_with('\r')) {
        inhalt += "\r\n";
    }
    schreibeDatei(pfad, inhalt + zeile + "\r\n");
}

std::string alsDateiinhalt(const std::vector<std::u32string>& zeilen)
{
    std::string inhalt;
    for (const auto& zeile : zeilen) {
        inhalt += alsTabellentext(zeile) + "\r\n";
    }
    return inhalt;
}

void kopiereNach(const fs::path& quelle, const fs::path& ziel)
{
    if (!fs::is_directory(quelle)) {
        schreibeDatei(ziel, liesDatei(quelle));
        return;
    }
    fs::create_directories(ziel);
    for (const auto& eintrag : fs::directory_iterator(quelle)) {
        kopiereNach(eintrag.path(), ziel / eintrag.path().filename());
    }
}
