#include "store/Lesestand.h"

#include "platform/dateien/Dateien.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"
#include "satz/Satzgrenzen.h"
#include "satz/moHelferlein.h"

#include <algorithm>
#include <array>

namespace fs = std::filesystem;

std::string Satzschlüssel::text() const
{
    return betrID ? verbinde(alsText(kernID), '-', alsText(*betrID)) : alsText(kernID);
}

std::string_view satznameIn(Tabelle tabelle)
{
    constexpr std::array namen{"KernDS"_t, "BetrDS"_t, "DiagDS"_t};
    return namen.at(static_cast<std::size_t>(tabelle));
}

std::string ortsangabe(const fs::path& tabelle, std::size_t nummer)
{
    return verbinde("\""_t, pfadtext(tabelle), "\", Zeile "_t, std::to_string(nummer));
}

void prüfeSatzlänge(std::string_view satz, const fs::path& tabelle, std::size_t nummer)
{
    if (satz.size() > satzgrenze::zeilenlänge) {
        throw Laufzeitfehler(verbinde(nummer == 0 ? pfadtext(tabelle) : ortsangabe(tabelle, nummer),
                                      ": Überlauf, die Zeile ist "_t, std::to_string(satz.size()),
                                      " Zeichen lang, erlaubt sind "_t, std::to_string(satzgrenze::zeilenlänge)));
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

Satzschlüssel leseSchlüsselDerZeile(Tabelle tabelle, std::string_view zeile, const fs::path& pfad, std::size_t nummer)
{
    if (tabelle == Tabelle::Kern) {
        return {leseSchlüssel(zeile, feld::kern::kernID, 16, pfad, nummer)};
    }
    static_assert(feld::betr::kernID == feld::diag::kernID && feld::betr::betrID == feld::diag::betrID);
    const auto kernID = leseSchlüssel(zeile, feld::betr::kernID, 16, pfad, nummer);
    return {kernID, leseSchlüssel(zeile, feld::betr::betrID, 16, pfad, nummer)};
}

std::string Lesestand::get(Tabelle tabelle, const Satzschlüssel& schlüssel) const
{
    std::optional<std::string> gefunden;
    laufe(tabelle, [&](std::string_view zeile, std::size_t nummer) {
        if (leseSchlüsselDerZeile(tabelle, zeile, m_pfade.von(tabelle), nummer) == schlüssel) {
            gefunden = zeile;
        }
        return !gefunden;
    });
    if (!gefunden) {
        m_meldung(
            verbinde("Fehler in get"_t, satznameIn(tabelle), ": ID "_t, schlüssel.text(), " wurde nicht gefunden"_t),
            Symbol::Stop);
    }
    return gefunden.value_or(std::string());
}

std::int32_t Lesestand::höchsteKernID() const
{
    std::int32_t höchste = 0;
    fürJedeZeile(Tabelle::Kern, [&](std::string_view zeile, std::size_t nummer) {
        höchste = std::max(höchste, leseSchlüssel(zeile, feld::kern::kernID, 32, m_pfade.kernDat, nummer));
    });
    return höchste;
}

std::int32_t Lesestand::höchsteBetrID(std::int32_t kernID) const
{
    std::int32_t höchste = 0;
    fürJedeZeile(Tabelle::Betr, [&](std::string_view zeile, std::size_t nummer) {
        if (leseSchlüssel(zeile, feld::betr::kernID, 16, m_pfade.betrDat, nummer) == kernID) {
            höchste = std::max(höchste, leseSchlüssel(zeile, feld::betr::betrID, 32, m_pfade.betrDat, nummer));
        }
    });
    return höchste;
}

std::string Lesestand::betrStatusVon(std::string_view kernID) const
{
    std::string status;
    laufe(Tabelle::Betr, [&](std::string_view zeile, std::size_t) {
        if (getFeld(zeile, feld::betr::kernID) == kernID) {
            status = getFeld(zeile, feld::betr::ende) == "offen"_t ? "o" : "a";
        }
        return status != "o";
    });
    return status;
}

void Lesestand::fürJedeZeile(Tabelle tabelle,
                             const std::function<void(std::string_view zeile, std::size_t nummer)>& tue) const
{
    laufe(tabelle, [&](std::string_view zeile, std::size_t nummer) {
        tue(zeile, nummer);
        return true;
    });
}

std::string Lesestand::ortVon(Tabelle tabelle, const Satzschlüssel& schlüssel) const
{
    std::string ort = verbinde("\""_t, pfadtext(m_pfade.von(tabelle)), "\""_t);
    try {
        laufe(tabelle, [&](std::string_view zeile, std::size_t nummer) {
            const bool trifft = leseSchlüsselDerZeile(tabelle, zeile, m_pfade.von(tabelle), nummer) == schlüssel;
            if (trifft) {
                ort = ortsangabe(m_pfade.von(tabelle), nummer);
            }
            return !trifft;
        });
    } catch (const Laufzeitfehler&) {
        // the failure that is being told counts, not one on the way to its place
    }
    return ort;
}
