#pragma once

#include "platform/dateien/Dateien.h"
#include "platform/text/Text.h"

#include <cstdint>
#include <exception>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// File operations that go wrong on order. Every operation that changes something on the disk has a number in
/// the order of the run; the plan says which one is disturbed, and how. Flushes are kept in the books only: what
/// a loss of power would leave is worked out from them, and a test need not wait for the disk.

enum class Störung {
    KeinPlatz,       ///< refused: no space; a write takes half of the bytes and refuses the rest
    EinAusgabe,      ///< refused: I/O error
    KeinRecht,       ///< refused: no permission
    KurzGeschrieben, ///< a write takes half of the bytes and says so; other operations succeed
    TotVorher,       ///< the process is killed before the operation
    TotMittendrin,   ///< killed in the middle of it (a write: half of the bytes are there)
    TotNachher,      ///< killed when it is done
    StromausVorher,  ///< as TotVorher, and what was not flushed to the disk is lost
    StromausNachher  ///< as TotNachher, likewise
};

/// The process has been killed: no handler of the program may do anything about it.
class Prozessende : public std::exception {};

/// The plan, and what happened. Shared by the test and the file operations, so that it can be laid after the set-up.
class Störplan {
public:
    /// Disturbs the operation number `stelle` (from 1) counted from now.
    void störe(int stelle, Störung störung)
    {
        m_stelle = stelle;
        m_störung = störung;
        m_gezählt = 0;
        m_tot = false;
        operationen.clear();
    }
    void schweige() { m_stelle = 0; }

    bool istEingetreten() const { return m_stelle > 0 && m_gezählt >= m_stelle; }

    /// The names of the operations since the plan was laid.
    std::vector<std::string> operationen;

private:
    friend class Störzugriff;
    friend class GestörteDatei;

    bool trifft(const std::string& name)
    {
        prüfeLeben();
        operationen.push_back(name);
        return ++m_gezählt == m_stelle;
    }
    void prüfeLeben() const
    {
        if (m_tot) {
            throw Prozessende();
        }
    }

    /// Runs an operation that is done or not done.
    template <class F> void führeAus(const std::string& name, F operation)
    {
        if (!trifft(name)) {
            operation();
            return;
        }
        weiseAb();
        if (m_störung == Störung::TotVorher || m_störung == Störung::StromausVorher) {
            stirb();
        }
        operation();
        if (m_störung != Störung::KurzGeschrieben) {
            stirb();
        }
    }
    void weiseAb() const
    {
        if (m_störung == Störung::KeinPlatz) {
            throw Dateifehler(std::string("Auf dem Datenträger ist kein Platz mehr"_t));
        }
        if (m_störung == Störung::EinAusgabe) {
            throw Dateifehler(std::string("Ein-/Ausgabefehler"_t));
        }
        if (m_störung == Störung::KeinRecht) {
            throw Dateifehler(std::string("Keine Berechtigung"_t));
        }
    }
    [[noreturn]] void stirb()
    {
        m_tot = true;
        if (m_störung == Störung::StromausVorher || m_störung == Störung::StromausNachher) {
            for (const auto& [pfad, länge] : m_aufDerPlatte) {
                std::error_code egal;
                if (std::filesystem::file_size(pfad, egal) > länge && !egal) {
                    std::filesystem::resize_file(pfad, länge, egal);
                }
            }
        }
        throw Prozessende();
    }

    int m_stelle = 0;
    Störung m_störung = Störung::KeinPlatz;
    int m_gezählt = 0;
    bool m_tot = false;
    /// How much of every file that was opened for writing would survive the loss of power.
    std::map<std::filesystem::path, std::uintmax_t> m_aufDerPlatte;
};

class GestörteDatei : public OffeneDatei {
public:
    GestörteDatei(std::unique_ptr<OffeneDatei> datei, std::filesystem::path pfad, std::shared_ptr<Störplan> plan)
        : m_datei(std::move(datei)), m_pfad(std::move(pfad)), m_plan(std::move(plan))
    {}

    std::size_t schreibe(std::string_view bytes) override
    {
        if (!m_plan->trifft("schreibe")) {
            // what comes after a write that was cut short by a full disk is refused too
            if (m_voll) {
                m_plan->weiseAb();
            }
            return m_datei->schreibe(bytes);
        }
        return schreibeGestört(bytes);
    }
    std::uint64_t länge() override { return m_datei->länge(); }
    void schneideAb(std::uint64_t länge) override
    {
        m_plan->führeAus("schneideAb", [&] { m_datei->schneideAb(länge); });
    }
    void sichereAufPlatte() override
    {
        m_plan->führeAus("sichereAufPlatte", [&] { m_plan->m_aufDerPlatte[m_pfad] = m_datei->länge(); });
    }
    void schließe() override
    {
        m_plan->führeAus("schließe", [&] { m_datei->schließe(); });
    }

private:
    std::size_t schreibeGestört(std::string_view bytes)
    {
        const auto halb = bytes.substr(0, bytes.size() / 2);
        switch (m_plan->m_störung) {
        case Störung::KurzGeschrieben:
            return m_datei->schreibe(bytes.substr(0, bytes.size() / 2 + 1));
        case Störung::KeinPlatz:
            m_voll = true;
            if (halb.empty()) {
                m_plan->weiseAb();
            }
            return m_datei->schreibe(halb);
        case Störung::TotMittendrin:
            m_datei->schreibe(halb);
            m_plan->stirb();
        case Störung::TotNachher:
        case Störung::StromausNachher:
            m_datei->schreibe(bytes);
            m_plan->stirb();
        case Störung::TotVorher:
        case Störung::StromausVorher:
            m_plan->stirb();
        default:
            m_plan->weiseAb();
            return 0;
        }
    }

    std::unique_ptr<OffeneDatei> m_datei;
    std::filesystem::path m_pfad;
    std::shared_ptr<Störplan> m_plan;
    bool m_voll = false;
};

class Störzugriff : public Dateizugriff {
public:
    explicit Störzugriff(std::shared_ptr<Störplan> plan) : m_plan(std::move(plan)) {}

    std::unique_ptr<Dateiinhalt> lies(const std::filesystem::path& pfad) override
    {
        m_plan->prüfeLeben();
        return m_echt->lies(pfad);
    }
    std::unique_ptr<OffeneDatei> öffne(const std::filesystem::path& pfad, Öffnung wie) override
    {
        std::unique_ptr<OffeneDatei> datei;
        m_plan->führeAus("öffne", [&] {
            datei = m_echt->öffne(pfad, wie);
            m_plan->m_aufDerPlatte[pfad] = datei->länge();
        });
        return std::make_unique<GestörteDatei>(std::move(datei), pfad, m_plan);
    }
    void benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach) override
    {
        m_plan->führeAus("benenneUm", [&] {
            m_echt->benenneUm(von, nach);
            auto bekannt = m_plan->m_aufDerPlatte.extract(von);
            m_plan->m_aufDerPlatte.erase(nach);
            if (!bekannt.empty()) {
                bekannt.key() = nach;
                m_plan->m_aufDerPlatte.insert(std::move(bekannt));
            }
        });
    }
    void lösche(const std::filesystem::path& pfad) override
    {
        m_plan->führeAus("lösche", [&] {
            m_echt->lösche(pfad);
            m_plan->m_aufDerPlatte.erase(pfad);
        });
    }
    void legeOrdnerAn(const std::filesystem::path& pfad) override
    {
        m_plan->führeAus("legeOrdnerAn", [&] { m_echt->legeOrdnerAn(pfad); });
    }
    void entferneOrdner(const std::filesystem::path& pfad) override
    {
        m_plan->führeAus("entferneOrdner", [&] { m_echt->entferneOrdner(pfad); });
    }
    void sichereOrdnerAufPlatte(const std::filesystem::path& pfad) override
    {
        m_plan->führeAus("sichereOrdnerAufPlatte", [&] { prüfeOrdner(pfad); });
    }
    bool istDatei(const std::filesystem::path& pfad) override { return m_echt->istDatei(pfad); }
    bool istOrdner(const std::filesystem::path& pfad) override { return m_echt->istOrdner(pfad); }
    std::vector<std::filesystem::path> dateienIn(const std::filesystem::path& ordner) override
    {
        return m_echt->dateienIn(ordner);
    }

private:
    void prüfeOrdner(const std::filesystem::path& pfad) const
    {
        if (!m_echt->istOrdner(pfad)) {
            throw Dateifehler("no such folder");
        }
    }

    std::unique_ptr<Dateizugriff> m_echt = erzeugeDateizugriff();
    std::shared_ptr<Störplan> m_plan;
};
