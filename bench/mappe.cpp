// The spreadsheet output, from reading the tables to the finished .xlsx, against libxlsxwriter alone on the same
// cells, which it gets ready-made: time, and peak memory beyond what the library holds itself.

#include "Messumgebung.h"

#include "app/moMain.h"
#include "platform/bildschirm/Bildschirm.h"
#include "platform/calc/Mappenschreiber.h"
#include "platform/mappe/Arbeitsmappe.h"
#include "platform/text/Eingabe.h"
#include "spreadsheet/frmZuExcel.h"

#include <xlsxwriter.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

/// The size on which the limits are stated.
constexpr Mustervorgabe zehntausendEpisoden{10000, 1, 7};

/// Writes what is handed over to a file, as the program does for the spreadsheet program.
class Mappenumgebung : public Messumgebung {
public:
    Mappenumgebung() : Messumgebung(zehntausendEpisoden) {}

    std::filesystem::path datei() { return programmordner() / "mappe.xlsx"; }
    bool übergibMappe(Arbeitsmappe& mappe, const std::function<void(double)>& fortschritt) override
    {
        if (beiMappe) {
            beiMappe(mappe);
        } else {
            schreibeXlsx(mappe, datei(), fortschritt);
        }
        return true;
    }

    std::function<void(Arbeitsmappe&)> beiMappe;
};

struct Lauf {
    Mappenumgebung umgebung;
    Programm programm{umgebung};

    Lauf() { programm.starte(); }

    void zuExcel()
    {
        Bildschirmfolge& folge = programm.zustand().folge;
        Bildschirm hauptmenü("frmDummy");
        frmZuExcel schirm;
        folge.öffneStatt(hauptmenü, schirm);
        folge.führeAktivierungenAus();
        folge.schließe(schirm);
        folge.entlade(hauptmenü);
    }
};

Lauf& lauf()
{
    static Lauf einer;
    return einer;
}

/// A workbook as the library wants it, without any work left to do.
struct Fertigzelle {
    std::uint32_t zeile;
    std::uint16_t spalte;
    Zellart art;
    double zahl;
    std::size_t text; ///< place in the texts
};

struct Fertigblatt {
    std::string name;
    std::vector<Fertigzelle> zellen;
};

struct Fertigmappe {
    std::vector<Fertigblatt> blätter;
    std::string texte;
};

Fertigmappe legeFertig(const Arbeitsmappe& mappe)
{
    Fertigmappe fertig;
    for (std::size_t nummer = 1; nummer <= mappe.blattanzahl(); ++nummer) {
        const Blatt& blatt = mappe.blatt(nummer);
        Fertigblatt& ziel = fertig.blätter.emplace_back(Fertigblatt{blatt.name(), {}});
        for (int zeile = 1; zeile <= blatt.zeilenanzahl(); ++zeile) {
            blatt.fürJedeZelle(zeile, [&](int spalte, const Zellwert& wert) {
                const bool istDatum = wert.art == Zellart::Datum;
                const double zahl = istDatum ? static_cast<double>(alsTageszahl(wert.datum)) : wert.zahl;
                ziel.zellen.push_back({static_cast<std::uint32_t>(zeile - 1), static_cast<std::uint16_t>(spalte - 1),
                                       wert.art, zahl, fertig.texte.size()});
                if (wert.art == Zellart::Text) {
                    fertig.texte.append(alsUtf8(wert.text)).push_back('\0');
                }
            });
        }
    }
    return fertig;
}

const Fertigmappe& fertigmappe()
{
    static const Fertigmappe eine = [] {
        Fertigmappe fertig;
        lauf().umgebung.beiMappe = [&](Arbeitsmappe& mappe) { fertig = legeFertig(mappe); };
        lauf().zuExcel();
        lauf().umgebung.beiMappe = nullptr;
        return fertig;
    }();
    return eine;
}

/// The library in constant-memory mode, called by `inhalt` for each sheet.
void schreibeMitBibliothek(const std::function<void(lxw_workbook*, lxw_format*)>& inhalt)
{
    const std::string pfad = (lauf().umgebung.programmordner() / "grenze.xlsx").string();
    lxw_workbook_options wahl{};
    wahl.constant_memory = LXW_TRUE;
    lxw_workbook* mappe = workbook_new_opt(pfad.c_str(), &wahl);
    lxw_format* datum = workbook_add_format(mappe);
    format_set_num_format(datum, "dd.mm.yyyy");
    inhalt(mappe, datum);
    workbook_close(mappe);
}

void schreibeFertige()
{
    schreibeMitBibliothek([](lxw_workbook* mappe, lxw_format* datum) {
        const char* texte = fertigmappe().texte.data();
        for (const Fertigblatt& blatt : fertigmappe().blätter) {
            lxw_worksheet* ziel = workbook_add_worksheet(mappe, blatt.name.c_str());
            for (const Fertigzelle& zelle : blatt.zellen) {
                if (zelle.art == Zellart::Text) {
                    worksheet_write_string(ziel, zelle.zeile, zelle.spalte, texte + zelle.text, nullptr);
                } else {
                    worksheet_write_number(ziel, zelle.zeile, zelle.spalte, zelle.zahl,
                                           zelle.art == Zellart::Datum ? datum : nullptr);
                }
            }
        }
    });
}

/// As many rows and columns, without a table behind them.
void schreibeGleichGroße()
{
    schreibeMitBibliothek([](lxw_workbook* mappe, lxw_format* /*datum*/) {
        for (const lxw_col_t spalten : {lxw_col_t{206}, lxw_col_t{9}, lxw_col_t{191}, lxw_col_t{225}}) {
            lxw_worksheet* ziel = workbook_add_worksheet(mappe, nullptr);
            for (lxw_row_t zeile = 0; zeile < static_cast<lxw_row_t>(zehntausendEpisoden.klienten); ++zeile) {
                for (lxw_col_t spalte = 0; spalte < spalten; ++spalte) {
                    worksheet_write_string(ziel, zeile, spalte, "k.A.", nullptr);
                }
            }
        }
    });
}

/// Peak memory of a child process that makes the call, in bytes.
double spitzeVon(const std::function<void()>& ruf)
{
    const pid_t kind = fork();
    if (kind == 0) {
        ruf();
        _exit(0);
    }
    rusage verbrauch{};
    int ausgang = 0;
    wait4(kind, &ausgang, 0, &verbrauch);
    if (ausgang != 0) {
        throw std::runtime_error("what is measured has failed");
    }
    return static_cast<double>(verbrauch.ru_maxrss) * 1024;
}

double größeDerTabellen()
{
    const Pfade& pfade = lauf().programm.zustand().pfade;
    return static_cast<double>(std::filesystem::file_size(pfade.kernDat) + std::filesystem::file_size(pfade.betrDat) +
                               std::filesystem::file_size(pfade.diagDat));
}

/// What the run holds beyond the library, in sizes of the three tables. Runs before the ready-made cells are
/// there, which would count for every child.
void speicher(benchmark::State& stand)
{
    lauf();
    for (auto _ : stand) {
        const double bibliothek = spitzeVon(schreibeGleichGroße);
        const double ganzerLauf = spitzeVon([] { lauf().zuExcel(); });
        stand.counters["Verhaeltnis"] = (ganzerLauf - bibliothek) / größeDerTabellen();
        stand.counters["erlaubt"] = 8;
        stand.counters["MB"] = ganzerLauf / 1e6;
    }
}

void zeit(benchmark::State& stand)
{
    fertigmappe();
    messeVerhältnis(stand, 2, schreibeFertige, [] { lauf().zuExcel(); });
}

} // namespace

BENCHMARK(speicher)->Unit(benchmark::kSecond)->Iterations(1)->UseRealTime();
BENCHMARK(zeit)->Unit(benchmark::kSecond)->UseRealTime();
BENCHMARK_MAIN();
