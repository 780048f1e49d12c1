#pragma once

#include "platform/dateien/Dateizugriff.h"
#include "platform/text/Text.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// File operations on real files that are refused on order. Every operation that changes something on the disk has a
/// number in the order of the run; the plan says which one fails, and how. Deaths of the process and losses of power
/// are tried on a disk in memory (Platte.h). Nothing is flushed, so that a test need not wait for the disk.

enum class Störung {
    KeinPlatz,       ///< refused: no space; a write takes half of the bytes and refuses the rest
    EinAusgabe,      ///< refused: I/O error
    KeinRecht,       ///< refused: no permission
    KurzGeschrieben, ///< a write takes half of the bytes and says so; other operations succeed
};

/// The plan, and what happened. Shared by the test and the file operations, so that it can be laid after the set-up.
class Störplan {
public:
    /// Disturbs the operation number `stelle` (from 1) counted from now, once or from there on for ever.
    void störe(int stelle, Störung störung, bool fürImmer = false)
    {
        m_stelle = stelle;
        m_störung = störung;
        m_fürImmer = fürImmer;
        operationen.clear();
    }
    void schweige() { m_stelle = 0; }

    bool istEingetreten() const { return m_stelle > 0 && static_cast<int>(operationen.size()) >= m_stelle; }

    /// The names of the operations since the plan was laid.
    std::vector<std::string> operationen;

private:
    friend class Störzugriff;
    friend class GestörteDatei;

    bool trifft(const std::string& name)
    {
        operationen.push_back(name);
        const auto gezählt = static_cast<int>(operationen.size());
        return m_stelle > 0 && (gezählt == m_stelle || (m_fürImmer && gezählt > m_stelle));
    }

    /// Runs an operation that is done or not done.
    template <class F> void führeAus(const std::string& name, F operation)
    {
        if (trifft(name)) {
            weiseAb();
        }
        operation();
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

    int m_stelle = 0;
    Störung m_störung = Störung::KeinPlatz;
    bool m_fürImmer = false;
};

class GestörteDatei : public OffeneDatei {
public:
    GestörteDatei(std::unique_ptr<OffeneDatei> datei, std::shared_ptr<Störplan> plan)
        : m_datei(std::move(datei)), m_plan(std::move(plan))
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
        if (m_plan->m_störung == Störung::KurzGeschrieben) {
            return m_datei->schreibe(bytes.substr(0, bytes.size() / 2 + 1));
        }
        m_voll = m_plan->m_störung == Störung::KeinPlatz && bytes.size() > 1;
        if (!m_voll) {
            m_plan->weiseAb();
        }
        return m_datei->schreibe(bytes.substr(0, bytes.size() / 2));
    }
    void sichereAufPlatte() override
    {
        m_plan->führeAus("sichereAufPlatte", [] {});
    }
    void schließe() override
    {
        m_plan->führeAus("schließe", [&] { m_datei->schließe(); });
    }

private:
    std::unique_ptr<OffeneDatei> m_datei;
    std::shared_ptr<Störplan> m_plan;
    bool m_voll = false;
};

class Störzugriff : public Dateizugriff {
public:
    explicit Störzugriff(std::shared_ptr<Störplan> plan) : m_plan(std::move(plan)) {}

    std::unique_ptr<OffeneDatei> öffne(const std::filesystem::path& pfad, Öffnung wie) override
    {
        std::unique_ptr<OffeneDatei> datei;
        m_plan->führeAus("öffne", [&] { datei = Dateizugriff::öffne(pfad, wie); });
        return std::make_unique<GestörteDatei>(std::move(datei), m_plan);
    }
    void benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach) override
    {
        m_plan->führeAus("benenneUm", [&] { Dateizugriff::benenneUm(von, nach); });
    }
    void lösche(const std::filesystem::path& pfad) override
    {
        m_plan->führeAus("lösche", [&] { Dateizugriff::lösche(pfad); });
    }
    void legeOrdnerAn(const std::filesystem::path& pfad) override
    {
        m_plan->führeAus("legeOrdnerAn", [&] { Dateizugriff::legeOrdnerAn(pfad); });
    }
    void entferneOrdner(const std::filesystem::path& pfad) override
    {
        m_plan->führeAus("entferneOrdner", [&] { Dateizugriff::entferneOrdner(pfad); });
    }
    void sichereOrdnerAufPlatte(const std::filesystem::path& /*pfad*/) override
    {
        m_plan->führeAus("sichereOrdnerAufPlatte", [] {});
    }

private:
    std::shared_ptr<Störplan> m_plan;
};
