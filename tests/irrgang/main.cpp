#include "Irrgang.h"

#include "oberflaeche/OberflaecheOhne.h"

#ifdef SZENARIO_QT
#include "oberflaeche/OberflaecheQt.h"
#endif

#include <charconv>
#include <fstream>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <vector>

namespace {

constexpr std::size_t gezeigteSchritte = 30;

struct Aufruf {
    bool ohne = true;
    bool qt = true;
    unsigned long long saat = 1;
    int schritte = 1000;
    std::string mitschrift; ///< path of the file that takes the walk as a scenario
};

unsigned long long alsZahl(const std::string& text)
{
    unsigned long long zahl = 0;
    const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), zahl);
    if (fehler != std::errc() || ende != text.data() + text.size()) {
        throw std::invalid_argument("eine Zahl statt »" + text + "«");
    }
    return zahl;
}

/// Options are `--name=value` or `--name value`.
void nimm(Aufruf& aufruf, const std::string& name, const std::string& wert)
{
    if (name == "--oberfläche" && (wert == "ohne" || wert == "qt" || wert == "beide")) {
        aufruf.ohne = wert != "qt";
        aufruf.qt = wert != "ohne";
    } else if (name == "--saat") {
        aufruf.saat = alsZahl(wert);
    } else if (name == "--schritte") {
        aufruf.schritte = static_cast<int>(alsZahl(wert));
    } else if (name == "--mitschrift") {
        aufruf.mitschrift = wert;
    } else {
        throw std::invalid_argument("unbekannt: " + name + ' ' + wert);
    }
}

Aufruf liesAufruf(const std::vector<std::string>& argumente)
{
    Aufruf aufruf;
    for (std::size_t i = 0; i < argumente.size(); ++i) {
        const auto gleich = argumente[i].find('=');
        if (gleich != std::string::npos) {
            nimm(aufruf, argumente[i].substr(0, gleich), argumente[i].substr(gleich + 1));
        } else if (i + 1 < argumente.size()) {
            nimm(aufruf, argumente[i], argumente[i + 1]);
            ++i;
        } else {
            throw std::invalid_argument("unbekannt: " + argumente[i]);
        }
    }
    return aufruf;
}

std::vector<std::unique_ptr<Oberfläche>> erzeugeOberflächen(const Aufruf& aufruf)
{
    std::vector<std::unique_ptr<Oberfläche>> oberflächen;
    if (aufruf.ohne) {
        oberflächen.push_back(std::make_unique<OberflächeOhne>());
    }
#ifdef SZENARIO_QT
    if (aufruf.qt) {
        oberflächen.push_back(erzeugeOberflächeQt());
    }
#else
    if (!aufruf.ohne) {
        throw std::invalid_argument("dieser Bau hat die Oberfläche qt nicht");
    }
#endif
    return oberflächen;
}

void schreibeMitschrift(Irrgang& irrgang, const std::string& pfad, bool gelungen)
{
    if (pfad.empty()) {
        return;
    }
    if (gelungen) {
        irrgang.schließeMitschriftAb();
    }
    std::ofstream datei(std::filesystem::path(std::u8string(pfad.begin(), pfad.end())), std::ios::binary);
    irrgang.mitschrift().gibAus(datei, irrgang.mitschrift().anzahl());
    datei.close();
    if (!datei) {
        throw std::runtime_error("die Mitschrift " + pfad + " kann nicht geschrieben werden");
    }
}

bool gelingt(const Aufruf& aufruf, Oberfläche& oberfläche)
{
    Irrgang irrgang(oberfläche, aufruf.saat);
    const auto fehler = irrgang.gehe(aufruf.schritte);
    schreibeMitschrift(irrgang, aufruf.mitschrift, !fehler);
    std::cout << (fehler ? "FEHLER" : "ok") << " Oberfläche " << oberfläche.name() << ", Saat " << aufruf.saat
              << ", Schritt " << irrgang.gegangen() << ", " << irrgang.gespeichert() << " mal gespeichert, "
              << irrgang.gestorben() << " mal beim Schreiben getötet" << std::endl;
    if (fehler) {
        std::cout << *fehler << "\nDie letzten Schritte:\n";
        irrgang.mitschrift().gibAus(std::cout, gezeigteSchritte);
        std::cout << "Der ganze Weg: irrgang --oberfläche=" << oberfläche.name() << " --saat " << aufruf.saat
                  << " --schritte " << irrgang.gegangen() << " --mitschrift DATEI" << std::endl;
    }
    return !fehler;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const auto aufruf = liesAufruf({argv + 1, argv + argc});
        bool gut = true;
        for (const auto& oberfläche : erzeugeOberflächen(aufruf)) {
            gut = gelingt(aufruf, *oberfläche) && gut;
        }
        return gut ? 0 : 1;
    } catch (const std::exception& fehler) {
        std::cerr << fehler.what()
                  << "\nirrgang [--oberfläche=ohne|qt|beide] [--saat S] [--schritte N] [--mitschrift DATEI]\n";
        return 2;
    }
}
