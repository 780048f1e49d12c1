#include "hilfen/Stoerzugriff.h"
#include "hilfen/Testumgebung.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "store/Tabellen.h"
#include "store/moBereinigeBetrOA.h"
#include "store/moBereinigeDatum.h"

#include <functional>

// Every operation of every write goes wrong once, in every way. Whatever happens, a file of the store then is the
// one from before the write or the one from after it; nothing between, nothing less.

namespace {

struct Schreibvorgang {
    std::string name;
    std::function<void()> tue;
    /// The failures that it passes over.
    bool übergehtFehler = false;
};

void PrintTo(const Schreibvorgang& vorgang, std::ostream* strom)
{
    *strom << vorgang.name;
}

std::string langerSatz(std::string_view kernID, std::string_view betrID)
{
    return satz({kernID, betrID, "01.01.2006"_t, "offen"_t, std::string(20000, 'x')});
}

std::string klient(std::string_view id, std::string_view geburt = "unbekannt")
{
    return satz({""_t, id, "a"_t, "Adler"_t, ""_t, ""_t, ""_t, ""_t, "keine Angaben"_t, geburt, ""_t});
}

using Inhalte = std::map<std::filesystem::path, std::string>;

/// A fresh store for one attempt. The table of episodes is larger than the block in which lines are written.
class Versuch {
public:
    Versuch() : plan(std::make_shared<Störplan>()), m_lauf(std::make_unique<Störzugriff>(plan))
    {
        m_lauf.legeTabellenAn();
        std::vector<std::string> betreuungen;
        for (int id = 1; id <= 60; ++id) {
            betreuungen.push_back(langerSatz(std::to_string(id), "1"));
        }
        Testlauf::schreibeZeilen(m_lauf.pfade().kernDat, {klient("1"), klient("2", "01.01.70"), klient("3")});
        Testlauf::schreibeZeilen(m_lauf.pfade().betrDat, betreuungen);
        Testlauf::schreibeZeilen(m_lauf.pfade().diagDat, {satz({"1", "1"}), satz({"2", "1"})});
        Testlauf::schreibeZeilen(m_lauf.pfade().kernBak, {klient("9")});
        Testlauf::schreibeZeilen(m_lauf.pfade().betrBak, {langerSatz("9", "1")});
    }

    std::shared_ptr<Störplan> plan;

    Inhalte inhalte() const
    {
        Inhalte alle;
        for (const auto& datei : std::filesystem::directory_iterator(m_lauf.pfade().daten)) {
            if (datei.path().extension() != ".neu") {
                alle[datei.path().filename()] = Testlauf::lies(datei.path());
            }
        }
        return alle;
    }

private:
    Testlauf m_lauf;
};

const std::vector<Schreibvorgang>& vorgänge()
{
    static const std::vector<Schreibvorgang> alle{
        {"anfuegen", [] { anfügeBetrDS(langerSatz("5", "2")); }},
        {"ersetzen", [] { ersetzeBetrDS(50, 1, langerSatz("50", "1") + "neu"); }},
        {"ersetzenOhneTreffer", [] { ersetzeKernDS(7, klient("7")); }},
        {"loeschen", [] { löscheBetrDS(60, 1); }},
        {"loeschenDerKlientin", [] { löscheKernDS(2); }},
        {"sichern", [] { sichereDateien(); }},
        {"verwerfen", [] { verwerfeSitzung(); }},
        {"bereinigeDatum", [] { bereinigeDatum(); }},
        {"bereinigeBetrOA", [] { bereinigeBetrOA(); }, true},
    };
    return alle;
}

enum class Ausgang { Gelungen, Fehler, Tot };

Ausgang versuche(const Schreibvorgang& vorgang)
{
    try {
        vorgang.tue();
        return Ausgang::Gelungen;
    } catch (const Prozessende&) {
        return Ausgang::Tot;
    } catch (const Laufzeitfehler& fehler) {
        const auto nenntDatei = [&](const char* name) { return fehler.text().find(name) != std::string::npos; };
        EXPECT_TRUE(nenntDatei("Dat.") || nenntDatei("ummy")) << fehler.text();
        return Ausgang::Fehler;
    }
}

Inhalte danach(const Schreibvorgang& vorgang)
{
    Versuch versuch;
    vorgang.tue();
    return versuch.inhalte();
}

/// Killed while it wrote, an append may leave a part of the new line behind the old ones; an older line never
/// suffers.
bool istGanz(const std::string& ist, const std::string& vorher, const std::string& nachher, Ausgang ausgang)
{
    const bool istAngefügt = nachher.starts_with(vorher) && ist.starts_with(vorher) && nachher.starts_with(ist);
    return ist == vorher || ist == nachher || (ausgang == Ausgang::Tot && istAngefügt);
}

class AusfallTest : public testing::TestWithParam<Schreibvorgang> {
protected:
    /// False when the write came to its end before the operation with this number.
    static bool störeEinmal(int stelle, Störung störung, const Inhalte& nachher)
    {
        Versuch versuch;
        const auto vorher = versuch.inhalte();
        versuch.plan->störe(stelle, störung);
        const auto ausgang = versuche(GetParam());
        if (!versuch.plan->istEingetreten()) {
            EXPECT_EQ(ausgang, Ausgang::Gelungen);
            return false;
        }
        const auto ort = GetParam().name + ", operation " + std::to_string(stelle) + " (" +
                         versuch.plan->operationen.at(static_cast<std::size_t>(stelle) - 1) + "), way " +
                         std::to_string(static_cast<int>(störung));
        prüfeAusgang(ausgang, störung, ort);
        const auto ist = versuch.inhalte();
        for (const auto& [datei, inhalt] : vorher) {
            const auto gefunden = ist.find(datei);
            EXPECT_TRUE(gefunden != ist.end()) << ort << ": no " << datei;
            if (gefunden != ist.end()) {
                EXPECT_TRUE(istGanz(gefunden->second, inhalt, nachher.at(datei), ausgang)) << ort << ": " << datei;
            }
        }
        return true;
    }

    static void prüfeAusgang(Ausgang ausgang, Störung störung, const std::string& ort)
    {
        switch (störung) {
        case Störung::KurzGeschrieben:
            EXPECT_EQ(ausgang, Ausgang::Gelungen) << ort;
            break;
        case Störung::KeinPlatz:
        case Störung::EinAusgabe:
        case Störung::KeinRecht:
            EXPECT_EQ(ausgang, GetParam().übergehtFehler ? Ausgang::Gelungen : Ausgang::Fehler) << ort;
            break;
        default:
            EXPECT_EQ(ausgang, Ausgang::Tot) << ort;
        }
    }

    static void störeJedeStelle(Störung störung)
    {
        const auto nachher = danach(GetParam());
        int stelle = 1;
        while (störeEinmal(stelle, störung, nachher)) {
            ++stelle;
        }
        EXPECT_GT(stelle, 4) << "the write has operations";
    }
};

TEST_P(AusfallTest, KeinPlatz)
{
    störeJedeStelle(Störung::KeinPlatz);
}

TEST_P(AusfallTest, EinAusgabefehler)
{
    störeJedeStelle(Störung::EinAusgabe);
}

TEST_P(AusfallTest, KeinRecht)
{
    störeJedeStelle(Störung::KeinRecht);
}

TEST_P(AusfallTest, KurzGeschrieben)
{
    störeJedeStelle(Störung::KurzGeschrieben);
}

TEST_P(AusfallTest, ProzessGetötet)
{
    störeJedeStelle(Störung::TotVorher);
    störeJedeStelle(Störung::TotMittendrin);
    störeJedeStelle(Störung::TotNachher);
}

TEST_P(AusfallTest, StromAusgefallen)
{
    störeJedeStelle(Störung::StromausVorher);
    störeJedeStelle(Störung::StromausNachher);
}

/// A write that has said it is done is on the disk, whatever comes then.
TEST_P(AusfallTest, BestätigtesÜberlebtDenStromausfall)
{
    const auto nachher = danach(GetParam());
    Versuch versuch;
    GetParam().tue();
    versuch.plan->störe(1, Störung::StromausVorher);
    EXPECT_THROW(anfügeKernDS(klient("99")), Prozessende);
    EXPECT_EQ(versuch.inhalte(), nachher);
}

INSTANTIATE_TEST_SUITE_P(Schreiben, AusfallTest, testing::ValuesIn(vorgänge()),
                         [](const auto& angabe) { return angabe.param.name; });

TEST(Ausfall, ArbeitsdateiDerReparaturBleibtNichtLiegen)
{
    const auto plan = std::make_shared<Störplan>();
    Testlauf lauf(std::make_unique<Störzugriff>(plan));
    lauf.legeTabellenAn();
    Testlauf::schreibeZeilen(lauf.pfade().kernDat, {klient("1")});
    for (int stelle = 1; stelle <= 4; ++stelle) {
        plan->störe(stelle, Störung::KeinPlatz);
        bereinigeBetrOA();
        EXPECT_TRUE(plan->istEingetreten());
        EXPECT_FALSE(std::filesystem::exists(lauf.pfade().programm / "Tolvekdummy.txt")) << stelle;
        EXPECT_EQ(Testlauf::lies(lauf.pfade().kernDat), klient("1") + "\r\n") << stelle;
    }
}

} // namespace
