#include "hilfen/Platte.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace {

[[noreturn]] void scheitere(const char* grund)
{
    throw Dateifehler(grund);
}

} // namespace

std::strong_ordering Plattenstand::operator<=>(const Plattenstand& anderer) const
{
    const auto dateiweise = [](const auto& a, const auto& b) {
        const auto nachName = a.first.native() <=> b.first.native();
        return nachName != 0 ? nachName : a.second <=> b.second;
    };
    const auto ordnerweise = [](const auto& a, const auto& b) { return a.native() <=> b.native(); };
    const auto nachDateien = std::lexicographical_compare_three_way(
        dateien.begin(), dateien.end(), anderer.dateien.begin(), anderer.dateien.end(), dateiweise);
    return nachDateien != 0
               ? nachDateien
               : std::lexicographical_compare_three_way(ordner.begin(), ordner.end(), anderer.ordner.begin(),
                                                        anderer.ordner.end(), ordnerweise);
}

Platte::Platte(const Plattenstand& stand)
{
    for (const auto& pfad : stand.ordner) {
        m_namen[pfad] = nullptr;
    }
    for (const auto& [pfad, inhalt] : stand.dateien) {
        m_namen[pfad] = std::make_shared<Inhalt>(Inhalt{inhalt, inhalt});
    }
    m_gesicherteNamen = m_namen;
}

void Platte::lege(const fs::path& pfad, std::string inhalt)
{
    for (auto ordner = pfad.parent_path(); ordner.has_relative_path(); ordner = ordner.parent_path()) {
        m_namen.try_emplace(ordner, nullptr);
        m_gesicherteNamen.try_emplace(ordner, nullptr);
    }
    m_namen[pfad] = std::make_shared<Inhalt>(Inhalt{inhalt, inhalt});
    m_gesicherteNamen[pfad] = m_namen[pfad];
}

Plattenstand Platte::stand(Ende ende) const
{
    Plattenstand stand;
    for (const auto& [pfad, knoten] : ende == Ende::Stromlos ? m_gesicherteNamen : m_namen) {
        if (knoten) {
            stand.dateien[pfad] = ende == Ende::Getötet ? knoten->jetzt : knoten->gesichert;
        } else {
            stand.ordner.insert(pfad);
        }
    }
    return stand;
}

template <class F> void Platte::führeAus(const std::string& name, F operation)
{
    if (verweigert) {
        if (const auto grund = verweigert(name)) {
            throw Dateifehler(*grund);
        }
    }
    operation();
    if (beiOperation) {
        beiOperation(name);
    }
}

class Plattendatei : public OffeneDatei {
public:
    Plattendatei(Platte& platte, std::shared_ptr<Platte::Inhalt> inhalt, std::string name)
        : m_platte(platte), m_inhalt(std::move(inhalt)), m_name(std::move(name))
    {}

    std::size_t schreibe(std::string_view bytes) override
    {
        std::size_t genommen = bytes.size();
        m_platte.führeAus("schreibe " + m_name, [&] {
            if (m_platte.schreibtKurz && bytes.size() > 1) {
                genommen = bytes.size() / 2;
            }
            m_inhalt->jetzt.append(bytes.substr(0, genommen / 2));
            if (m_platte.beiOperation) {
                m_platte.beiOperation("mitten in schreibe " + m_name);
            }
            m_inhalt->jetzt.append(bytes.substr(genommen / 2, genommen - genommen / 2));
        });
        return genommen;
    }
    void sichereAufPlatte() override
    {
        m_platte.führeAus("sichere " + m_name, [&] { m_inhalt->gesichert = m_inhalt->jetzt; });
    }
    void schließe() override
    {
        m_platte.führeAus("schließe " + m_name, [] {});
    }

private:
    Platte& m_platte;
    std::shared_ptr<Platte::Inhalt> m_inhalt;
    std::string m_name;
};

const std::string& Plattenzugriff::inhalt(const fs::path& pfad) const
{
    const auto ort = m_platte.m_namen.find(pfad);
    if (ort == m_platte.m_namen.end() || !ort->second) {
        scheitere("no such file");
    }
    return ort->second->jetzt;
}

std::unique_ptr<Dateiinhalt> Plattenzugriff::lies(const fs::path& pfad, std::uint64_t ab)
{
    return std::make_unique<Dateiinhalt>(inhalt(pfad).substr(static_cast<std::size_t>(ab)));
}

std::uint64_t Plattenzugriff::länge(const fs::path& pfad)
{
    return inhalt(pfad).size();
}

std::unique_ptr<OffeneDatei> Plattenzugriff::öffne(const fs::path& pfad, Öffnung wie)
{
    std::shared_ptr<Platte::Inhalt> inhalt;
    m_platte.führeAus("öffne " + pfad.filename().string(), [&] {
        const auto ordner = m_platte.m_namen.find(pfad.parent_path());
        if (ordner == m_platte.m_namen.end() || ordner->second) {
            scheitere("no such folder");
        }
        auto& knoten = m_platte.m_namen[pfad];
        if (knoten && wie == Öffnung::Neu) {
            scheitere("there already");
        }
        if (!knoten) {
            knoten = std::make_shared<Platte::Inhalt>();
        }
        knoten->jetzt.clear();
        inhalt = knoten;
    });
    return std::make_unique<Plattendatei>(m_platte, inhalt, pfad.filename().string());
}

void Plattenzugriff::benenneUm(const fs::path& von, const fs::path& nach)
{
    m_platte.führeAus("benenne um in " + nach.filename().string(), [&] {
        auto& namen = m_platte.m_namen;
        const auto ort = namen.find(von);
        if (ort == namen.end()) {
            scheitere("no such file");
        }
        const auto knoten = ort->second;
        namen.erase(ort);
        namen[nach] = knoten;
        if (knoten) {
            return;
        }
        for (const auto& name : namenIn(von, false)) { // a folder takes its files along, also on the disk
            namen[nach / name] = namen[von / name];
            namen.erase(von / name);
            if (const auto gesichert = m_platte.m_gesicherteNamen.extract(von / name); !gesichert.empty()) {
                m_platte.m_gesicherteNamen[nach / name] = gesichert.mapped();
            }
        }
    });
}

void Plattenzugriff::lösche(const fs::path& pfad)
{
    m_platte.führeAus("lösche " + pfad.filename().string(), [&] {
        if (m_platte.m_namen.erase(pfad) == 0) {
            scheitere("no such file");
        }
    });
}

void Plattenzugriff::verknüpfe(const fs::path& von, const fs::path& nach)
{
    m_platte.führeAus("verknüpfe " + nach.filename().string(), [&] {
        if (istVergeben(nach)) {
            scheitere("there already");
        }
        m_platte.m_namen[nach] = m_platte.m_namen.at(von);
    });
}

void Plattenzugriff::legeOrdnerAn(const fs::path& pfad)
{
    m_platte.führeAus("lege Ordner an " + pfad.filename().string(), [&] {
        if (!m_platte.m_namen.try_emplace(pfad, nullptr).second) {
            scheitere("there already");
        }
    });
}

void Plattenzugriff::entferneOrdner(const fs::path& pfad)
{
    m_platte.führeAus("entferne Ordner " + pfad.filename().string(), [&] {
        if (!namenIn(pfad, false).empty() || !namenIn(pfad, true).empty()) {
            scheitere("not empty");
        }
        m_platte.m_namen.erase(pfad);
    });
}

void Plattenzugriff::sichereOrdnerAufPlatte(const fs::path& pfad)
{
    m_platte.führeAus("sichere Ordner " + pfad.filename().string(), [&] {
        auto& gesichert = m_platte.m_gesicherteNamen;
        std::erase_if(gesichert, [&](const auto& name) { return name.first.parent_path() == pfad; });
        for (const auto& [name, knoten] : m_platte.m_namen) {
            if (name.parent_path() == pfad) {
                gesichert[name] = knoten;
            }
        }
        // what stood in a folder that is gone from here can't be reached any more
        std::erase_if(gesichert, [&](const auto& name) {
            const auto ordner = name.first.parent_path();
            return ordner.parent_path() == pfad && !gesichert.contains(ordner);
        });
    });
}

Fund Plattenzugriff::findet(const fs::path& pfad)
{
    const auto ort = m_platte.m_namen.find(pfad);
    return ort == m_platte.m_namen.end() ? Fund::Nichts : ort->second ? Fund::Datei : Fund::Ordner;
}

bool Plattenzugriff::istVergeben(const fs::path& pfad)
{
    return m_platte.m_namen.contains(pfad);
}

std::int64_t Plattenzugriff::zeitVon(const fs::path& /*pfad*/)
{
    std::tm zeit{};
    zeit.tm_year = 107;
    zeit.tm_mon = 7;
    zeit.tm_mday = 1;
    zeit.tm_hour = 17;
    zeit.tm_isdst = -1;
    return std::mktime(&zeit);
}

std::vector<fs::path> Plattenzugriff::namenIn(const fs::path& ordner, bool sindOrdner)
{
    std::vector<fs::path> namen;
    for (const auto& [pfad, knoten] : m_platte.m_namen) {
        if (pfad.parent_path() == ordner && (knoten == nullptr) == sindOrdner) {
            namen.push_back(pfad.filename());
        }
    }
    return namen;
}
