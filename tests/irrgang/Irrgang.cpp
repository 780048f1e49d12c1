#include "Irrgang.h"

#include "Handlungswahl.h"
#include "Worte.h"

#include "ablauf/Anweisungen.h"
#include "ablauf/Programmdateien.h"
#include "ablauf/Vergleich.h"
#include "hilfen/Altdaten.h"
#include "sprache/Unicode.h"
#include "umgebung/Meldungsworte.h"

#include "platform/text/Eingabe.h"
#include "platform/text/Text.h"
#include "store/Pruefung.h"

#include <algorithm>
#include <set>

namespace fs = std::filesystem;

namespace {

/// What may lie in the program folder between two actions; the folder of the exports may hold anything, that of the
/// backups is looked at by the checker.
const std::set<fs::path>& erlaubteOrte()
{
    static const std::set<fs::path> orte{
        "Daten",
        "Daten/kernDat.txt",
        "Daten/betrDat.txt",
        "Daten/diagDat.txt",
        "Daten/kernDat.bak",
        "Daten/betrDat.bak",
        "Daten/diagDat.bak",
        "Daten/Sicherungen",
        "Tolvek7.ini",
        "Exporte",
        "importDatenListe.txt",
        "Alt",
        "Alt/kernDat.txt",
        "Alt/betreuungenDat.txt",
        "Alt/leer.txt",
    };
    return orte;
}

} // namespace

Irrgang::Irrgang(Oberfläche& oberfläche, unsigned long long saat) : m_zufall(saat), m_lauf(m_szenario, oberfläche)
{
    m_lauf.umgebung().antwortgeber = [this](const Meldung& meldung) { return antworte(meldung); };
    m_lauf.umgebung().dateigeber = [this] { return wähleDatei(); };
}

std::optional<std::string> Irrgang::gehe(int schritte)
{
    try {
        m_mitschrift.beginneSchritt();
        richteEin();
        while (m_gegangen < schritte) {
            ++m_gegangen;
            m_mitschrift.beginneSchritt();
            schritt();
        }
    } catch (const std::exception& fehler) {
        return fehler.what();
    }
    return std::nullopt;
}

void Irrgang::richteEin()
{
    schreibeAltdaten();
    if (m_zufall.trifft(50)) {
        sage("klient 1 Nachname=Müller Vorname=Jörg Geschlecht=männlich Geburtsdatum=01.02.1970");
        sage("klient 2 Nachname=Adler Vorname=Eva");
        sage("klient 7 Nachname=Zander");
        sage("betreuung 1 1 01.01.2005 31.12.2005");
        sage("diagnose 1 1");
        sage("betreuung 1 2 01.06.2006 offen");
        sage("diagnose 1 2");
        sage("betreuung 7 3 02.08.2007 02.08.2007");
        sage("diagnose 7 3");
    }
    starteNeu();
}

void Irrgang::schreibeAltdaten()
{
    const auto alt = erzeugeAltdaten(3, 2, static_cast<unsigned>(m_zufall.zahl(1, 1000)));
    sage("datei Alt/leer.txt");
    for (const auto& [name, zeilen] :
         {std::pair("kernDat", &alt.klienten), std::pair("betreuungenDat", &alt.betreuungen)}) {
        std::string anweisung = std::string("datei Alt/") + name + ".txt";
        for (const auto& zeile : *zeilen) {
            anweisung += '\n' + alsZeile(zeile);
        }
        sage(anweisung);
    }
}

void Irrgang::starteNeu()
{
    m_heute = ausTageszahl(alsTageszahl(m_heute) + m_zufall.zahl(0, 40));
    sage("heute " + alsUtf8(alsDatumstext(m_heute)));
    Verstöße verstöße;
    const auto ordner = m_lauf.imProgramm(U"Daten");
    const auto vorher = fs::exists(ordner) ? liesTabellen(ordner, ".txt", verstöße) : Tabellenstand();
    sage("starte");
    vermerkeMeldungen();
    prüfeAbsturz(verstöße);
    m_stand = liesTabellen(ordner, ".txt", verstöße);
    m_sicherung = liesTabellen(ordner, ".bak", verstöße);
    prüfeStart(vorher, m_stand, m_sicherung, verstöße);
    prüfeAufbau(m_stand, verstöße);
    prüfeMitPrüfer(verstöße);
    prüfeOrdner(verstöße);
    prüfeBildschirme(verstöße);
    wirf(verstöße);
}

void Irrgang::schritt()
{
    if (!m_lauf.läuft()) {
        sage("erwarte ende");
        starteNeu();
    } else if (m_zufall.trifft(2)) {
        handleAmRahmen();
    } else {
        handle();
    }
}

void Irrgang::handleAmRahmen()
{
    const auto lage = std::to_string(m_zufall.zahl(0, 9000)) + ' ' + std::to_string(m_zufall.zahl(0, 6000));
    sage(m_zufall.eines<std::string>(
        {"verschiebe rahmen " + lage, "maximiere rahmen", "normalisiere rahmen", "schließe rahmen"}));
    prüfeNach({.bildschirm = "rahmen"});
}

void Irrgang::handle()
{
    std::optional<std::string> handlung;
    Element* element = nullptr;
    while (!handlung) {
        element = wähleElement();
        handlung = wähleHandlung(*element, m_lauf.oberfläche(), m_zufall, m_heute);
    }
    const Urheber urheber = urheberVon(bildschirmVon(*element));
    m_element = element->name();
    const bool istTotgeweiht = m_zufall.trifft(10);
    if (istTotgeweiht) {
        constexpr int höchsteFrist = 25;
        m_lauf.umgebung().stirbNach(m_zufall.zahl(1, höchsteFrist));
    }
    sage(*handlung);
    if (m_lauf.umgebung().istTot()) {
        stirb();
        return;
    }
    m_lauf.umgebung().lebe();
    prüfeNach(urheber);
}

/// The process was killed while it wrote: the next start finds tables that belong together, with nothing beside
/// them, whether the action counts or not.
void Irrgang::stirb()
{
    ++m_gestorben;
    m_mitschrift.schreibe("# der Prozeß ist beim Schreiben getötet worden");
    m_lauf.umgebung().meldungen.clear();
    if (m_lauf.läuft()) { // it took the refusal for a full disk and went on; a dead process doesn't
        zustand().ablauf.beende();
    } else if (!m_lauf.absturz().empty()) {
        sage("erwarte absturz");
    }
    m_lauf.umgebung().lebe();
    Verstöße verstöße;
    sage("starte");
    vermerkeMeldungen();
    prüfeAbsturz(verstöße);
    const auto ordner = m_lauf.imProgramm(U"Daten");
    m_stand = liesTabellen(ordner, ".txt", verstöße);
    m_sicherung = liesTabellen(ordner, ".bak", verstöße);
    prüfeAufbau(m_stand, verstöße);
    prüfeMitPrüfer(verstöße);
    prüfeOrdner(verstöße);
    prüfeBildschirme(verstöße);
    wirf(verstöße);
}

/// Ends and deletions would come up all too often among the few buttons of the main menu.
bool Irrgang::meidet(const Element& element)
{
    const auto& name = element.name();
    const bool endet = name == "cmdExit" || name == "mnBeenden";
    const bool wirftWeg = name == "cmdRollback" || name == "cmdKlientenLöschen"_t || name == "cmdBetreuungLöschen"_t;
    const bool imHauptmenü = bildschirmVon(element).name() == "frmHauptmenü"_t;
    return (endet && m_zufall.trifft(imHauptmenü ? 85 : 50)) || (wirftWeg && m_zufall.trifft(60));
}

Element* Irrgang::irgendeins(const std::vector<Element*>& elemente)
{
    constexpr int versuche = 60;
    for (int i = 0; i < versuche; ++i) {
        auto* element = m_zufall.eines(elemente);
        if (!meidet(*element) && m_lauf.oberfläche().istErreichbar(*element)) {
            return element;
        }
    }
    return nullptr;
}

Element* Irrgang::wähleElement()
{
    std::vector<Element*> alle;
    std::vector<Element*> knöpfe;
    const auto& folge = zustand().folge;
    for (const auto* bildschirm : folge.geladene()) {
        if (folge.istSichtbar(*bildschirm) && folge.istFrei(*bildschirm)) {
            alle.insert(alle.end(), bildschirm->elemente().begin(), bildschirm->elemente().end());
        }
    }
    std::copy_if(alle.begin(), alle.end(), std::back_inserter(knöpfe),
                 [](const Element* element) { return dynamic_cast<const Schaltfläche*>(element) != nullptr; });
    // buttons lead on; among the forty answers of a page they would hardly ever be met
    auto* element = m_zufall.trifft(35) && !knöpfe.empty() ? irgendeins(knöpfe) : irgendeins(alle);
    if (element == nullptr) {
        const auto ort = std::find_if(alle.begin(), alle.end(), [&](const Element* e) {
            return m_lauf.oberfläche().istErreichbar(*e) && dynamic_cast<const Schaltfläche*>(e) != nullptr;
        });
        wirf(ort == alle.end() ? Verstöße{std::string("kein Knopf ist erreichbar"_t)} : Verstöße());
        element = *ort;
    }
    return element;
}

void Irrgang::sage(const std::string& anweisung)
{
    try {
        führeAus(anweisung);
    } catch (...) {
        m_mitschrift.schreibe(anweisung);
        throw;
    }
    // the answers that the action asked for stand before it
    m_mitschrift.schreibe(anweisung);
}

void Irrgang::führeAus(const std::string& anweisung)
{
    for (const auto& gelesene : liesAnweisungen(anweisung)) {
        alleHandler().at(gelesene.form->wort)(m_lauf, gelesene);
        m_lauf.nachAnweisung();
    }
}

void Irrgang::vermerkeMeldungen()
{
    auto& meldungen = m_lauf.umgebung().meldungen;
    for (const auto& meldung : meldungen) {
        m_mitschrift.schreibe("erwarte meldung " + alsArgument(mitEinfachenUmbrüchen(meldung.text)) + " symbol=" +
                              std::string(wortFür(meldung.symbol)) + " knöpfe=" + std::string(wortFür(meldung.knöpfe)));
    }
    meldungen.clear();
}

Antwort Irrgang::antworte(const Meldung& meldung)
{
    const bool ja = m_zufall.trifft(60);
    const auto antwort =
        meldung.knöpfe == Knöpfe::JaNein ? (ja ? Antwort::Ja : Antwort::Nein) : (ja ? Antwort::OK : Antwort::Abbrechen);
    m_mitschrift.schreibe("antworte " + std::string(wortFür(antwort)));
    return antwort;
}

std::optional<fs::path> Irrgang::wähleDatei()
{
    // mostly the right file, else an import would hardly ever come to its end
    const auto* richtige = m_element == "cmdGetKernDat" ? U"Alt/kernDat.txt" : U"Alt/betreuungenDat.txt";
    const auto wahl = m_zufall.trifft(80)
                          ? std::u32string_view(richtige)
                          : m_zufall.eines<std::u32string_view>({U"Alt/kernDat.txt", U"Alt/betreuungenDat.txt",
                                                                 U"Alt/leer.txt", U"Tolvek7.ini", U"abbrechen"});
    m_mitschrift.schreibe("dateiwahl " + alsUtf8(wahl));
    return wahl == U"abbrechen" ? std::nullopt : std::optional(m_lauf.imProgramm(wahl));
}

void Irrgang::prüfeNach(const Urheber& urheber)
{
    vermerkeMeldungen();
    Verstöße verstöße;
    prüfeAbsturz(verstöße);
    const auto ordner = m_lauf.imProgramm(U"Daten");
    if (!liegenDa(m_stand, ordner, ".txt")) {
        auto neu = liesTabellen(ordner, ".txt", verstöße);
        ++m_gespeichert;
        m_hatImportiert = m_hatImportiert || urheber.bildschirm == "frmDatenÜbernahme"_t;
        prüfeMitPrüfer(verstöße);
        prüfeAufbau(neu, verstöße);
        prüfeÄnderung(urheber, m_stand, neu, m_sicherung, verstöße);
        if (!liegenDa(m_sicherung, ordner, ".bak")) {
            verstöße.emplace_back("die Sicherung der Sitzung ist nicht mehr die alte"_t);
        }
        m_stand = std::move(neu);
    }
    prüfeOrdner(verstöße);
    prüfeBildschirme(verstöße);
    wirf(verstöße);
}

void Irrgang::prüfeAbsturz(Verstöße& verstöße) const
{
    if (!m_lauf.absturz().empty()) {
        verstöße.push_back(verbinde("Absturz: "_t, m_lauf.absturz()));
    }
}

/// The older data bring what they say; all else that the program writes must stand up to its own checker.
void Irrgang::prüfeMitPrüfer(Verstöße& verstöße) const
{
    Dateien dateien;
    const auto pfade = bildeBestandspfade(m_lauf.imProgramm({}));
    for (const auto& befund : prüfeBestand(dateien, pfade).befunde) {
        if (!befund.istHinweis() && !(m_hatImportiert && betrifftAngaben(befund.art))) {
            verstöße.push_back(alsBerichtszeile(befund, pfade));
        }
    }
}

void Irrgang::prüfeOrdner(Verstöße& verstöße) const
{
    const auto wurzel = m_lauf.imProgramm({});
    for (auto ort = fs::recursive_directory_iterator(wurzel); ort != fs::recursive_directory_iterator(); ++ort) {
        const auto pfad = ort->path().lexically_relative(wurzel);
        if (!erlaubteOrte().contains(pfad)) {
            verstöße.push_back(verbinde("bleibt liegen: "_t, pfad.string()));
        }
        if (pfad == "Exporte" || pfad == "Daten/Sicherungen") {
            ort.disable_recursion_pending();
        }
    }
}

void Irrgang::prüfeBildschirme(Verstöße& verstöße) const
{
    if (!m_lauf.läuft()) {
        return;
    }
    const auto& folge = zustand().folge;
    std::vector<std::string> freie;
    for (const auto* bildschirm : folge.geladene()) {
        // frmInfo alone leaves the main menu usable
        if (folge.istSichtbar(*bildschirm) && folge.istFrei(*bildschirm) && bildschirm->name() != "frmInfo") {
            freie.push_back(bildschirm->name());
        }
    }
    if (freie.size() != 1) {
        std::string namen;
        std::for_each(freie.begin(), freie.end(), [&](const auto& name) { namen += ' ' + name; });
        verstöße.push_back(verbinde("nicht genau ein Bildschirm in Gebrauch:"_t, namen));
    }
}

void Irrgang::wirf(const Verstöße& verstöße) const
{
    if (verstöße.empty()) {
        return;
    }
    std::string text;
    for (const auto& verstoß : verstöße) {
        text += (text.empty() ? "" : "\n") + alsUtf8(verstoß);
    }
    throw std::runtime_error(text);
}

void Irrgang::schließeMitschriftAb()
{
    m_mitschrift.beginneSchritt();
    for (const auto& [name, inhalt] : {std::pair("kernDat", &m_stand.kern), std::pair("betrDat", &m_stand.betr),
                                       std::pair("diagDat", &m_stand.diag)}) {
        m_mitschrift.schreibe(std::string("erwarte datei Daten/") + name + ".txt");
        for (std::string_view rest = *inhalt; !rest.empty();) {
            const auto ende = rest.find("\r\n");
            m_mitschrift.schreibe(alsZeile(rest.substr(0, ende)));
            rest.remove_prefix(ende + 2);
        }
    }
}
