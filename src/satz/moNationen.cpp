#include "satz/moNationen.h"

#include "platform/text/Ressourcen.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int ressource = 1000;

/// Names letter for letter as the records hold them.
constexpr Nation alle[]{
    {"EGY"_t, "Aegypten"_t},
    {"GNQ"_t, "Aequatorial Guinea"_t},
    {"ETH"_t, "Aethiopien"_t},
    {"AFG"_t, "Afghanistan"_t},
    {"ALB"_t, "Albanien"_t},
    {"DZA"_t, "Algerien"_t},
    {"AGO"_t, "Angola"_t},
    {"ARG"_t, "Argentinien"_t},
    {"ARM"_t, "Armenien"_t},
    {"AZE"_t, "Aserbeidschan"_t},
    {"AUS"_t, "Australien"_t},
    {"BHR"_t, "Bahrain"_t},
    {"BGD"_t, "Bangladesch"_t},
    {"BEL"_t, "Belgien"_t},
    {"BLZ"_t, "Belize"_t},
    {"BEN"_t, "Benin"_t},
    {"BMU"_t, "Bermudas"_t},
    {"BTN"_t, "Bhutan"_t},
    {"BOL"_t, "Bolivien"_t},
    {"BIH"_t, "Bosnien-Herzegowina"_t},
    {"BWA"_t, "Botswana"_t},
    {"BRA"_t, "Brasilien"_t},
    {"BGR"_t, "Bulgarien"_t},
    {"BFA"_t, "Burkina Faso"_t},
    {"BDI"_t, "Burundi"_t},
    {"CAN"_t, "Canada"_t},
    {"CHL"_t, "Chile"_t},
    {"CHN"_t, "China"_t},
    {"CRI"_t, "Costa Rica"_t},
    {"CUB"_t, "Cuba"_t},
    {"DEU"_t, "Deutschland"_t},
    {"DNK"_t, "Dänemark"_t},
    {"DJI"_t, "Djibouti"_t},
    {"DOM"_t, "Dominikanische Republik"_t},
    {"ECU"_t, "Ecuador"_t},
    {"SLV"_t, "El Salvador"_t},
    {"ERI"_t, "Eritrea"_t},
    {"EST"_t, "Estland"_t},
    {"FIN"_t, "Finnland"_t},
    {"FRA"_t, "Frankreich"_t},
    {"GAB"_t, "Gabun"_t},
    {"GMB"_t, "Gambia"_t},
    {"GEO"_t, "Georgien"_t},
    {"GHA"_t, "Ghana"_t},
    {"GRC"_t, "Griechenland"_t},
    {"GRL"_t, "Groenland"_t},
    {"GBR"_t, "Grossbritannien"_t},
    {"GLP"_t, "Guadeloupe"_t},
    {"GTM"_t, "Guatemala"_t},
    {"GIN"_t, "Guinea"_t},
    {"GUY"_t, "Guyana"_t},
    {"HTI"_t, "Haiti"_t},
    {"HND"_t, "Honduras"_t},
    {"IND"_t, "Indien"_t},
    {"IDN"_t, "Indonesien"_t},
    {"IRQ"_t, "Irak"_t},
    {"IRN"_t, "Iran"_t},
    {"IRL"_t, "Irland"_t},
    {"ISL"_t, "Island"_t},
    {"ISR"_t, "Israel"_t},
    {"ITA"_t, "Italien"_t},
    {"JAM"_t, "Jamaica"_t},
    {"JPN"_t, "Japan"_t},
    {"YEM"_t, "Jemen"_t},
    {"JOR"_t, "Jordanien"_t},
    {"KHM"_t, "Kambodscha"_t},
    {"CMR"_t, "Kamerun"_t},
    {"KAZ"_t, "Kasachstan"_t},
    {"KEN"_t, "Kenia"_t},
    {"KGZ"_t, "Kirgisistan"_t},
    {"COL"_t, "Kolumbien"_t},
    {"COG"_t, "Kongo"_t},
    {"HRV"_t, "Kroatien"_t},
    {"KWT"_t, "Kuwait"_t},
    {"LAO"_t, "Laos"_t},
    {"LSO"_t, "Lesotho"_t},
    {"LVA"_t, "Lettland"_t},
    {"LBN"_t, "Libanon"_t},
    {"LBR"_t, "Liberia"_t},
    {"LBY"_t, "Libyen"_t},
    {"LIE"_t, "Liechtenstein"_t},
    {"LTU"_t, "Litauen"_t},
    {"LUX"_t, "Luxembourg"_t},
    {"MDG"_t, "Madagaskar"_t},
    {"MWI"_t, "Malawi"_t},
    {"MYS"_t, "Malaysia"_t},
    {"MLI"_t, "Mali"_t},
    {"MLT"_t, "Malta"_t},
    {"MAR"_t, "Marokko"_t},
    {"MRT"_t, "Mauretanien"_t},
    {"MKD"_t, "Mazedonien"_t},
    {"MEX"_t, "Mexico"_t},
    {"MDA"_t, "Moldavien"_t},
    {"MNG"_t, "Mongolei"_t},
    {"MNE"_t, "Montenegro"_t},
    {"MOZ"_t, "Mozambique"_t},
    {"NAM"_t, "Namibia"_t},
    {"NZL"_t, "Neuseeland"_t},
    {"NPL"_t, "Nepal"_t},
    {"NIC"_t, "Nicaragua"_t},
    {"NLD"_t, "Niederlande"_t},
    {"NER"_t, "Niger"_t},
    {"NGA"_t, "Nigeria"_t},
    {"PRK"_t, "Nordkorea"_t},
    {"NOR"_t, "Norwegen"_t},
    {"AUT"_t, "Oesterreich"_t},
    {"OMN"_t, "Oman"_t},
    {"TMP"_t, "Osttimor"_t},
    {"PAK"_t, "Pakistan"_t},
    {"PAN"_t, "Panama"_t},
    {"PNG"_t, "Papua Neuguinea"_t},
    {"PRY"_t, "Paraguay"_t},
    {"PER"_t, "Peru"_t},
    {"PHL"_t, "Philippinen"_t},
    {"POL"_t, "Polen"_t},
    {"PRT"_t, "Portugal"_t},
    {"PRI"_t, "Puerto rico"_t},
    {"QAT"_t, "Qatar"_t},
    {"COD"_t, "Republik kongo"_t},
    {"RWA"_t, "Ruanda"_t},
    {"ROM"_t, "Rumaenien"_t},
    {"RUS"_t, "Russische Foederation"_t},
    {"ZMB"_t, "Sambia"_t},
    {"SAU"_t, "Saudi Arabien"_t},
    {"SWE"_t, "Schweden"_t},
    {"CHE"_t, "Schweiz"_t},
    {"SEN"_t, "Senegal"_t},
    {"SRB"_t, "Serbien"_t},
    {"SLE"_t, "Sierra Leone"_t},
    {"SGP"_t, "Singapur"_t},
    {"SVK"_t, "Slowakei"_t},
    {"SVN"_t, "Slowenien"_t},
    {"SOM"_t, "Somalia"_t},
    {"ESP"_t, "Spanien"_t},
    {"LKA"_t, "Sri Lanka"_t},
    {"ZAF"_t, "Südafrika"_t},
    {"SDN"_t, "Sudan"_t},
    {"KOR"_t, "Südkorea"_t},
    {"SUR"_t, "Surinam"_t},
    {"SYR"_t, "Syrien"_t},
    {"TJK"_t, "Tadschikistan"_t},
    {"TWN"_t, "Taiwan"_t},
    {"TZA"_t, "Tansania"_t},
    {"THA"_t, "Thailand"_t},
    {"TGO"_t, "Togo"_t},
    {"TCD"_t, "Tschad"_t},
    {"CZE"_t, "Tschechien"_t},
    {"TUR"_t, "Tuerkei"_t},
    {"TUN"_t, "Tunesien"_t},
    {"TKM"_t, "Turkmenistan"_t},
    {"UGA"_t, "Uganda"_t},
    {"UKR"_t, "Ukraine"_t},
    {"HUN"_t, "Ungarn"_t},
    {"URY"_t, "Uruguay"_t},
    {"UZB"_t, "Usbekistan"_t},
    {"VEN"_t, "Venezuela"_t},
    {"ARE"_t, "Ver. Arabische Emirate"_t},
    {"USA"_t, "Vereinigte Staaten"_t},
    {"VNM"_t, "Vietnam"_t},
    {"BLR"_t, "Weissrussland"_t},
    {"CAF"_t, "Zentralafrik. Republik"_t},
    {"ZWE"_t, "Zimbabwe"_t},
    {"CYP"_t, "Zypern"_t},
    {"XXX"_t, "andere Staaten"_t},
    {"YYY"_t, "staatenlos"_t},
};

const Nation* finde(std::string_view Nation::*teil, std::string_view wert)
{
    const auto ort = std::ranges::find(alle, wert, teil);
    return ort == std::end(alle) ? nullptr : ort;
}

} // namespace

std::span<const Nation> nationen()
{
    return alle;
}

void registriereNationen(Ressourcen& ressourcen)
{
    ressourcen.nimm({ressource, static_cast<int>(std::size(alle)), [](int zeile) {
                         const auto& nation = alle[zeile - 1];
                         return verbinde(nation.code, trenner, nation.name);
                     }});
}

std::string getNationZuCode(std::string_view code)
{
    if (code.empty()) {
        return std::string("keine Angaben"_t);
    }
    const auto* nation = finde(&Nation::code, code);
    return nation == nullptr ? verbinde("konnte Nationencode "_t, code, " nicht zuordnen"_t)
                             : std::string(nation->name);
}

std::string_view getCodeZuNation(std::string_view name)
{
    const auto* nation = finde(&Nation::name, name);
    return nation == nullptr ? std::string_view{} : nation->code;
}
