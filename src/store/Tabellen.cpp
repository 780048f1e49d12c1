#include "store/Tabellen.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "store/Tabellenleser.h"
#include "satz/moHelferlein.h"
#include "zustand/Zustand.h"

#include <algorithm>
#include <memory>
#include <optional>

namespace fs = std::filesystem;

namespace {

/// A table of the store: where it lies, and how messages name its records.
struct Tabelle {
    std::string_view satzname;
    fs::path Pfade::*pfad;

    const fs::path& ort() const { return zustand().pfade.*pfad; }
};

constexpr Tabelle kernTabelle{"KernDS"_t, &Pfade::kernDat};
constexpr Tabelle betrTabelle{"BetrDS"_t, &Pfade::betrDat};
constexpr Tabelle diagTabelle{"DiagDS"_t, &Pfade::diagDat};

/// What a record is found by.
struct Schlüssel {
    std::int32_t kernID;
    std::optional<std::int32_t> betrID = std::nullopt;

    /// Every key field of a line is read, whether the others match or not: a table with a damaged key is not
    /// read past that line.
    bool passtAuf(const Tabellenleser& leser) const
    {
        if (!betrID) {
            return leser.schlüssel(2, 16) == kernID;
        }
        const bool gleicherKlient = leser.schlüssel(1, 16) == kernID;
        return leser.schlüssel(2, 16) == *betrID && gleicherKlient;
    }
    std::string text() const { return betrID ? verbinde(alsText(kernID), '-', alsText(*betrID)) : alsText(kernID); }
};

std::string get(const Tabelle& tabelle, const Schlüssel& schlüssel)
{
    Tabellenleser leser(tabelle.ort());
    while (const auto zeile = leser.nächste()) {
        if (schlüssel.passtAuf(leser)) {
            return std::string(*zeile);
        }
    }
    zeigeMeldung(verbinde("Fehler in get"_t, tabelle.satzname, ": ID "_t, schlüssel.text(), " wurde nicht gefunden"_t),
                 Symbol::Stop);
    return {};
}

void anfüge(const Tabelle& tabelle, std::string_view satz)
{
    prüfeSatzlänge(satz, pfadtext(tabelle.ort()));
    zustand().umgebung.dateien().hängeZeileAn(tabelle.ort(), satz);
}

/// Writes the table anew, with `statt` (or nothing) in the place of every line with the key. The table is
/// opened before the work file is, and let go before it is replaced. False when no line has the key.
bool schreibeUm(const Tabelle& tabelle, const Schlüssel& schlüssel, std::optional<std::string_view> statt)
{
    auto leser = std::make_unique<Tabellenleser>(tabelle.ort());
    bool gefunden = false;
    zustand().umgebung.dateien().ersetze(tabelle.ort(), zustand().pfade.dummyDatei, [&](Schreiber& schreiber) {
        while (const auto zeile = leser->nächste()) {
            const bool trifft = schlüssel.passtAuf(*leser);
            gefunden = gefunden || trifft;
            if (const auto neu = trifft ? statt : zeile) {
                schreiber.zeile(*neu);
            }
        }
        leser.reset();
    });
    return gefunden;
}

void ersetze(const Tabelle& tabelle, const Schlüssel& schlüssel, std::string_view satz)
{
    prüfeSatzlänge(satz, pfadtext(tabelle.ort()));
    if (!schreibeUm(tabelle, schlüssel, satz)) {
        zeigeMeldung(verbinde("Achtung: ersetze"_t, tabelle.satzname, " hat nicht ersetzt"_t), Symbol::Stop);
    }
}

void lösche(const Tabelle& tabelle, const Schlüssel& schlüssel)
{
    if (!schreibeUm(tabelle, schlüssel, std::nullopt)) {
        zeigeMeldung(verbinde("Achtung: lösche"_t, tabelle.satzname, " hat DS "_t, schlüssel.text(),
                              " nicht gefunden und nicht ersetzt"_t));
    }
}

struct Sicherung {
    fs::path Pfade::*tabelle;
    fs::path Pfade::*bak;
};
constexpr Sicherung sicherungen[] = {
    {&Pfade::kernDat, &Pfade::kernBak}, {&Pfade::betrDat, &Pfade::betrBak}, {&Pfade::diagDat, &Pfade::diagBak}};

/// A backup folder without the file of an earlier backup has been tampered with; going on could overwrite
/// what somebody has moved aside.
void prüfeBak(const fs::path& bak)
{
    if (!zustand().umgebung.dateien().istDatei(bak)) {
        throw Laufzeitfehler(verbinde("Die Sicherungsdatei \""_t, pfadtext(bak), "\" fehlt"_t));
    }
}

} // namespace

std::string getKernDS(std::int32_t kernID)
{
    return get(kernTabelle, {kernID});
}

void anfügeKernDS(std::string_view satz)
{
    anfüge(kernTabelle, satz);
}

void ersetzeKernDS(std::int32_t kernID, std::string_view satz)
{
    ersetze(kernTabelle, {kernID}, satz);
}

void löscheKernDS(std::int32_t kernID)
{
    lösche(kernTabelle, {kernID});
}

std::int32_t höchsteKernID()
{
    std::int32_t höchste = 0;
    Tabellenleser leser(kernTabelle.ort());
    while (leser.nächste()) {
        höchste = std::max(höchste, leser.schlüssel(2, 32));
    }
    return höchste;
}

std::string getBetrDS(std::int32_t kernID, std::int32_t betrID)
{
    return get(betrTabelle, {kernID, betrID});
}

void anfügeBetrDS(std::string_view satz)
{
    anfüge(betrTabelle, satz);
}

void ersetzeBetrDS(std::int32_t kernID, std::int32_t betrID, std::string_view satz)
{
    ersetze(betrTabelle, {kernID, betrID}, satz);
}

void löscheBetrDS(std::int32_t kernID, std::int32_t betrID)
{
    lösche(betrTabelle, {kernID, betrID});
}

std::int32_t höchsteBetrID(std::int32_t kernID)
{
    std::int32_t höchste = 0;
    Tabellenleser leser(betrTabelle.ort());
    while (leser.nächste()) {
        if (leser.schlüssel(1, 16) == kernID) {
            höchste = std::max(höchste, leser.schlüssel(2, 32));
        }
    }
    return höchste;
}

std::string getDiagDS(std::int32_t kernID, std::int32_t betrID)
{
    return get(diagTabelle, {kernID, betrID});
}

void anfügeDiagDS(std::string_view satz)
{
    anfüge(diagTabelle, satz);
}

void ersetzeDiagDS(std::int32_t kernID, std::int32_t betrID, std::string_view satz)
{
    ersetze(diagTabelle, {kernID, betrID}, satz);
}

void löscheDiagDS(std::int32_t kernID, std::int32_t betrID)
{
    lösche(diagTabelle, {kernID, betrID});
}

std::string betrStatusVon(std::string_view kernID)
{
    bool gefunden = false;
    Tabellenleser leser(betrTabelle.ort());
    while (const auto zeile = leser.nächste()) {
        if (getFeld(*zeile, 1) != kernID) {
            continue;
        }
        gefunden = true;
        if (getFeld(*zeile, 4) == "offen"_t) {
            return "o";
        }
    }
    return gefunden ? "a" : "";
}

void sichereDateien()
{
    const auto& pfade = zustand().pfade;
    for (const auto& sicherung : sicherungen) {
        öffneTabelle(pfade.*sicherung.tabelle);
        prüfeBak(pfade.*sicherung.bak);
        zustand().umgebung.dateien().kopiereÜber(pfade.*sicherung.tabelle, pfade.*sicherung.bak);
    }
    zustand().aktKernID = 0;
}

void verwerfeSitzung()
{
    const auto& pfade = zustand().pfade;
    for (const auto& sicherung : sicherungen) {
        zustand().umgebung.dateien().kopiereÜber(pfade.*sicherung.bak, pfade.*sicherung.tabelle);
    }
}

void fürJedeZeile(const fs::path& tabelle, const std::function<void(std::string_view zeile, std::size_t nummer)>& tue)
{
    Tabellenleser leser(tabelle);
    while (const auto zeile = leser.nächste()) {
        tue(*zeile, leser.nummer());
    }
}

std::int32_t leseSchlüssel(std::string_view zeile, int feld, int bits, const fs::path& tabelle, std::size_t nummer)
{
    const auto text = getFeld(zeile, feld);
    const auto zahl = bits == 16 ? std::optional<std::int32_t>(leseGanzzahl16(text)) : leseGanzzahl32(text);
    if (!zahl) {
        throw Laufzeitfehler(verbinde(ortsangabe(tabelle, nummer), ", Feld "_t, std::to_string(feld), ": \""_t, text,
                                      "\" ist keine Zahl, die als Nummer gelesen werden kann"_t));
    }
    return *zahl;
}
