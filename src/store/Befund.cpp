#include "store/Befund.h"

#include "platform/text/Text.h"
#include "satz/Satzgrenzen.h"
#include "satz/Wertpruefung.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

namespace {

constexpr auto laufzeitfehler = "endet beim Lesen mit einem Laufzeitfehler"_t;
constexpr auto unverändert = "wird unverändert angezeigt und exportiert"_t;
constexpr auto wirdEntfernt = "wird beim nächsten Start entfernt"_t;
constexpr auto bleibt = "bleibt, wie es ist"_t;
static_assert(satzgrenze::zeilenlänge == 32767 && satzgrenze::höchsteNummer == 32767,
              "the findings ZeileZuLang and SchlüsselAußerhalb below name the old limit: write the new one there");

using enum Befundart;
using enum Gewicht;

constexpr std::array regeln{
    Befundregel{ZeilenendenFremd, Fehler, "die Zeilen enden nicht mit CR LF"_t,
                "wird gelesen; das nächste Neuschreiben der Tabelle berichtigt es"_t},
    Befundregel{ZeilenendenGemischt, Fehler, "die Zeilenenden sind gemischt"_t,
                "wird gelesen; das nächste Neuschreiben der Tabelle berichtigt es"_t},
    Befundregel{ZeilenendeFehlt, Fehler, "der letzten Zeile fehlt das Zeilenende"_t,
                "wird gelesen; das nächste Schreiben ergänzt es"_t},
    Befundregel{ZeileLeer, Fehler, "leere Zeile"_t, laufzeitfehler},
    Befundregel{ZeileZuLang, Fehler, "die Zeile ist länger als 32767 Zeichen"_t, laufzeitfehler},
    Befundregel{FelderZuWenige, Fehler, "zu wenige Felder"_t, "was fehlt, gilt als leer"_t},
    Befundregel{FelderZuViele, Fehler, "zu viele Felder"_t, "was zuviel ist, wird nicht gelesen, ein OK läßt es weg"_t},
    Befundregel{SchlüsselKeineZahl, Fehler, "die Nummer ist keine Zahl"_t, laufzeitfehler},
    Befundregel{SchlüsselAußerhalb, Fehler, "die Nummer liegt nicht zwischen 1 und 32767"_t, laufzeitfehler},
    Befundregel{SchlüsselForm, Fehler, "die Nummer steht nicht als reine Zahl da"_t,
                "wird gelesen; der Status des Klienten wird danach falsch bestimmt"_t},
    Befundregel{SchlüsselDoppelt, Fehler, "die Nummer kommt schon vor"_t,
                "gelesen wird die erste Zeile, ein OK macht alle gleich"_t},
    Befundregel{BetreuungOhneKlient, Fehler, "zu dieser Betreuung gibt es keinen Klienten"_t,
                "wird nicht angezeigt und nicht exportiert"_t},
    Befundregel{BetreuungOhneDiagnose, Fehler, "zu dieser Betreuung gibt es keine Diagnosezeile"_t,
                "wird nicht exportiert; ein OK auf die Betreuung legt die Diagnosezeile an"_t},
    Befundregel{DiagnoseOhneBetreuung, Fehler, "zu dieser Diagnosezeile gibt es keine Betreuung"_t,
                "wird nicht angezeigt und nicht exportiert; eine neue Betreuung mit der Nummer ersetzt sie"_t},
    Befundregel{StatusUnbekannt, Fehler, "der Status ist weder o noch a noch leer"_t,
                "wird beim nächsten Start berichtigt"_t},
    Befundregel{StatusVeraltet, Hinweis, "der Status paßt nicht zu den Betreuungen"_t,
                "wird beim nächsten Start berichtigt"_t},
    Befundregel{DatumUngültig, Fehler, "kein gültiges Datum"_t, {}},
    Befundregel{DatumZweistellig, Fehler, "die Jahreszahl hat nicht vier Stellen"_t,
                "wird beim nächsten Start ergänzt"_t},
    Befundregel{EndeVorBeginn, Fehler, "die Betreuung endet vor ihrem Beginn"_t, unverändert},
    Befundregel{Überschneidung, Fehler, "die Betreuung überschneidet sich mit einer anderen des Klienten"_t,
                unverändert},
    Befundregel{MehrereOffen, Fehler, "der Klient hat mehr als eine offene Betreuung"_t, unverändert},
    Befundregel{WertUnbekannt, Fehler, "diesen Wert hat keine Liste"_t, unverändert},
    Befundregel{BitfeldKeineZahl, Fehler, "das Bitfeld ist keine ganze Zahl"_t,
                "die Diagnoseseite endet mit einem Laufzeitfehler"_t},
    Befundregel{BitfeldFremd, Fehler, "das Bitfeld hat Bits, zu denen es keinen Problembereich gibt"_t,
                "wird nicht angezeigt"_t},
    Befundregel{BitfeldNegativ, Hinweis, "das Bitfeld ist negativ"_t,
                "auch Problembereiche ohne Angaben werden angezeigt"_t},
    Befundregel{BitFehlt, Hinweis, "ein Problembereich mit Angaben hat kein Bit"_t, "wird trotzdem angezeigt"_t},
    Befundregel{Steuerzeichen, Fehler, "Steuerzeichen"_t, bleibt},
    Befundregel{ZeichenUnbelegt, Hinweis, "Zeichen, das die Codepage nicht kennt"_t, bleibt},
    Befundregel{VermerkGanz, Fehler, "eine gespeicherte Eingabe ist noch nicht in allen Tabellen"_t,
                "wird beim nächsten Start vollendet, andere Befunde können sich damit erledigen"_t},
    Befundregel{VermerkUnvollständig, Fehler, "unvollständiger Vermerk über eine Eingabe"_t, wirdEntfernt},
    Befundregel{Arbeitsdatei, Fehler, "Arbeitsdatei einer abgebrochenen Eingabe"_t, wirdEntfernt},
    Befundregel{AlteArbeitsdatei, Fehler, "Arbeitsdatei einer älteren Fassung des Programms"_t,
                "bleibt liegen; darin kann der Stand einer Tabelle stehen"_t},
    Befundregel{Importordner, Fehler, "Arbeitsordner eines abgebrochenen Imports"_t, wirdEntfernt},
    Befundregel{SicherungAngefangen, Fehler, "angefangene Sicherung"_t, wirdEntfernt},
    Befundregel{SicherungUnvollendet, Hinweis,
                "beiseite gelegter Stand einer Eingabe, die nicht vollendet werden konnte"_t, "bleibt liegen"_t},
};

std::string feldnameAn(const Fundort& ort)
{
    if (!ort.tabelle || ort.feld == 0) {
        return {};
    }
    switch (*ort.tabelle) {
    case Tabelle::Betr:
        return feldOderNichts(betreuungsfelder(), ort.feld).name;
    case Tabelle::Diag:
        return diagnosefeldname(ort.feld);
    default:
        return feldOderNichts(klientenfelder(), ort.feld).name;
    }
}

} // namespace

std::span<const Befundregel> befundregeln()
{
    return regeln;
}

const Befundregel& regelFür(Befundart art)
{
    return regeln.at(static_cast<std::size_t>(art));
}

void Befundliste::melde(Befundart art, Fundort ort, std::string_view genauer, std::string_view folge)
{
    const auto& regel = regelFür(art);
    auto feldname = feldnameAn(ort);
    auto text = genauer.empty() ? std::string(regel.was) : verbinde(regel.was, ": "_t, genauer);
    m_befunde.push_back(
        {art, std::move(ort), std::move(feldname), std::move(text), std::string(folge.empty() ? regel.folge : folge)});
}

std::vector<Befund> Befundliste::nimm()
{
    const auto rang = [](const Befund& befund) {
        const auto tabelle = befund.ort.tabelle ? static_cast<int>(*befund.ort.tabelle) : -1;
        return std::tuple(tabelle, befund.ort.zeile, befund.ort.feld);
    };
    std::ranges::stable_sort(m_befunde, {}, rang);
    return std::exchange(m_befunde, {});
}

std::string alsZitat(std::string_view wert)
{
    constexpr std::size_t höchstens = 40;
    constexpr std::string_view ziffern = "0123456789ABCDEF";
    std::string text = "\"";
    for (const char zeichen : wert.substr(0, höchstens)) {
        const auto byte = static_cast<unsigned char>(zeichen);
        if (byte < 0x20U || byte == 0x7FU) {
            text += verbinde("\\x"_t, ziffern[byte / 16U], ziffern[byte % 16U]);
        } else {
            text.push_back(zeichen);
        }
    }
    return verbinde(text, wert.size() > höchstens ? "…\""_t : "\""_t);
}
