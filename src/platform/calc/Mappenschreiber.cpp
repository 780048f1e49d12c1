#include "platform/calc/Mappenschreiber.h"

#include "platform/dateien/Dateien.h"
#include "platform/text/Eingabe.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <chrono>
#include <clocale>
#include <cstdio>
#include <future>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace {

constexpr double größteSpaltenbreite = 255;
constexpr double breitenzugabe = 1.5;
constexpr std::size_t datumslänge = 10;

[[noreturn]] void scheitere(const std::filesystem::path& pfad, std::string_view grund)
{
    throw Laufzeitfehler(
        verbinde("Die Arbeitsmappe kann nicht geschrieben werden: "_t, pfadtext(pfad), " ("_t, grund, ')'));
}

std::string_view grundVon(lxw_error fehler)
{
    switch (fehler) {
    case LXW_ERROR_CREATING_XLSX_FILE:
        return "die Datei kann nicht angelegt werden"_t;
    case LXW_ERROR_CREATING_TMPFILE:
    case LXW_ERROR_READING_TMPFILE:
        return "Fehler bei einer Zwischendatei"_t;
    case LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED:
        return "ein Text ist zu lang für eine Zelle"_t;
    case LXW_ERROR_WORKSHEET_INDEX_OUT_OF_RANGE:
        return "zu viele Zeilen oder Spalten"_t;
    default:
        return "Fehler beim Schreiben"_t;
    }
}

/// Column widths from the longest text of each column.
class Breitenmaß {
public:
    void nimm(int spalte, std::size_t länge)
    {
        const auto stelle = static_cast<std::size_t>(spalte);
        if (stelle >= m_längen.size()) {
            m_längen.resize(stelle + 1);
        }
        m_längen[stelle] = std::max(m_längen[stelle], länge);
    }

    void setze(lxw_worksheet* ziel) const
    {
        for (std::size_t spalte = 1; spalte < m_längen.size(); ++spalte) {
            if (m_längen[spalte] > 0) {
                const double breite =
                    std::min(größteSpaltenbreite, static_cast<double>(m_längen[spalte]) + breitenzugabe);
                const auto nummer = static_cast<lxw_col_t>(spalte - 1);
                worksheet_set_column(ziel, nummer, nummer, breite, nullptr);
            }
        }
    }

private:
    std::vector<std::size_t> m_längen;
};

/// The library writes decimals as the process locale has them, but a file wants the point.
class Dezimalpunkt {
public:
    Dezimalpunkt() : m_vorher(std::setlocale(LC_NUMERIC, nullptr)) { std::setlocale(LC_NUMERIC, "C"); }
    Dezimalpunkt(const Dezimalpunkt&) = delete;
    Dezimalpunkt& operator=(const Dezimalpunkt&) = delete;
    ~Dezimalpunkt() { std::setlocale(LC_NUMERIC, m_vorher.c_str()); }

private:
    std::string m_vorher;
};

constexpr int zeilenJePause = 50;
/// The part of the time that the rows take; the rest goes into the packing.
constexpr double anteilDerZeilen = 0.4;
/// The part of the size of its rows to which a workbook is packed, measured on the records of a facility.
constexpr double packmaß = 0.09;
constexpr std::chrono::milliseconds pause{30};

int zeilenAnzahl(const Blatt& blatt)
{
    return std::max(blatt.zeilenanzahl(), blatt.letzteKommentarzeile());
}

int zeilenAnzahl(const Arbeitsmappe& mappe)
{
    int anzahl = 0;
    for (std::size_t nummer = 1; nummer <= mappe.blattanzahl(); ++nummer) {
        anzahl += zeilenAnzahl(mappe.blatt(nummer));
    }
    return anzahl;
}

class Mappenschreiber {
public:
    explicit Mappenschreiber(const std::filesystem::path& pfad) : m_pfad(pfad), m_ordner(pfad.parent_path().string())
    {
        lxw_workbook_options wahl{};
        wahl.constant_memory = LXW_TRUE;
        wahl.tmpdir = m_ordner.empty() ? nullptr : m_ordner.data();
        m_mappe = workbook_new_opt(pfad.string().c_str(), &wahl);
        if (m_mappe == nullptr) {
            scheitere(pfad, "kein Speicher"_t);
        }
        m_datum = legeDatumsformatAn();
        m_fett = workbook_add_format(m_mappe);
        m_fettesDatum = legeDatumsformatAn();
        format_set_bold(m_fett);
        format_set_bold(m_fettesDatum);
    }
    Mappenschreiber(const Mappenschreiber&) = delete;
    Mappenschreiber& operator=(const Mappenschreiber&) = delete;
    ~Mappenschreiber()
    {
        if (m_mappe != nullptr) {
            lxw_workbook_free(m_mappe);
        }
    }

    /// Told of each row.
    std::function<void()> nachZeile;

    void schreibe(const Blatt& blatt)
    {
        lxw_worksheet* ziel = workbook_add_worksheet(m_mappe, alsUtf8Zeichen(blatt.name()));
        if (ziel == nullptr) {
            scheitere(m_pfad, "Fehler bei einer Zwischendatei"_t);
        }
        Breitenmaß breiten;
        const int zeilen = zeilenAnzahl(blatt);
        for (int zeile = 1; zeile <= zeilen; ++zeile) {
            schreibeZeile(blatt, ziel, zeile, breiten);
            nachZeile();
        }
        if (blatt.sindBreitenAngepasst()) {
            breiten.setze(ziel);
        }
        // the writer itself does not look whether its rows reached the disk
        if (ziel->optimize_tmpfile != nullptr && std::fflush(ziel->optimize_tmpfile) != 0) {
            scheitere(m_pfad, grundVon(LXW_ERROR_CREATING_TMPFILE));
        }
        if (ziel->optimize_tmpfile != nullptr) {
            m_zeilenmenge += static_cast<double>(std::ftell(ziel->optimize_tmpfile));
        }
    }

    /// Packs; `zwischendurch` hears the share of the packing that is done.
    void schließe(const Zwischendurch& zwischendurch)
    {
        lxw_workbook* mappe = std::exchange(m_mappe, nullptr); // closing frees it, also on failure
        auto packen = std::async(std::launch::async, workbook_close, mappe);
        while (packen.wait_for(pause) != std::future_status::ready) {
            zwischendurch(gepackterAnteil());
        }
        prüfe(packen.get());
    }

private:
    /// The library doesn't tell how far it is, but the growing file does.
    double gepackterAnteil() const
    {
        std::error_code fehler;
        const auto größe = std::filesystem::file_size(m_pfad, fehler);
        return fehler ? 0.0 : std::min(1.0, static_cast<double>(größe) / std::max(1.0, m_zeilenmenge * packmaß));
    }

    /// For the C functions; holds until the next call.
    const char* alsUtf8Zeichen(std::string_view text)
    {
        if (std::ranges::all_of(text, [](char zeichen) { return zeichen > 0; })) {
            m_utf8.assign(text);
        } else {
            m_utf8 = alsUtf8(text);
            std::erase(m_utf8, '\0');
        }
        return m_utf8.c_str();
    }

    static lxw_row_t stelle(int zeile) { return static_cast<lxw_row_t>(zeile - 1); }
    static lxw_col_t spaltenstelle(int spalte) { return static_cast<lxw_col_t>(spalte - 1); }

    lxw_format* legeDatumsformatAn()
    {
        lxw_format* format = workbook_add_format(m_mappe);
        format_set_num_format(format, "dd.mm.yyyy");
        return format;
    }

    void prüfe(lxw_error fehler) const
    {
        if (fehler != LXW_NO_ERROR) {
            scheitere(m_pfad, grundVon(fehler));
        }
    }

    void schreibeZeile(const Blatt& blatt, lxw_worksheet* ziel, int zeile, Breitenmaß& breiten)
    {
        const bool fett = blatt.istFett(zeile);
        blatt.fürJedeZelle(zeile, [&](int spalte, const Zellwert& wert) {
            prüfe(schreibeZelle(ziel, stelle(zeile), spaltenstelle(spalte), wert, fett));
            breiten.nimm(spalte, wert.art == Zellart::Datum ? datumslänge : wert.text.size());
        });
        blatt.fürJedenKommentar(zeile, [&](int spalte, std::string_view text) {
            prüfe(worksheet_write_comment(ziel, stelle(zeile), spaltenstelle(spalte), alsUtf8Zeichen(text)));
        });
    }

    lxw_error schreibeZelle(lxw_worksheet* ziel, lxw_row_t zeile, lxw_col_t spalte, const Zellwert& wert, bool fett)
    {
        lxw_format* format = fett ? m_fett : nullptr;
        switch (wert.art) {
        case Zellart::Zahl:
            return worksheet_write_number(ziel, zeile, spalte, wert.zahl, format);
        case Zellart::Datum:
            return worksheet_write_number(ziel, zeile, spalte, static_cast<double>(alsTageszahl(wert.datum)),
                                          fett ? m_fettesDatum : m_datum);
        default:
            return worksheet_write_string(ziel, zeile, spalte, alsUtf8Zeichen(wert.text), format);
        }
    }

    Dezimalpunkt m_dezimalpunkt;
    std::filesystem::path m_pfad;
    std::string m_ordner;
    lxw_workbook* m_mappe = nullptr;
    lxw_format* m_datum = nullptr;
    lxw_format* m_fett = nullptr;
    lxw_format* m_fettesDatum = nullptr;
    double m_zeilenmenge = 0;
    std::string m_utf8; ///< its room is used again for the next cell
};

} // namespace

void schreibeXlsx(const Arbeitsmappe& mappe, const std::filesystem::path& pfad, const Zwischendurch& zwischendurch)
{
    const Zwischendurch melde = zwischendurch ? zwischendurch : [](double) {};
    const int zeilen = zeilenAnzahl(mappe);
    int geschrieben = 0;
    Mappenschreiber schreiber(pfad);
    schreiber.nachZeile = [&] {
        if (++geschrieben % zeilenJePause == 0) {
            melde(anteilDerZeilen * geschrieben / zeilen);
        }
    };
    for (std::size_t nummer = 1; nummer <= mappe.blattanzahl(); ++nummer) {
        schreiber.schreibe(mappe.blatt(nummer));
    }
    schreiber.schließe([&](double anteil) { melde(anteilDerZeilen + (1 - anteilDerZeilen) * anteil); });
}
