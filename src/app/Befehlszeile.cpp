#include "app/Befehlszeile.h"

#include "platform/dateien/Dateien.h"
#include "platform/text/Eingabe.h"

namespace {

constexpr auto hilfe = R"(Aufruf: tolvek7 [ORDNER]
        tolvek7 --muster | --pruefe [ORDNER] | --version | --hilfe

  ORDNER             arbeitet mit den Daten in diesem Ordner
  --muster           öffnet zum Üben eine erfundene Einrichtung, die am Ende wieder verschwindet
  --pruefe [ORDNER]  prüft die Tabellen, ohne etwas zu ändern;
                     Rückgabewert 0: alles in Ordnung, 1: etwas gefunden
  --version          nennt die Version
  --hilfe            zeigt diese Hilfe

Ohne ORDNER liegen die Daten neben dem Programm, wenn dort geschrieben werden darf, sonst im Ordner
„Tolvek7“ des persönlichen Ordners.
)";

Aufruf unverständlich(std::string_view was, const std::filesystem::path& argument)
{
    return {Aufrufart::Unverständlich, std::nullopt, std::string(was) + ": " + alsUtf8(pfadtext(argument))};
}

bool siehtNachSchalterAus(const std::filesystem::path& argument)
{
    return argument.native().starts_with(std::filesystem::path::value_type{'-'});
}

} // namespace

Aufruf leseAufruf(const std::vector<std::filesystem::path>& argumente)
{
    Aufruf aufruf;
    bool nimmtOrdner = true;
    auto nächstes = argumente.begin();
    if (nächstes != argumente.end()) {
        for (const auto& einer : schalter) {
            if (*nächstes == einer.name) {
                aufruf.art = einer.art;
                nimmtOrdner = einer.nimmtOrdner;
                ++nächstes;
                break;
            }
        }
    }
    for (; nächstes != argumente.end(); ++nächstes) {
        if (siehtNachSchalterAus(*nächstes)) {
            return unverständlich("unbekanntes Argument", *nächstes);
        }
        if (!nimmtOrdner || aufruf.ordner || nächstes->empty()) {
            return unverständlich("überzähliges Argument", *nächstes);
        }
        aufruf.ordner = *nächstes;
    }
    return aufruf;
}

std::string_view versionstext()
{
    return "Tolvek7 " TOLVEK_VERSION "\n";
}

std::string_view hilfetext()
{
    return hilfe;
}
