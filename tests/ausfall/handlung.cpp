// One run of the program without windows, with the real files, the real lock and the screens' elements, for the fault
// tests:
//
//   handlung ORDNER HANDLUNG
//
// It says on the standard output what happens: "HAUPTMENÜ" when the main menu is there, "MELDUNG …" for each box
// (answered with its confirming button), "FERTIG" when the action has come back. The exit status is the program's.

#include "hilfen/Schreibhandlungen.h"
#include "platform/dateien/Ordnersperre.h"
#include "platform/text/Eingabe.h"
#include "platform/umgebung/Prozessschutz.h"
#ifdef AUSFALL_CALC
#include "platform/calc/Rechenprogramm.h"
#endif

#include <algorithm>
#include <cstdio>
#include <functional>
#include <iostream>
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

/// Another hand cuts the tables to nothing while the export reads them.
void exportiereAusGekürzten(Hand& hand, Handlungsumgebung& umgebung)
{
    bool gekürzt = false;
    umgebung.beiZeichnen = [&] {
        if (!gekürzt) {
            gekürzt = true;
            for (const auto tabelle : dieTabellen) {
                if (::truncate(zustand().pfade.von(tabelle).c_str(), 0) != 0) {
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

void schreibe(const Schreibhandlung& handlung, Hand& hand)
{
    handlung.bereiteVor(hand);
    zähleAbHier();
    handlung.handle(hand);
}

/// False for a name that is none.
bool tue(std::string_view name, Hand& hand, Handlungsumgebung& umgebung)
{
    const auto handlung = std::ranges::find(schreibhandlungen(), name, &Schreibhandlung::name);
    if (handlung != schreibhandlungen().end()) {
        schreibe(*handlung, hand);
    } else if (name == "mappe") {
        hand.klicke("mnExcel"_t);
    } else if (name == "export-gekuerzt") {
        exportiereAusGekürzten(hand, umgebung);
    } else if (name == "bleibe") {
        sage("BLEIBT");
        ::pause();
    } else if (name == "absturz") {
        std::abort();
    } else {
        return name == "start";
    }
    return true;
}

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
    Hand hand(programm);
    if (!tue(argv[2], hand, umgebung)) {
        return 2;
    }
    if (zustand.ablauf.läuft()) {
        sage("FERTIG");
    }
    return zustand.ablauf.status();
}
