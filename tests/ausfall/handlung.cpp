// One run of the program without windows, with the real files, the real lock and the screens' elements, for the fault
// tests:
//
//   handlung ORDNER HANDLUNG
//
// It says on the standard output what happens: "HAUPTMENÜ" when the main menu is there, "MELDUNG …" for each box
// (answered with its confirming button), "FERTIG" when the action has come back. The exit status is the program's.

#include "app/moMain.h"
#include "platform/dateien/Ordnersperre.h"
#include "platform/text/Eingabe.h"
#include "platform/umgebung/Prozessschutz.h"
#ifdef AUSFALL_CALC
#include "platform/calc/Rechenprogramm.h"
#endif

#include <array>
#include <cstdio>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include <dlfcn.h>
#include <unistd.h>

namespace {

void sage(std::string_view wort, std::string_view text = {})
{
    std::string zeile(text);
    for (auto& zeichen : zeile) {
        zeichen = zeichen == '\r' || zeichen == '\n' ? ' ' : zeichen;
    }
    std::cout << wort << (zeile.empty() ? "" : " ") << alsUtf8(zeile) << std::endl;
}

class Handlungsumgebung : public Umgebung {
public:
    explicit Handlungsumgebung(std::filesystem::path ordner)
        : m_ordner(std::move(ordner)), m_dateien(erzeugeDateizugriff())
    {}

    Datum heute() override { return {2007, 8, 2}; }
    std::filesystem::path programmordner() override { return m_ordner; }
    bool istErsteInstanz(const std::filesystem::path& datenordner) override
    {
        m_sperre = sperreDatenordner(m_dateien, datenordner);
        return m_sperre != nullptr;
    }
    Dateien& dateien() override { return m_dateien; }
    Antwort zeigeMeldung(const Meldung& meldung) override
    {
        sage("MELDUNG", meldung.text);
        return meldung.knöpfe == Knöpfe::JaNein ? Antwort::Ja : Antwort::OK;
    }
    std::optional<std::filesystem::path> wähleDatei(const Dateiwahl& /*wahl*/) override { return std::nullopt; }
#ifdef AUSFALL_CALC
    bool findeTabellenprogramm() override
    {
        return m_rechenprogramm.istDa();
    }
    bool übergibMappe(Arbeitsmappe& mappe, const std::function<void(double)>& fortschritt) override
    {
        return m_rechenprogramm.öffne(mappe, fortschritt);
    }
#else
    bool findeTabellenprogramm() override
    {
        return false;
    }
    bool übergibMappe(Arbeitsmappe& /*mappe*/, const std::function<void(double)>& /*fortschritt*/) override
    {
        return false;
    }
#endif
    Größe bildschirmgröße() override
    {
        return {28800, 16200};
    }
    void zeichne() override
    {
        beiZeichnen();
    }
    void lasseEreignisseZu() override
    {
        beiZeichnen();
    }

    std::function<void()> beiZeichnen = [] {};

private:
    std::filesystem::path m_ordner;
    Dateien m_dateien;
    std::unique_ptr<Ordnersperre> m_sperre;
#ifdef AUSFALL_CALC
    Rechenprogramm m_rechenprogramm;
#endif
};

/// From here on the calls of the action count.
void zähleAbHier()
{
    if (auto* beginne = reinterpret_cast<void (*)()>(dlsym(RTLD_DEFAULT, "ausfall_beginne"))) {
        beginne();
    }
}

class Hand {
public:
    Hand(Programm& programm, Handlungsumgebung& umgebung) : m_programm(programm), m_umgebung(umgebung) {}

    void klicke(std::string_view name)
    {
        tue(name, [](Element& element) { element.klicke(); });
    }
    void tippe(std::string_view name, std::string_view text)
    {
        tue(name,
            [text](Element& element) { dynamic_cast<Textfeld&>(element).gibEin(std::string(text), text.size()); });
    }
    void tippeZahl(std::string_view name, std::string_view text)
    {
        tue(name,
            [text](Element& element) { dynamic_cast<Auswahlfeld&>(element).gibEin(std::string(text), text.size()); });
    }
    void wähle(std::string_view name, std::size_t eintrag)
    {
        tue(name, [eintrag](Element& element) { dynamic_cast<Auswahlfeld&>(element).wähle(eintrag); });
    }
    void wähleZeile(std::string_view name, std::size_t zeile)
    {
        tue(name, [zeile](Element& element) { dynamic_cast<Liste&>(element).klickeZeile(zeile); });
    }
    Handlungsumgebung& umgebung() { return m_umgebung; }
    const Pfade& pfade() { return m_programm.zustand().pfade; }

private:
    template <class F> void tue(std::string_view name, F aktion)
    {
        m_programm.zustand().ablauf.ereignis([&] {
            auto* bildschirm = m_programm.zustand().folge.inGebrauch();
            auto* element = bildschirm == nullptr ? nullptr : bildschirm->finde(name);
            if (element == nullptr || !bildschirm->istErreichbar(*element)) {
                throw std::logic_error("out of reach: " + alsUtf8(name));
            }
            if (!element->nimmtFokus() || bildschirm->fokussiere(element)) {
                aktion(*element);
            }
        });
    }

    Programm& m_programm;
    Handlungsumgebung& m_umgebung;
};

void legeNeueBetreuungAn(Hand& hand)
{
    hand.klicke("cmdBetreuungHinzufügen"_t);
    hand.klicke("cmdOK"_t); // begin
    hand.klicke("cmdOK"_t); // end
    zähleAbHier();
    hand.klicke("cmdOK"_t);
}

void ändereBetreuung(Hand& hand)
{
    hand.klicke("cmdBetreuungBearbeiten"_t);
    hand.wähle("comboWieder"_t, 2);
    zähleAbHier();
    hand.klicke("cmdOK"_t);
}

void löscheBetreuung(Hand& hand)
{
    zähleAbHier();
    hand.klicke("cmdBetreuungLöschen"_t);
}

void legeNeuenKlientenAn(Hand& hand)
{
    hand.klicke("cmdKlientenHinzufügen"_t);
    hand.tippe("tbNachname"_t, "Zeisig"_t);
    zähleAbHier();
    hand.klicke("cmdOK"_t);
}

void löscheKlienten(Hand& hand)
{
    hand.wähleZeile("lvwKlienten"_t, 2);
    zähleAbHier();
    hand.klicke("cmdKlientenLöschen"_t);
}

void verwerfeSitzung(Hand& hand)
{
    hand.wähleZeile("lvwKlienten"_t, 2);
    hand.klicke("cmdKlientenLöschen"_t);
    zähleAbHier();
    hand.klicke("cmdRollback"_t);
}

void importiere(Hand& hand)
{
    hand.klicke("cmdDatenübernahme"_t);
    hand.tippe("tbKernDatAlt"_t, "alt/kernDat.txt"_t);
    hand.tippe("tbBetrDatAlt"_t, "alt/betreuungenDat.txt"_t);
    zähleAbHier();
    hand.klicke("cmdOK"_t);
}

void übergibMappe(Hand& hand)
{
    hand.klicke("mnExcel"_t);
}

/// Another hand cuts the tables to nothing while the export reads them.
void exportiereAusGekürzten(Hand& hand)
{
    bool gekürzt = false;
    hand.umgebung().beiZeichnen = [&] {
        if (!gekürzt) {
            gekürzt = true;
            for (const auto tabelle : dieTabellen) {
                if (::truncate(hand.pfade().von(tabelle).c_str(), 0) != 0) {
                    std::perror("truncate");
                }
            }
            sage("GEKÜRZT");
        }
    };
    hand.klicke("mnExport"_t);
    hand.tippeZahl("comboJahr"_t, "2007"_t);
    hand.klicke("cmdOK"_t);
}

void bleibe(Hand& /*hand*/)
{
    sage("BLEIBT");
    ::pause();
}

void stürzeAb(Hand& /*hand*/)
{
    std::abort();
}

void starteNur(Hand& /*hand*/)
{}

struct Handlung {
    std::string_view name;
    void (*tue)(Hand&);
};

constexpr std::array handlungen{
    Handlung{"start", starteNur},
    Handlung{"neue-betreuung", legeNeueBetreuungAn},
    Handlung{"betreuung-aendern", ändereBetreuung},
    Handlung{"betreuung-loeschen", löscheBetreuung},
    Handlung{"klient-neu", legeNeuenKlientenAn},
    Handlung{"klient-loeschen", löscheKlienten},
    Handlung{"rollback", verwerfeSitzung},
    Handlung{"import", importiere},
    Handlung{"mappe", übergibMappe},
    Handlung{"export-gekuerzt", exportiereAusGekürzten},
    Handlung{"bleibe", bleibe},
    Handlung{"absturz", stürzeAb},
};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        return 2;
    }
    verhindereSpeicherabbilder();
    Handlungsumgebung umgebung{std::filesystem::path(argv[1])};
    Programm programm(umgebung);
    programm.starte();
    auto& zustand = programm.zustand();
    if (!zustand.ablauf.läuft()) {
        return zustand.ablauf.status();
    }
    sage("HAUPTMENÜ");
    Hand hand(programm, umgebung);
    for (const auto& handlung : handlungen) {
        if (handlung.name == argv[2]) {
            handlung.tue(hand);
            if (zustand.ablauf.läuft()) {
                sage("FERTIG");
            }
            return zustand.ablauf.status();
        }
    }
    return 2;
}
