#include "app/muster/Musterdaten.h"

#include "app/muster/Zufall.h"

#include "platform/dateien/Dateien.h"
#include "platform/text/Datum.h"
#include "platform/text/Text.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/moNationen.h"
#include "store/Bestandspfade.h"

#include <array>
#include <string_view>
#include <vector>

namespace {

constexpr std::array nachnamen{"Attrappe"_t, "Beispiel"_t, "Demo"_t,    "Entwurf"_t,     "Exempel"_t, "Fiktion"_t,
                               "Modell"_t,   "Muster"_t,   "Phantom"_t, "Platzhalter"_t, "Probe"_t,   "Schablone"_t,
                               "Skizze"_t,   "Studie"_t,   "Übung"_t,   "Versuch"_t,     "Vorlage"_t, "Zeichen"_t};
constexpr std::array vornamenW{"Ines"_t,  "Dörte"_t, "Lena"_t, "Mira"_t, "Vera"_t,
                               "Erika"_t, "Hanna"_t, "Nina"_t, "Olga"_t};
constexpr std::array vornamenM{"Anton"_t, "Oskar"_t, "Frank"_t, "Jörg"_t, "Timo"_t,
                               "Uwe"_t,   "Rolf"_t,  "Paul"_t,  "Emil"_t};
constexpr std::array straßen{"Amselweg"_t,     "Musterweg"_t,  "Am Brunnen"_t,  "Birkenallee"_t,
                             "Gartenstraße"_t, "Hafengasse"_t, "Lindenplatz"_t, "Mühlgraben"_t,
                             "Nordring"_t,     "Quellenweg"_t, "Südhang"_t,     "Ulmenweg"_t};
constexpr std::array orte{"Musterstadt"_t, "Beispielhausen"_t, "Probeheim"_t};
constexpr std::array icdGruppen1bis20{"10"_t, "20"_t, "21"_t, "22"_t, "24"_t, "25"_t, "26"_t};
constexpr std::array icdGruppe29{"0"_t, "1"_t, "2"_t, "3"_t, "8"_t};
constexpr std::array janein{antworttext::ja, antworttext::nein};

constexpr int ersterTagDerEpisoden = 37622;  // 01.01.2003
constexpr int letzterTagDerEpisoden = 44196; // 31.12.2020
constexpr int tageImJahr = 365;

struct Zeitraum {
    int von = 0;
    int bis = 0; ///< 0: open
};

std::string datumstext(int tage)
{
    return alsDatumstext(ausTageszahl(tage));
}

class Werkstatt {
public:
    explicit Werkstatt(std::uint64_t saat) : m_zufall(saat) {}

    Mustertabellen baue(const Mustervorgabe& vorgabe)
    {
        Mustertabellen tabellen;
        for (int klient = 1; klient <= vorgabe.klienten; ++klient) {
            const auto zeiträume = verteile(vorgabe.episodenJe);
            tabellen.kern.append(klientensatz(klient, zeiträume)).append("\r\n");
            int betreuung = 0;
            for (const auto& zeitraum : zeiträume) {
                ++betreuung;
                const int hauptdiagnose = m_zufall.trifft(80) ? m_zufall.zahl(1, höchsteGruppe) : 0;
                tabellen.betr.append(betreuungssatz(klient, betreuung, zeitraum, hauptdiagnose)).append("\r\n");
                tabellen.diag.append(diagnosesatz(klient, betreuung, hauptdiagnose)).append("\r\n");
            }
        }
        return tabellen;
    }

private:
    /// Periods of one client one after the other, without a shared day; the last may be open.
    std::vector<Zeitraum> verteile(int anzahl)
    {
        std::vector<Zeitraum> zeiträume;
        const int abschnitt = (letzterTagDerEpisoden - ersterTagDerEpisoden) / (anzahl < 1 ? 1 : anzahl);
        for (int i = 0; i < anzahl; ++i) {
            const int anfang = ersterTagDerEpisoden + i * abschnitt + m_zufall.zahl(0, abschnitt / 2);
            const bool offen = i + 1 == anzahl && m_zufall.trifft(40);
            zeiträume.push_back({anfang, offen ? 0 : anfang + m_zufall.zahl(0, abschnitt / 2 - 1)});
        }
        return zeiträume;
    }

    std::string klientensatz(int klient, const std::vector<Zeitraum>& zeiträume)
    {
        const bool weiblich = m_zufall.trifft(45);
        const auto vorname = weiblich ? m_zufall.aus(vornamenW) : m_zufall.aus(vornamenM);
        const auto status = zeiträume.empty() ? ""_t : zeiträume.back().bis == 0 ? "o"_t : "a"_t;
        const auto geboren = m_zufall.trifft(8) ? std::string("unbekannt"_t)
                                                : datumstext(ersterTagDerEpisoden - m_zufall.zahl(16, 65) * tageImJahr);
        return verbinde(trenner, std::to_string(klient), trenner, status, trenner, m_zufall.aus(nachnamen), trenner,
                        vorname, trenner, m_zufall.aus(straßen), ' ', std::to_string(m_zufall.zahl(1, 99)), trenner,
                        "99999"_t, trenner, m_zufall.aus(orte), trenner, weiblich ? "weiblich"_t : "männlich"_t,
                        trenner, geboren, trenner, m_zufall.trifft(10) ? "ruft vorher an"_t : ""_t);
    }

    std::string betreuungssatz(int klient, int betreuung, const Zeitraum& zeitraum, int hauptdiagnose)
    {
        m_hdOhne = hauptdiagnose > 0 ? 0 : m_zufall.zahl(0, 5);
        m_ivKonsum = m_zufall.zahl(0, 3);
        m_stelleHdOhne = 0;
        m_stelleIvKonsum = 0;
        auto satz =
            verbinde(std::to_string(klient), trenner, std::to_string(betreuung), trenner, datumstext(zeitraum.von),
                     trenner, zeitraum.bis == 0 ? std::string("offen"_t) : datumstext(zeitraum.bis));
        const auto& alle = betreuungsfelder();
        for (std::size_t i = feld::betr::ende; i < alle.size(); ++i) {
            satz.push_back(trenner);
            satz.append(wert(alle[i], zeitraum.bis != 0));
        }
        return satz;
    }

    std::string wert(const Satzfeld& feld, bool beendet)
    {
        switch (feld.art) {
        case Feldart::option:
            return optionswert(feld);
        case Feldart::zuvor:
            return m_zufall.trifft(50) ? feld.vorgabe : std::to_string(m_zufall.zahl(0, 9));
        case Feldart::kinder:
            return m_zufall.trifft(30) ? feld.vorgabe : std::to_string(m_zufall.zahl(0, 4));
        case Feldart::kontakte:
            return beendet ? std::to_string(m_zufall.zahl(1, 60)) : feld.vorgabe;
        case Feldart::zahl:
            return std::to_string(m_zufall.zahl(0, 12));
        case Feldart::nation:
            return m_zufall.trifft(70) ? std::string("Deutschland"_t) : std::string(m_zufall.aus(nationen()).name);
        case Feldart::hdOhne:
            return flagge(m_stelleHdOhne++ == m_hdOhne);
        case Feldart::ivKonsum:
            return flagge(m_stelleIvKonsum++ == m_ivKonsum);
        default:
            return feld.vorgabe;
        }
    }

    std::string optionswert(const Satzfeld& feld)
    {
        if (m_zufall.trifft(35) || feld.werte.empty()) {
            return feld.vorgabe;
        }
        const auto* wert = &m_zufall.aus(feld.werte);
        while (wert->frühere) { // nobody writes it any more
            wert = &m_zufall.aus(feld.werte);
        }
        return std::string(wert->text);
    }

    static std::string flagge(bool an) { return std::string(an ? "Wahr"_t : "Falsch"_t); }

    std::string diagnosesatz(int klient, int betreuung, int hauptdiagnose)
    {
        std::vector<std::string> felder(diagnosefelder().size());
        felder[feld::diag::kernID - 1] = std::to_string(klient);
        felder[feld::diag::betrID - 1] = std::to_string(betreuung);
        std::int64_t bits = 0;
        const auto trageEin = [&](int gruppe) {
            füllePlätze(felder, gruppe);
            bits |= std::int64_t{1} << gruppe;
        };
        for (int i = m_zufall.zahl(0, 3); i > 0; --i) {
            trageEin(m_zufall.zahl(1, höchsteGruppe));
        }
        if (hauptdiagnose > 0) {
            trageEin(hauptdiagnose);
            feldIn(felder, hauptdiagnose, HDMarke) = "1";
        }
        if (m_zufall.trifft(20)) {
            felder[feld::diag::weitere(1) - 1] =
                verbinde(std::to_string(m_zufall.zahl(20, 69)), '.', std::to_string(m_zufall.zahl(0, 9)));
        }
        felder.back() = bits == 0 ? std::string() : std::to_string(bits);
        std::string satz;
        for (const auto& feld : felder) {
            satz.append(feld).push_back(trenner);
        }
        return satz;
    }

    static std::string& feldIn(std::vector<std::string>& felder, int gruppe, int platz)
    {
        return felder[static_cast<std::size_t>(feld::diag::antwort(gruppe, platz)) - 1];
    }

    /// Answers as the dialogue would have written them: what a group does not ask stays empty.
    void füllePlätze(std::vector<std::string>& felder, int gruppe)
    {
        const auto füge = [&](int platz, std::string_view wert) {
            if (gruppenreihe(gruppe)->frage(platz).gefragt) {
                feldIn(felder, gruppe, platz) = wert;
            }
        };
        const auto zahl = [&](int von, int bis) { return std::to_string(m_zufall.zahl(von, bis)); };
        füge(Konsumart, werte::konsumart[static_cast<std::size_t>(m_zufall.zahl(1, 5))].text);
        füge(Riskant, m_zufall.aus(janein));
        füge(TageBeginn, zahl(0, werte::konsumtage.bis));
        füge(TageEnde, zahl(0, werte::konsumtage.bis));
        füge(AlterErstkonsum, zahl(10, 40));
        füge(ICDStelle4, istGruppe(gruppe, Gruppenart::Substanz)     ? m_zufall.aus(icdGruppen1bis20)
                         : istGruppe(gruppe, Gruppenart::Essstörung) ? m_zufall.aus(icdGruppe29)
                                                                     : m_zufall.aus(janein));
        füge(AlterStörung, zahl(12, 60));
    }

    Zufall m_zufall;
    int m_hdOhne = 0;
    int m_ivKonsum = 0;
    int m_stelleHdOhne = 0;
    int m_stelleIvKonsum = 0;
};

} // namespace

Mustertabellen erzeugeMusterdaten(const Mustervorgabe& vorgabe)
{
    return Werkstatt(vorgabe.saat).baue(vorgabe);
}

void schreibeProgrammordner(const std::filesystem::path& ordner, const Mustertabellen& tabellen)
{
    Dateien dateien;
    const auto pfade = bildeBestandspfade(ordner);
    for (const auto& pfad : {ordner, pfade.daten}) {
        dateien.sorgeFürOrdner(pfad);
    }
    const std::array inhalte{&tabellen.kern, &tabellen.betr, &tabellen.diag};
    for (std::size_t i = 0; i < alleSechs.size(); ++i) {
        const auto schreiber = dateien.schreibeNeu(pfade.von(alleSechs[i]));
        schreiber->text(*inhalte[i % inhalte.size()]);
        schreiber->schließe();
    }
}
