#include "Aenderungsregeln.h"

#include "care/frmBetreuungA.h"
#include "clients/frmStammdaten.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"

#include <algorithm>

namespace {

template <class S> struct Unterschied {
    std::vector<S> neu, anders, weg;

    bool istLeer() const { return neu.empty() && anders.empty() && weg.empty(); }
    /// Exactly this record, new or changed.
    bool istNur(const S& nummer, bool alsNeu) const
    {
        return weg.empty() && (alsNeu ? anders.empty() && neu == std::vector<S>{nummer}
                                      : neu.empty() && (anders.empty() || anders == std::vector<S>{nummer}));
    }
};

template <class S>
Unterschied<S> vergleiche(const std::map<S, std::string>& vorher, const std::map<S, std::string>& nachher)
{
    Unterschied<S> unterschied;
    for (const auto& [nummer, zeile] : nachher) {
        const auto alt = vorher.find(nummer);
        if (alt == vorher.end()) {
            unterschied.neu.push_back(nummer);
        } else if (alt->second != zeile) {
            unterschied.anders.push_back(nummer);
        }
    }
    for (const auto& [nummer, zeile] : vorher) {
        if (!nachher.contains(nummer)) {
            unterschied.weg.push_back(nummer);
        }
    }
    return unterschied;
}

struct Unterschiede {
    Unterschied<int> kern;
    Unterschied<Betreuungsschlüssel> betr, diag;

    Unterschiede(const Tabellenstand& vorher, const Tabellenstand& nachher)
        : kern(vergleiche(vorher.klienten, nachher.klienten)),
          betr(vergleiche(vorher.betreuungen, nachher.betreuungen)),
          diag(vergleiche(vorher.diagnosen, nachher.diagnosen))
    {}
};

/// Only the fields named (from 0) differ; a delimiter behind the last field counts for nothing.
bool unterscheidenSichNurIn(std::string_view a, std::string_view b, std::initializer_list<std::size_t> erlaubt)
{
    auto eine = felderVon(a);
    auto andere = felderVon(b);
    const auto länge = std::max(eine.size(), andere.size());
    eine.resize(länge);
    andere.resize(länge);
    for (std::size_t i = 0; i < länge; ++i) {
        if (eine[i] != andere[i] && std::find(erlaubt.begin(), erlaubt.end(), i) == erlaubt.end()) {
            return false;
        }
    }
    return true;
}

constexpr std::size_t feldBetrao = 2;
constexpr std::size_t feldMemoK = 10;

bool nurStatusGeändert(const Unterschied<int>& kern, const Tabellenstand& vorher, const Tabellenstand& nachher)
{
    return kern.neu.empty() && std::all_of(kern.anders.begin(), kern.anders.end(), [&](int nummer) {
               return unterscheidenSichNurIn(vorher.klienten.at(nummer), nachher.klienten.at(nummer), {feldBetrao});
           });
}

bool istErlaubtFürStammdaten(const Urheber& urheber, const Unterschiede& neu, const Tabellenstand& vorher,
                             const Tabellenstand& nachher)
{
    const bool nurDieser = neu.kern.istNur(urheber.kernID, urheber.istNeu) && neu.betr.istLeer() && neu.diag.istLeer();
    return nurDieser && (urheber.istNeu || gespeicherterStatus(vorher.klienten.at(urheber.kernID)) ==
                                               gespeicherterStatus(nachher.klienten.at(urheber.kernID)));
}

bool istErlaubtFürBetreuung(const Urheber& urheber, const Unterschiede& neu, const Tabellenstand& vorher,
                            const Tabellenstand& nachher)
{
    const Betreuungsschlüssel betreuung{urheber.kernID, urheber.betrID};
    const bool nurDiese = neu.betr.istNur(betreuung, urheber.istNeu) && neu.diag.istNur(betreuung, urheber.istNeu) &&
                          neu.kern.istNur(urheber.kernID, false);
    return nurDiese && unterscheidenSichNurIn(vorher.klienten.at(urheber.kernID), nachher.klienten.at(urheber.kernID),
                                              {feldBetrao, feldMemoK});
}

bool istErlaubtFürHauptmenü(const Unterschiede& neu, const Tabellenstand& vorher, const Tabellenstand& nachher)
{
    const bool nurGelöscht = neu.betr.neu.empty() && neu.betr.anders.empty() && neu.diag.neu.empty() &&
                             neu.diag.anders.empty() && neu.betr.weg == neu.diag.weg;
    const bool klientMitSeinen = std::all_of(neu.kern.weg.begin(), neu.kern.weg.end(), [&](int nummer) {
        const auto rest = nachher.betreuungen.lower_bound({nummer, 0});
        return rest == nachher.betreuungen.end() || rest->first.first != nummer;
    });
    const bool einKlient = std::all_of(neu.betr.weg.begin(), neu.betr.weg.end(), [&](const auto& nummer) {
        return nummer.first == neu.betr.weg.front().first &&
               (neu.kern.weg.empty() || neu.kern.weg.front() == nummer.first);
    });
    return nurGelöscht && klientMitSeinen && einKlient && neu.kern.weg.size() <= 1 &&
           (!neu.kern.weg.empty() || neu.betr.weg.size() == 1) && nurStatusGeändert(neu.kern, vorher, nachher);
}

bool istErlaubt(const Urheber& urheber, const Tabellenstand& vorher, const Tabellenstand& nachher,
                const Tabellenstand& sicherung)
{
    const Unterschiede neu(vorher, nachher);
    if (urheber.bildschirm == "frmStammdaten") {
        return istErlaubtFürStammdaten(urheber, neu, vorher, nachher);
    }
    if (urheber.bildschirm == "frmBetreuungA") {
        return istErlaubtFürBetreuung(urheber, neu, vorher, nachher);
    }
    if (urheber.bildschirm == "frmHauptmenü"_t) {
        return nachher == sicherung || istErlaubtFürHauptmenü(neu, vorher, nachher);
    }
    return urheber.bildschirm == "frmDatenÜbernahme"_t && vorher.klienten.empty();
}

std::string beschreibe(const Tabellenstand& vorher, const Tabellenstand& nachher)
{
    const Unterschiede neu(vorher, nachher);
    const auto zähle = [](std::string_view tabelle, const auto& unterschied) {
        return verbinde(' ', tabelle, " +", alsText(static_cast<std::int64_t>(unterschied.neu.size())), " ~",
                        alsText(static_cast<std::int64_t>(unterschied.anders.size())), " -",
                        alsText(static_cast<std::int64_t>(unterschied.weg.size())));
    };
    return zähle("kernDat"_t, neu.kern) + zähle("betrDat"_t, neu.betr) + zähle("diagDat"_t, neu.diag);
}

void prüfeÜberschneidungen(const Tabellenstand& vorher, const Tabellenstand& nachher, Verstöße& verstöße)
{
    const auto alte = überschneidungen(vorher);
    for (const auto& paar : überschneidungen(nachher)) {
        if (!alte.contains(paar)) {
            verstöße.push_back(verbinde("zwei Betreuungen teilen einen Tag: "_t, nachher.betreuungen.at(paar.first),
                                        " und "_t, nachher.betreuungen.at(paar.second)));
        }
    }
}

void prüfeStatus(const Urheber& urheber, const Tabellenstand& nachher, Verstöße& verstöße)
{
    const auto klient = nachher.klienten.find(urheber.kernID);
    if (urheber.bildschirm == "frmBetreuungA" && klient != nachher.klienten.end() &&
        gespeicherterStatus(klient->second) != statusVon(nachher, urheber.kernID)) {
        verstöße.push_back(verbinde("betrao stimmt nicht: "_t, klient->second));
    }
}

} // namespace

Urheber urheberVon(const Bildschirm& bildschirm)
{
    Urheber urheber{.bildschirm = bildschirm.name()};
    if (const auto* stammdaten = dynamic_cast<const frmStammdaten*>(&bildschirm)) {
        urheber.kernID = stammdaten->kernID;
        urheber.istNeu = stammdaten->istNeu;
    } else if (const auto* betreuung = dynamic_cast<const frmBetreuungA*>(&bildschirm)) {
        urheber.kernID = betreuung->kernID;
        urheber.betrID = betreuung->betrID;
        urheber.istNeu = betreuung->istNeu;
    }
    return urheber;
}

void prüfeÄnderung(const Urheber& urheber, const Tabellenstand& vorher, const Tabellenstand& nachher,
                   const Tabellenstand& sicherung, Verstöße& verstöße)
{
    if (!istErlaubt(urheber, vorher, nachher, sicherung)) {
        verstöße.push_back(verbinde(urheber.bildschirm, " hat zu viel verändert:"_t, beschreibe(vorher, nachher)));
    }
    if (urheber.bildschirm != "frmDatenÜbernahme"_t && nachher != sicherung) {
        prüfeÜberschneidungen(vorher, nachher, verstöße);
    }
    prüfeStatus(urheber, nachher, verstöße);
}

void prüfeStart(const Tabellenstand& vorher, const Tabellenstand& nachher, const Tabellenstand& sicherung,
                Verstöße& verstöße)
{
    const Unterschiede neu(vorher, nachher);
    if (!neu.betr.istLeer() || !neu.diag.istLeer() || !neu.kern.weg.empty() ||
        !nurStatusGeändert(neu.kern, vorher, nachher)) {
        verstöße.push_back(verbinde("der Start hat zu viel verändert:"_t, beschreibe(vorher, nachher)));
    }
    if (nachher != sicherung) {
        verstöße.emplace_back("die Sicherung der Sitzung ist keine Kopie der Tabellen"_t);
    }
    for (const auto& [nummer, zeile] : nachher.klienten) {
        if (gespeicherterStatus(zeile) != statusVon(nachher, nummer)) {
            verstöße.push_back(verbinde("betrao stimmt nicht: "_t, zeile));
        }
    }
}
