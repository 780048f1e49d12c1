#include "platform/calc/Rechenprogramm.h"

#include "ausfall/Vorlage.h"
#include "platform/mappe/Arbeitsmappe.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include <windows.h>

namespace {

namespace fs = std::filesystem;

/// Registered for all users: wine looks nowhere else.
constexpr auto typ = L"Tolvek7.Probe";

/// A folder that stands for the system's temporary folder, and programs registered for workbooks, for one test.
class Windowsrechnen : public testing::Test {
protected:
    void SetUp() override
    {
        fs::create_directories(temp);
        ::GetEnvironmentVariableW(L"TMP", m_tempVorher.data(), static_cast<DWORD>(m_tempVorher.size()));
        ::SetEnvironmentVariableW(L"TMP", temp.c_str());
    }
    void TearDown() override
    {
        ::SetEnvironmentVariableW(L"TMP", m_tempVorher.data());
        ::RegDeleteTreeW(HKEY_CLASSES_ROOT, L".xlsx");
        ::RegDeleteTreeW(HKEY_CLASSES_ROOT, typ);
    }

    static void setze(const std::wstring& schlüssel, const std::wstring& wert)
    {
        ASSERT_EQ(::RegSetKeyValueW(HKEY_CLASSES_ROOT, schlüssel.c_str(), nullptr, REG_SZ, wert.c_str(),
                                    static_cast<DWORD>((wert.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
    }
    /// The program under this name takes workbooks, in these ways ("open", "new").
    void registriere(const std::wstring& name, const std::vector<std::wstring>& wünsche) const
    {
        auto programm = fs::absolute(platz.pfad() / "Programme mit Blank" / name).make_preferred();
        fs::create_directories(programm.parent_path());
        fs::copy_file(TOLVEK_TABELLENPROBE, programm);
        setze(L".xlsx", typ);
        for (const auto& wunsch : wünsche) {
            setze(typ + std::wstring(LR"(\shell\)") + wunsch + LR"(\command)",
                  L'"' + programm.wstring() + LR"(" "%1")");
        }
    }
    /// Takes the thread's messages meanwhile, as a program with windows does.
    static bool warteBis(const std::function<bool()>& bedingung, int sekunden)
    {
        const auto ende = ::GetTickCount64() + 1000ULL * static_cast<unsigned>(sekunden);
        while (!bedingung() && ::GetTickCount64() < ende) {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
            for (MSG botschaft; ::PeekMessageW(&botschaft, nullptr, 0, 0, PM_REMOVE) != 0;) {
                ::DispatchMessageW(&botschaft);
            }
        }
        return bedingung();
    }
    static bool übergibMuster(Rechenprogramm& programm)
    {
        Arbeitsmappe mappe;
        mappe.blatt(1).setze(1, 1, "Inhalt");
        return programm.öffne(mappe);
    }
    /// What the program was called with, as soon as it has the workbook open.
    std::vector<std::string> aufruf() const
    {
        const auto mitschrift = platz.pfad() / "Programme mit Blank" / "argumente";
        if (!warteBis([&] { return fs::exists(mitschrift); }, 30)) {
            return {};
        }
        std::istringstream strom(liesDatei(mitschrift));
        std::vector<std::string> worte;
        for (std::string wort; std::getline(strom, wort);) {
            worte.push_back(wort);
        }
        return worte;
    }
    static bool istGeschützt(const fs::path& datei)
    {
        return (::GetFileAttributesW(datei.c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
    }

    Arbeitsplatz platz;
    fs::path temp = platz.pfad() / "temp";

private:
    std::array<wchar_t, MAX_PATH> m_tempVorher{};
};

/// Past the time in which the guard waits for another look at the file.
constexpr int sekundenBisEntfernt = 60;

TEST_F(Windowsrechnen, OhneRegistriertesProgrammIstKeinesDa)
{
    Rechenprogramm programm;
    EXPECT_FALSE(programm.istDa());
    EXPECT_FALSE(übergibMuster(programm));
    EXPECT_TRUE(fs::is_empty(temp));
}

TEST_F(Windowsrechnen, EinProgrammDasEsNichtMehrGibtIstWieKeines)
{
    registriere(L"tabelle.exe", {L"open"});
    fs::remove(platz.pfad() / "Programme mit Blank" / "tabelle.exe");
    Rechenprogramm programm;
    EXPECT_FALSE(übergibMuster(programm));
    EXPECT_TRUE(fs::is_empty(temp));
}

TEST_F(Windowsrechnen, LibreOfficeBekommtEinNeuesDokumentDasDanachVerschwindet)
{
    registriere(L"soffice.exe", {L"open"});
    Rechenprogramm programm;
    EXPECT_TRUE(programm.istDa());
    EXPECT_TRUE(übergibMuster(programm));
    const auto worte = aufruf();
    ASSERT_EQ(worte.size(), 2U);
    EXPECT_EQ(worte[0], "-n");
    EXPECT_TRUE(fs::exists(worte[1])) << "still open";
    EXPECT_TRUE(warteBis([&] { return fs::is_empty(temp); }, sekundenBisEntfernt));
}

TEST_F(Windowsrechnen, WerNeueDokumenteMachenKannMachtEines)
{
    registriere(L"tabelle.exe", {L"open", L"new"});
    Rechenprogramm programm;
    EXPECT_TRUE(übergibMuster(programm));
    const auto worte = aufruf();
    ASSERT_EQ(worte.size(), 1U);
    EXPECT_FALSE(istGeschützt(worte[0]));
}

TEST_F(Windowsrechnen, DieAnderenBekommenEineGeschützteDateiDieVerschwindetWennKeinerSieMehrOffenHat)
{
    registriere(L"tabelle.exe", {L"open"});
    Rechenprogramm programm;
    EXPECT_TRUE(programm.istDa());
    EXPECT_TRUE(übergibMuster(programm));
    const auto worte = aufruf();
    ASSERT_EQ(worte.size(), 1U);
    EXPECT_TRUE(istGeschützt(worte[0]));
    EXPECT_TRUE(warteBis([&] { return !fs::exists(worte[0]); }, sekundenBisEntfernt));
}

} // namespace
