#include "platform/dateien/Windowssystem.h"

#include "platform/dateien/Dateizugriff.h"

#include <memory>
#include <system_error>
#include <vector>

#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

namespace fs = std::filesystem;

namespace {

/// What the system has taken memory for.
struct Freigeber {
    void operator()(void* was) const { ::LocalFree(was); }
};
template <class T> using Systemspeicher = std::unique_ptr<T, Freigeber>;

/// TOKEN_USER of this process; empty where it can't be had.
std::vector<std::byte> benutzer()
{
    HANDLE ausweis = nullptr;
    if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &ausweis) == 0) {
        return {};
    }
    DWORD länge = 0;
    static_cast<void>(::GetTokenInformation(ausweis, TokenUser, nullptr, 0, &länge));
    std::vector<std::byte> angaben(länge);
    const bool gelungen = länge > 0 && ::GetTokenInformation(ausweis, TokenUser, angaben.data(), länge, &länge) != 0;
    ::CloseHandle(ausweis);
    return gelungen ? angaben : std::vector<std::byte>{};
}

PSID kennungVon(std::vector<std::byte>& benutzer)
{
    return reinterpret_cast<TOKEN_USER*>(benutzer.data())->User.Sid;
}

/// Protected from what the folder hands down: full access for the user, the system and the administrators, in folders
/// handed down to what is in them.
PSECURITY_DESCRIPTOR baueBeschreibung()
{
    auto ich = benutzer();
    LPWSTR text = nullptr;
    if (ich.empty() || ::ConvertSidToStringSidW(kennungVon(ich), &text) == 0) {
        return nullptr;
    }
    const Systemspeicher<wchar_t> kennung(text);
    const std::wstring rechte =
        L"D:P(A;OICI;FA;;;" + std::wstring(kennung.get()) + L")(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)";
    PSECURITY_DESCRIPTOR beschreibung = nullptr;
    return ::ConvertStringSecurityDescriptorToSecurityDescriptorW(rechte.c_str(), SDDL_REVISION_1, &beschreibung,
                                                                  nullptr) != 0
               ? beschreibung
               : nullptr;
}

PSECURITY_DESCRIPTOR beschreibung()
{
    static const Systemspeicher<void> eigene(baueBeschreibung());
    return eigene.get();
}

/// The list as text, which is the same for the same rights.
std::wstring alsText(PSECURITY_DESCRIPTOR beschreibung)
{
    LPWSTR text = nullptr;
    if (::ConvertSecurityDescriptorToStringSecurityDescriptorW(beschreibung, SDDL_REVISION_1, DACL_SECURITY_INFORMATION,
                                                               &text, nullptr) == 0) {
        return {};
    }
    return Systemspeicher<wchar_t>(text).get();
}

bool istMeins(PSID eigentümer)
{
    static auto ich = benutzer();
    return !ich.empty() && eigentümer != nullptr && ::EqualSid(eigentümer, kennungVon(ich)) != 0;
}

} // namespace

std::wstring systempfad(const fs::path& pfad)
{
    constexpr std::size_t grenze = 240; // below 260: folders have to leave room for a short name
    if (pfad.native().size() < grenze) {
        return fs::path(pfad).make_preferred().native();
    }
    std::error_code fehler;
    const auto ganz = fs::absolute(pfad, fehler).lexically_normal().make_preferred().native();
    if (fehler || ganz.starts_with(LR"(\\?\)")) {
        return fs::path(pfad).make_preferred().native();
    }
    return ganz.starts_with(LR"(\\)") ? LR"(\\?\UNC\)" + ganz.substr(2) : LR"(\\?\)" + ganz;
}

void* rechteDesEigentümers()
{
    static SECURITY_ATTRIBUTES rechte{sizeof(SECURITY_ATTRIBUTES), beschreibung(), FALSE};
    return beschreibung() == nullptr ? nullptr : &rechte;
}

/// Gives the file or folder the rights of a new one when it belongs to the user and has others.
void Dateizugriff::verwehreAnderen(const fs::path& pfad)
{
    auto name = systempfad(pfad);
    PSID eigentümer = nullptr;
    PSECURITY_DESCRIPTOR gefunden = nullptr;
    constexpr SECURITY_INFORMATION gefragt = OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;
    if (const DWORD fehler = ::GetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, gefragt, &eigentümer, nullptr,
                                                     nullptr, nullptr, &gefunden);
        fehler != ERROR_SUCCESS) {
        throw Dateifehler(systemgrund(fehler));
    }
    const Systemspeicher<void> halter(gefunden);
    static const auto eigene = alsText(beschreibung());
    if (beschreibung() != nullptr && istMeins(eigentümer) && alsText(gefunden) != eigene) {
        constexpr SECURITY_INFORMATION gesetzt = DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION;
        prüfeSystem(::SetFileSecurityW(name.c_str(), gesetzt, beschreibung()) != 0);
    }
}
