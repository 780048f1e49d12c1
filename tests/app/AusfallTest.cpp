#include "hilfen/Plattenlauf.h"

#include "store/Niederschrift.h"
#include "store/Pruefung.h"

#include <algorithm>
#include <iostream>
#include <set>

// Every action that writes tables is broken off at every operation, in every way, and so is the start that follows.
// Whatever happens: the program starts again, the three tables together are those from before the action or from
// after it, and nothing that holds personal data lies about.

namespace {

/// The tables that count, and the backups.
struct Tabellen {
    std::string kern, betr, diag;
    auto operator<=>(const Tabellen&) const = default;
};

const Pfade& pfade()
{
    static const auto alle = bildePfade(plattenordner());
    return alle;
}

std::string inhalt(const Plattenstand& stand, const std::filesystem::path& pfad)
{
    const auto ort = stand.dateien.find(pfad);
    return ort == stand.dateien.end() ? "(missing)" : ort->second;
}

Tabellen tabellenIn(const Plattenstand& stand)
{
    return {inhalt(stand, pfade().kernDat), inhalt(stand, pfade().betrDat), inhalt(stand, pfade().diagDat)};
}

std::set<std::string> reste(const Plattenstand& stand)
{
    std::set<std::string> reste;
    for (const auto& [pfad, text] : stand.dateien) {
        if (pfad.extension() == ".neu" || pfad == pfade().vorgang ||
            pfad.parent_path().filename() == "importDummyVerz" || pfad.parent_path().extension() == ".neu") {
            reste.insert(pfad.string());
        }
    }
    return reste;
}

/// Every record that the disk held before must lie somewhere afterwards, if only in a backup.
std::set<std::string> sicherungstexte(const Plattenstand& stand)
{
    std::set<std::string> texte;
    for (const auto& [pfad, text] : stand.dateien) {
        const auto daten = pfad.string().starts_with(pfade().daten.string());
        if (daten && !text.empty() && pfad.extension() == ".bak") {
            texte.insert(text);
        }
    }
    return texte;
}

/// The line that an earlier episode has left lies there from the beginning.
bool istAlterRest(const Befund& befund)
{
    return (befund.art == befundart::DiagnoseOhneBetreuung && befund.text.ends_with(": 2-9")) ||
           (befund.art == befundart::WertUnbekannt && befund.text.ends_with("\"alt\""));
}

/// What the program's own checker has against the disk; most runs end in one of a few states, each of which it sees
/// once.
std::string befunde(Platte& platte)
{
    static std::set<Plattenstand> ohneBefund;
    const auto stand = platte.stand();
    if (ohneBefund.contains(stand)) {
        return "";
    }
    Dateien dateien(std::make_unique<Plattenzugriff>(platte));
    std::string zeilen;
    for (const auto& befund : prüfeBestand(dateien, pfade()).befunde) {
        zeilen +=
            befund.istHinweis() || istAlterRest(befund) ? std::string() : alsBerichtszeile(befund, pfade()) + '\n';
    }
    if (zeilen.empty()) {
        ohneBefund.insert(stand);
    }
    return zeilen;
}

/// A start on what is left; the disk as it is when the main menu stands there.
Plattenstand nachStart(Platte& platte, const std::string& ort)
{
    Plattenlauf lauf(platte);
    EXPECT_TRUE(lauf.starte()) << ort << ": " << lauf.absturz();
    for (const auto& meldung : lauf.umgebung.meldungen) {
        EXPECT_EQ(meldung.text, "") << ort << ": a box at the start";
    }
    const auto danach = platte.stand();
    EXPECT_EQ(reste(danach), std::set<std::string>{}) << ort;
    EXPECT_EQ(befunde(platte), "") << ort;
    return danach;
}

Plattenstand nachStart(const Plattenstand& stand, const std::string& ort)
{
    Platte platte(stand);
    return nachStart(platte, ort);
}

Plattenstand eingerichtet(const Ausfallfall& fall)
{
    Platte platte;
    fall.richteEin(platte, pfade());
    return platte.stand();
}

/// A run of the action with the disk as it was when the action began.
class Versuch {
public:
    explicit Versuch(const Ausfallfall& fall) : Versuch(fall, eingerichtet(fall)) {}
    Versuch(const Ausfallfall& fall, const Plattenstand& stand) : m_fall(fall), platte(stand)
    {
        m_lauf = std::make_unique<Plattenlauf>(platte);
        if (fall.handlung != nullptr) {
            m_lauf->starte();
            fall.handlung->bereiteVor(m_lauf->hand);
        }
    }

    void handle()
    {
        if (m_fall.handlung == nullptr) {
            m_lauf->starte();
        } else {
            m_fall.handlung->handle(m_lauf->hand);
        }
    }
    Plattenlauf& lauf() { return *m_lauf; }

private:
    const Ausfallfall& m_fall;
    std::unique_ptr<Plattenlauf> m_lauf;

public:
    Platte platte;
};

struct Schnappschuß {
    std::string ort;
    Plattenstand stand;
};

/// What any end of the run between two operations, or within one, would leave: each state of the disk once.
template <class F> std::vector<Schnappschuß> schnappschüsse(Platte& platte, F tue, int& punkte)
{
    std::vector<Schnappschuß> alle;
    std::set<Plattenstand> gesehene;
    int operationen = 0;
    const auto nimm = [&](const std::string& name) {
        for (const auto ende : alleEnden) {
            ++punkte;
            auto stand = platte.stand(ende);
            if (gesehene.insert(stand).second) {
                alle.push_back({name + " (" + std::to_string(operationen) + ", way " +
                                    std::to_string(static_cast<int>(ende)) + ")",
                                std::move(stand)});
            }
        }
        ++operationen;
    };
    nimm("nothing done");
    platte.beiOperation = nimm;
    tue();
    platte.beiOperation = nullptr;
    return alle;
}

class AusfallTest : public testing::TestWithParam<Ausfallfall> {
protected:
    AusfallTest()
    {
        Versuch versuch(GetParam());
        // the repairs of the next start are part of both states
        vorher = tabellenIn(nachStart(versuch.platte.stand(), "before"));
        versuch.handle();
        EXPECT_TRUE(versuch.lauf().läuft()) << versuch.lauf().absturz();
        bestätigt = versuch.platte.stand(Ende::Stromlos);
        nachher = tabellenIn(nachStart(versuch.platte.stand(), "after"));
        EXPECT_EQ(vorher == nachher, GetParam().handlung == nullptr) << "only then can what is between be told";
    }

    void erwarteGanz(const Plattenstand& stand, const std::string& ort) const
    {
        const auto ist = tabellenIn(stand);
        EXPECT_TRUE(ist == vorher || ist == nachher) << ort << ": between";
    }

    Tabellen vorher;
    Tabellen nachher;
    Plattenstand bestätigt;
};

TEST_P(AusfallTest, AbgebrochenUndWiederAngelaufen)
{
    Versuch versuch(GetParam());
    const auto sicherungen = sicherungstexte(versuch.platte.stand());
    int punkte = 0;
    const auto stellen = schnappschüsse(
        versuch.platte, [&] { versuch.handle(); }, punkte);
    int wiederanläufe = 0;
    std::set<Plattenstand> erholte;
    for (const auto& stelle : stellen) {
        Platte platte(stelle.stand);
        Plattenstand danach;
        const auto zweiteStellen = schnappschüsse(
            platte, [&] { danach = nachStart(platte, stelle.ort); }, wiederanläufe);
        erwarteGanz(danach, stelle.ort);
        EXPECT_TRUE(std::ranges::includes(sicherungstexte(danach), sicherungen)) << stelle.ort << ": a backup is lost";
        // and the start that follows is broken off itself, at every operation
        for (const auto& zweite : zweiteStellen) {
            if (erholte.insert(zweite.stand).second) {
                erwarteGanz(nachStart(zweite.stand, stelle.ort + ", then " + zweite.ort),
                            stelle.ort + ", then " + zweite.ort);
            }
        }
    }
    EXPECT_GT(punkte, 30);
    std::cout << GetParam().name << ": " << punkte << " points, " << wiederanläufe << " in the start that follows, "
              << stellen.size() + erholte.size() << " different disks\n";
}

/// What was confirmed and said to be done survives the loss of power at once.
TEST_P(AusfallTest, BestätigtesÜberlebtDenStromausfall)
{
    EXPECT_EQ(tabellenIn(nachStart(bestätigt, "confirmed")), nachher);
}

/// Refused once, and from there on for ever.
TEST_P(AusfallTest, JedeVerweigerteOperation)
{
    const auto beginn = eingerichtet(GetParam());
    for (const bool fürImmer : {false, true}) {
        int stelle = 1;
        for (bool eingetreten = true; eingetreten; ++stelle) {
            Versuch versuch(GetParam(), beginn);
            int gezählt = 0;
            versuch.platte.verweigert = [&](const std::string&) -> std::optional<std::string> {
                ++gezählt;
                const bool trifft = gezählt == stelle || (fürImmer && gezählt > stelle);
                return trifft ? std::optional<std::string>("kein Platz mehr") : std::nullopt;
            };
            versuch.handle();
            eingetreten = gezählt >= stelle;
            versuch.platte.verweigert = nullptr;
            const auto ort = "operation " + std::to_string(stelle) + (fürImmer ? " for ever" : " once");
            const auto ist = tabellenIn(nachStart(versuch.platte.stand(), ort));
            EXPECT_TRUE(ist == vorher || ist == nachher) << ort << ": between";
            if (versuch.lauf().istUnvollendet()) {
                EXPECT_EQ(ist, nachher) << ort << ": it was said to be saved";
            }
        }
        EXPECT_GT(stelle, 4);
    }
}

TEST_P(AusfallTest, KurzGeschriebenesWirdFertigGeschrieben)
{
    Versuch versuch(GetParam());
    versuch.platte.schreibtKurz = true;
    versuch.handle();
    EXPECT_TRUE(versuch.lauf().läuft()) << versuch.lauf().absturz();
    EXPECT_EQ(tabellenIn(nachStart(versuch.platte.stand(), "short")), nachher);
}

INSTANTIATE_TEST_SUITE_P(Handlungen, AusfallTest, testing::ValuesIn(ausfallfälle()), [](const auto& angabe) {
    auto name = angabe.param.name;
    std::ranges::replace(name, '-', '_');
    return name;
});

/// Somebody puts other tables in place between the death and the next start: they count, and what was saved is kept.
TEST(Wiederanlauf, FremdeTabellenWerdenNichtÜberschrieben)
{
    const auto fall = std::ranges::find(ausfallfälle(), "betreuung-aendern", &Ausfallfall::name);
    ASSERT_NE(fall, ausfallfälle().end());
    Versuch versuch(*fall);
    int punkte = 0;
    std::optional<Plattenstand> mitVermerk;
    for (const auto& stelle : schnappschüsse(
             versuch.platte, [&] { versuch.handle(); }, punkte)) {
        const auto& dateien = stelle.stand.dateien;
        if (dateien.contains(pfade().vorgang) && dateien.contains(pfade().daten / "betrDat.txt.neu") && !mitVermerk) {
            mitVermerk = stelle.stand;
        }
    }
    ASSERT_TRUE(mitVermerk);
    const auto fremd = Testlauf::alsInhalt({satz({"1", "1", "01.01.2003", "31.12.2003"})});
    mitVermerk->dateien[pfade().betrDat] = fremd;
    Platte platte(*mitVermerk);
    Plattenlauf lauf(platte);
    ASSERT_TRUE(lauf.starte()) << lauf.absturz();
    ASSERT_EQ(lauf.umgebung.meldungen.size(), 1U);
    EXPECT_EQ(lauf.umgebung.meldungen[0].symbol, Symbol::Stop);
    const auto stand = platte.stand();
    EXPECT_EQ(inhalt(stand, pfade().betrDat), fremd);
    EXPECT_EQ(reste(stand), std::set<std::string>{});
    const auto aufgehoben = pfade().sicherungen / "2007-08-01 17.00.00 unvollendet" / "betrDat.txt";
    EXPECT_NE(inhalt(stand, aufgehoben), "(missing)");
}

} // namespace
