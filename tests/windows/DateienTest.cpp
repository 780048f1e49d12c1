#include "platform/dateien/Dateien.h"

#include "hilfen/Testumgebung.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <gtest/gtest.h>

#include <thread>

#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

namespace fs = std::filesystem;

namespace {

/// Another program that has the file open and lets nobody else replace it.
class Fremder {
public:
    explicit Fremder(const fs::path& pfad, DWORD teilen = 0)
        : m_griff(::CreateFileW(pfad.c_str(), GENERIC_READ, teilen, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(m_griff, INVALID_HANDLE_VALUE);
    }
    Fremder(const Fremder&) = delete;
    Fremder& operator=(const Fremder&) = delete;
    ~Fremder() { schließe(); }
    void schließe()
    {
        if (m_griff != INVALID_HANDLE_VALUE) {
            ::CloseHandle(std::exchange(m_griff, INVALID_HANDLE_VALUE));
        }
    }

private:
    HANDLE m_griff;
};

class Windowsdateien : public testing::Test {
protected:
    void ersetze(std::string_view inhalt)
    {
        dateien.ersetze(datei, fassungNeben(datei), [&](Schreiber& schreiber) { schreiber.text(inhalt); });
    }
    template <class F> static std::string fehlerBei(F operation)
    {
        try {
            operation();
        } catch (const Laufzeitfehler& fehler) {
            return fehler.text();
        }
        return "(no failure)";
    }
    static void enthält(const std::string& text, std::string_view teil)
    {
        EXPECT_NE(text.find(teil), std::string::npos) << text;
    }

    Testordner ort;
    fs::path datei = ort.pfad() / "betrDat.txt";
    Dateien dateien;
};

TEST_F(Windowsdateien, ErsetzenWartetBisEinAndererFertigIst)
{
    Testlauf::schreibe(datei, "alt");
    Fremder fremder(datei, FILE_SHARE_READ);
    std::thread später([&] {
        ::Sleep(300);
        fremder.schließe();
    });
    ersetze("neu");
    später.join();
    EXPECT_EQ(Testlauf::lies(datei), "neu");
}

TEST_F(Windowsdateien, WerNichtWeichtWirdGenanntUndDasAlteBleibt)
{
    Testlauf::schreibe(datei, "alt");
    {
        const Fremder fremder(datei, FILE_SHARE_READ);
        enthält(fehlerBei([&] { ersetze("neu"); }), "ein anderes Programm hat die Datei geöffnet"_t);
    }
    EXPECT_EQ(Testlauf::lies(datei), "alt");
}

TEST_F(Windowsdateien, LesenWartetBisEinAndererFertigIst)
{
    Testlauf::schreibe(datei, "alt");
    Fremder fremder(datei);
    std::thread später([&] {
        ::Sleep(300);
        fremder.schließe();
    });
    EXPECT_EQ(dateien.lies(datei)->text(), "alt");
    später.join();
    const Fremder bleibt(datei);
    enthält(fehlerBei([&] { dateien.lies(datei); }), "ein anderes Programm hat die Datei geöffnet"_t);
}

TEST_F(Windowsdateien, LöschenWartetBisEinAndererFertigIst)
{
    Testlauf::schreibe(datei, "alt");
    Fremder fremder(datei, FILE_SHARE_READ);
    std::thread später([&] {
        ::Sleep(300);
        fremder.schließe();
    });
    dateien.lösche(datei);
    später.join();
    EXPECT_TRUE(dateien.fehlt(datei));
}

TEST_F(Windowsdateien, NeuAngelegtWirdNurWasEsNochNichtGibt)
{
    Testlauf::schreibe(datei, "alt");
    enthält(fehlerBei([&] { dateien.legeLeerAn(datei); }), "unter diesem Namen liegt schon etwas"_t);
    EXPECT_EQ(Testlauf::lies(datei), "alt");
}

TEST_F(Windowsdateien, SchreibgeschützteDateiUndOrdnerWerdenGenannt)
{
    Testlauf::schreibe(datei, "alt");
    ::SetFileAttributesW(datei.c_str(), FILE_ATTRIBUTE_READONLY);
    enthält(fehlerBei([&] { dateien.lösche(datei); }), "die Datei ist schreibgeschützt"_t);
    ::SetFileAttributesW(datei.c_str(), FILE_ATTRIBUTE_NORMAL);
    enthält(fehlerBei([&] { dateien.lies(ort.pfad()); }), "unter diesem Namen gibt es einen Ordner"_t);
}

TEST_F(Windowsdateien, GroßUndKleinIstEins)
{
    ersetze("inhalt");
    EXPECT_EQ(dateien.lies(ort.pfad() / "BETRDAT.TXT")->text(), "inhalt");
    EXPECT_TRUE(dateien.istDatei(ort.pfad() / "Betrdat.Txt"));
}

TEST_F(Windowsdateien, LangePfadeUndSchrägstriche)
{
    fs::path lang = ort.pfad();
    for (int i = 0; i < 8; ++i) {
        lang /= std::string(40, static_cast<char>('a' + i));
        dateien.legeOrdnerAn(lang);
    }
    ASSERT_GT(lang.native().size(), 300U);
    const auto tief = fs::path(lang.generic_wstring() + L"/kernDat.txt");
    dateien.ersetze(tief, fassungNeben(tief), [](Schreiber& schreiber) { schreiber.text("inhalt"); });
    EXPECT_EQ(dateien.lies(tief)->text(), "inhalt");
    EXPECT_EQ(dateien.dateienIn(lang), std::vector<fs::path>{"kernDat.txt"});
    EXPECT_FALSE(dateien.fehlt(tief));
    EXPECT_EQ(dateien.ziel(tief), tief);
    for (auto ordner = lang; ordner != ort.pfad(); ordner = ordner.parent_path()) {
        dateien.entferneOrdner(ordner);
    }
    EXPECT_TRUE(dateien.ordnerIn(ort.pfad()).empty());
}

/// Whether the list of access rights lets everybody, or all users of the machine, in.
bool läßtAndereHinein(const fs::path& pfad)
{
    PACL liste = nullptr;
    PSECURITY_DESCRIPTOR beschreibung = nullptr;
    auto name = pfad.wstring();
    EXPECT_EQ(::GetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &liste,
                                      nullptr, &beschreibung),
              DWORD{ERROR_SUCCESS});
    bool hinein = liste == nullptr; // no list at all lets everybody in
    for (DWORD i = 0; liste != nullptr && i < liste->AceCount; ++i) {
        void* eintrag = nullptr;
        EXPECT_NE(::GetAce(liste, i, &eintrag), 0);
        auto* erlaubnis = static_cast<ACCESS_ALLOWED_ACE*>(eintrag);
        auto* wer = reinterpret_cast<PSID>(&erlaubnis->SidStart);
        const bool alle = ::IsWellKnownSid(wer, WinWorldSid) != 0 || ::IsWellKnownSid(wer, WinBuiltinUsersSid) != 0 ||
                          ::IsWellKnownSid(wer, WinAuthenticatedUserSid) != 0;
        hinein = hinein || (alle && erlaubnis->Header.AceType == ACCESS_ALLOWED_ACE_TYPE && erlaubnis->Mask != 0);
    }
    ::LocalFree(beschreibung);
    return hinein;
}

void öffneFürAlle(const fs::path& pfad)
{
    PSECURITY_DESCRIPTOR offen = nullptr;
    ASSERT_NE(
        ::ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:(A;;FA;;;WD)", SDDL_REVISION_1, &offen, nullptr), 0);
    ASSERT_NE(::SetFileSecurityW(pfad.c_str(), DACL_SECURITY_INFORMATION, offen), 0);
    ::LocalFree(offen);
}

TEST_F(Windowsdateien, NeuesGehörtDemBenutzerAllein)
{
    ersetze("inhalt");
    EXPECT_FALSE(läßtAndereHinein(datei));
    dateien.legeOrdnerAn(ort.pfad() / "Daten");
    EXPECT_FALSE(läßtAndereHinein(ort.pfad() / "Daten"));
}

TEST_F(Windowsdateien, WasAnderenOffenStehtWirdIhnenVerwehrt)
{
    Testlauf::schreibe(datei, "alt");
    öffneFürAlle(datei);
    ASSERT_TRUE(läßtAndereHinein(datei));
    dateien.verwehreAnderen(datei);
    EXPECT_FALSE(läßtAndereHinein(datei));
    EXPECT_EQ(dateien.lies(datei)->text(), "alt");
}

} // namespace
