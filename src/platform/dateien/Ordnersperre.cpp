#include "platform/dateien/Ordnersperre.h"

#include "platform/dateien/Dateien.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

namespace {

/// The first start makes the folder; two first starts at once meet in one folder.
void stelleOrdnerBereit(Dateien& dateien, const std::filesystem::path& ordner)
{
    try {
        dateien.sorgeFürOrdner(ordner);
    } catch (const Laufzeitfehler& fehler) {
        if (!dateien.istOrdner(ordner)) {
            throw Laufzeitfehler(verbinde("Der Programmordner ist nicht beschreibbar. "_t, fehler.text()));
        }
    }
}

} // namespace

Systemgriff sperreDatenordner(Dateien& dateien, const std::filesystem::path& ordner)
{
    stelleOrdnerBereit(dateien, ordner);
    try {
        return sperreOrdner(ordner);
    } catch (const Dateifehler& fehler) {
        throw Laufzeitfehler(verbinde("Ob das Programm schon mit diesem Datenordner arbeitet, kann nicht festgestellt "
                                      "werden: \""_t,
                                      pfadtext(ordner), "\": "_t, std::string_view(fehler.what())));
    }
}
