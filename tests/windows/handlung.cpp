// One run of the program without windows, with the real files and the real lock, for the fault tests on Windows:
//
//   windowshandlung ORDNER HANDLUNG [STELLE]
//
// The process is killed at the file operation with this number of all that change something ("vor" the operation,
// writes by halves), counted from the start for the action "start", else from the moment before the action. Without a
// number it says "OPERATIONEN n" at the end. "bleibe" stays until it is killed; "ort" says whether the program's own
// folder is one for records.

#include "ausfall/Handlungsumgebung.h"
#include "hilfen/Schreibhandlungen.h"
#include "platform/umgebung/Systemorte.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <windows.h>

namespace {

constexpr UINT getötet = 9;

/// Which operation is the last one, and how many there were.
struct Frist {
    int stelle = 0;
    int gezählt = 0;
    bool zählt = false;

    bool istErreicht() { return zählt && ++gezählt == stelle; }
    void triff()
    {
        if (istErreicht()) {
            stirb();
        }
    }
    [[noreturn]] static void stirb()
    {
        ::TerminateProcess(::GetCurrentProcess(), getötet);
        std::abort();
    }
};

class Todesdatei : public OffeneDatei {
public:
    Todesdatei(std::unique_ptr<OffeneDatei> datei, Frist& frist) : m_datei(std::move(datei)), m_frist(frist) {}

    std::size_t schreibe(std::string_view bytes) override
    {
        if (m_frist.istErreicht()) {
            m_datei->schreibe(bytes.substr(0, bytes.size() / 2));
            Frist::stirb();
        }
        return m_datei->schreibe(bytes);
    }
    void sichereAufPlatte() override
    {
        m_frist.triff();
        m_datei->sichereAufPlatte();
    }
    void schließe() override
    {
        m_frist.triff();
        m_datei->schließe();
    }

private:
    std::unique_ptr<OffeneDatei> m_datei;
    Frist& m_frist;
};

class Todeszugriff : public Dateizugriff {
public:
    explicit Todeszugriff(Frist& frist) : m_frist(frist) {}

    std::unique_ptr<OffeneDatei> öffne(const std::filesystem::path& pfad, Öffnung wie) override
    {
        m_frist.triff();
        return std::make_unique<Todesdatei>(Dateizugriff::öffne(pfad, wie), m_frist);
    }
    void benenneUm(const std::filesystem::path& von, const std::filesystem::path& nach) override
    {
        m_frist.triff();
        Dateizugriff::benenneUm(von, nach);
    }
    void lösche(const std::filesystem::path& pfad) override
    {
        m_frist.triff();
        Dateizugriff::lösche(pfad);
    }
    void verknüpfe(const std::filesystem::path& von, const std::filesystem::path& nach) override
    {
        m_frist.triff();
        Dateizugriff::verknüpfe(von, nach);
    }
    void legeOrdnerAn(const std::filesystem::path& pfad) override
    {
        m_frist.triff();
        Dateizugriff::legeOrdnerAn(pfad);
    }
    void entferneOrdner(const std::filesystem::path& pfad) override
    {
        m_frist.triff();
        Dateizugriff::entferneOrdner(pfad);
    }
    void sichereOrdnerAufPlatte(const std::filesystem::path& pfad) override
    {
        m_frist.triff();
        Dateizugriff::sichereOrdnerAufPlatte(pfad);
    }

private:
    Frist& m_frist;
};

/// False for a name that is none.
bool tue(const std::filesystem::path& name, Hand& hand, Frist& frist)
{
    const auto& alle = schreibhandlungen();
    const auto handlung = std::ranges::find_if(alle, [&](const auto& eine) { return name == eine.name; });
    if (handlung != alle.end()) {
        handlung->bereiteVor(hand);
        frist.zählt = true;
        handlung->handle(hand);
    } else if (name == "bleibe") {
        sage("BLEIBT");
        ::Sleep(INFINITE);
    } else if (name == "ort") {
        sage(frageSystem().programmBeschreibbar ? "FÜR SÄTZE" : "NICHT FÜR SÄTZE");
    } else {
        return name == "start";
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const auto worte = argumente(argc, argv);
    if (worte.size() < 2) {
        return 2;
    }
    Frist frist{.stelle = worte.size() > 2 ? std::stoi(worte[2].string()) : 0, .zählt = worte[1] == "start"};
    Handlungsumgebung umgebung(worte[0], std::make_unique<Todeszugriff>(frist));
    return starteUndTue(
        umgebung, [&](Hand& hand) { return tue(worte[1], hand, frist); },
        [&](bool /*läuftNoch*/) { sage("OPERATIONEN", std::to_string(frist.gezählt)); });
}
