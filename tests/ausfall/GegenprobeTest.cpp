#include "ausfall/Prozess.h"
#include "ausfall/Vorlage.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <iostream>
#include <map>
#include <optional>
#include <sstream>

// Whether the preload library sees everything: the same action under strace, which the kernel itself tells of each
// call.

namespace fs = std::filesystem;

namespace {

using Zählung = std::map<std::string, int>;

/// The older and the newer names of one operation of the system count as one.
std::string grundname(std::string name)
{
    static const std::map<std::string, std::string> gleiche{
        {"openat", "open"},     {"open64", "open"},      {"openat64", "open"},  {"creat", "open"},
        {"renameat", "rename"}, {"renameat2", "rename"}, {"linkat", "link"},    {"unlinkat", "unlink"},
        {"mkdirat", "mkdir"},   {"fchmodat", "chmod"},   {"pwrite64", "pwrite"}};
    const auto ort = gleiche.find(name);
    return ort == gleiche.end() ? name : ort->second;
}

Zählung ausListe(const fs::path& liste)
{
    Zählung zählung;
    std::istringstream text(liesDatei(liste));
    for (std::string nummer, name, rest; text >> nummer >> name && std::getline(text, rest);) {
        ++zählung[grundname(name)];
    }
    return zählung;
}

bool ändertNurBeimSchreiben(const std::string& zeile)
{
    return zeile.find("O_CREAT") != std::string::npos || zeile.find("O_WRONLY") != std::string::npos ||
           zeile.find("O_RDWR") != std::string::npos || zeile.find("O_TRUNC") != std::string::npos;
}

/// A line of strace, as far as it tells a call that has come back: "write(3, "x", 1) = 1".
struct Spurzeile {
    std::string name;
    int griff = -1; ///< the descriptor, where the first argument is a number
    int ergebnis = 0;
};
std::optional<Spurzeile> liesSpurzeile(const std::string& zeile)
{
    const auto klammer = zeile.find('(');
    const auto gleich = zeile.rfind(" = ");
    Spurzeile ruf{zeile.substr(0, klammer)};
    if (klammer == std::string::npos || gleich == std::string::npos ||
        std::sscanf(zeile.c_str() + gleich, " = %d", &ruf.ergebnis) != 1) {
        return std::nullopt;
    }
    std::sscanf(zeile.c_str() + klammer, "(%d", &ruf.griff);
    return ruf;
}

/// What strace has written: paths stand in the calls that name them, the others are told by the descriptor.
Zählung ausSpur(const fs::path& spur, const fs::path& ordner)
{
    Zählung zählung;
    std::map<int, bool> unsere;
    std::istringstream text(liesDatei(spur));
    for (std::string zeile; std::getline(text, zeile);) {
        const auto ruf = liesSpurzeile(zeile);
        if (!ruf) {
            continue;
        }
        const auto name = grundname(ruf->name);
        const bool nenntOrdner = zeile.find("\"" + ordner.string()) != std::string::npos;
        if (name == "open") {
            unsere[ruf->ergebnis] = nenntOrdner;
            zählung[name] += nenntOrdner && ändertNurBeimSchreiben(zeile) ? 1 : 0;
        } else if (name == "close") {
            unsere[ruf->griff] = false;
        } else if (nenntOrdner || (ruf->griff >= 0 && unsere[ruf->griff])) {
            ++zählung[name];
        }
    }
    return zählung;
}

constexpr auto spurrufe =
    "trace=open,openat,creat,close,write,pwrite64,writev,fsync,fdatasync,ftruncate,truncate,rename,"
    "renameat,renameat2,link,linkat,symlink,symlinkat,unlink,unlinkat,mkdir,mkdirat,rmdir,chmod,fchmod,"
    "fchmodat";

class Gegenprobe : public testing::TestWithParam<const char*> {
protected:
    static std::vector<std::string> mitSpur(std::vector<std::string> vorweg, const fs::path& ordner)
    {
        for (const auto& teil : handlung(ordner, GetParam())) {
            vorweg.push_back(teil);
        }
        return vorweg;
    }

    Arbeitsplatz platz;
};

TEST_P(Gegenprobe, DerVorspannZähltWasDerKernSieht)
{
    const auto ordner = platz.pfad() / "Programm";
    const auto legeAn = std::string(GetParam()) == "import" ? legeAltdatenAn : legeBestandMitAlterSicherungAn;
    legeAn(ordner);
    Prozess verfolgt(mitSpur({"strace", "-o", (platz.pfad() / "spur").string(), "-e", spurrufe}, ordner));
    ASSERT_TRUE(verfolgt.warte() && verfolgt.sagt("FERTIG")) << verfolgt.ausgabe();
    const auto desKerns = ausSpur(platz.pfad() / "spur", ordner);

    fs::remove_all(ordner);
    legeAn(ordner);
    const auto liste = platz.pfad() / "liste";
    Prozess gezählt(handlung(ordner, GetParam()), vorspann(ordner, "", {{"AUSFALL_LISTE", liste.string()}}));
    ASSERT_TRUE(gezählt.warte() && gezählt.sagt("FERTIG")) << gezählt.ausgabe();
    const auto desVorspanns = ausListe(liste);

    EXPECT_GT(desKerns.at("write"), 3);
    EXPECT_GT(desKerns.at("rename"), 3);
    for (const auto& [name, anzahl] : desKerns) {
        const auto ort = desVorspanns.find(name);
        EXPECT_EQ(ort == desVorspanns.end() ? 0 : ort->second, anzahl) << name;
    }
}

/// The signal from the kernel, without anything loaded into the process.
TEST_P(Gegenprobe, VomKernGetötet)
{
    const auto vorlage = platz.pfad() / "vorlage";
    const auto ordner = platz.pfad() / "Programm";
    const auto legeAn = std::string(GetParam()) == "import" ? legeAltdatenAn : legeBestandAn;
    legeAn(vorlage);
    Prozess erster(handlung(vorlage, "start"));
    ASSERT_TRUE(erster.warte() && erster.sagt("HAUPTMENÜ"));
    const auto vorher = tabellenIn(vorlage);
    fs::copy(vorlage, ordner, fs::copy_options::recursive);
    Prozess ganz(handlung(ordner, GetParam()));
    ASSERT_TRUE(ganz.warte() && ganz.sagt("FERTIG"));
    Prozess danach(handlung(ordner, "start"));
    ASSERT_TRUE(danach.warte());
    const auto nachher = tabellenIn(ordner);

    int punkte = 0;
    for (const std::string ruf : {"rename", "fsync", "unlink"}) {
        for (int stelle = 2; stelle <= 14; stelle += 3) {
            SCOPED_TRACE(ruf + " " + std::to_string(stelle));
            fs::remove_all(ordner);
            fs::copy(vorlage, ordner, fs::copy_options::recursive);
            Prozess getötet(mitSpur({"strace", "-o", "/dev/null", "-e", "trace=" + ruf, "-e",
                                     "inject=" + ruf + ":signal=KILL:when=" + std::to_string(stelle)},
                                    ordner));
            ASSERT_TRUE(getötet.warte());
            punkte += getötet.signal() == SIGKILL ? 1 : 0;
            Prozess wieder(handlung(ordner, "start"));
            ASSERT_TRUE(wieder.warte());
            EXPECT_TRUE(wieder.sagt("HAUPTMENÜ")) << wieder.ausgabe();
            const auto ist = tabellenIn(ordner);
            EXPECT_TRUE(ist == vorher || ist == nachher);
            EXPECT_EQ(resteIn(ordner), "");
        }
    }
    EXPECT_GT(punkte, 5);
    std::cout << "[ausfall] " << GetParam() << ", killed by strace: points " << punkte << std::endl;
}

INSTANTIATE_TEST_SUITE_P(Strace, Gegenprobe, testing::Values("neue-betreuung", "klient-loeschen", "import"));

} // namespace
