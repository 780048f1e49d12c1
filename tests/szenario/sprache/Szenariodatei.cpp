#include "sprache/Szenariodatei.h"

#include "sprache/Argumentpruefung.h"
#include "sprache/Unicode.h"
#include "sprache/Zerlegung.h"

#include "platform/text/Eingabe.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace {

std::vector<std::u32string> inZeilen(std::string_view text)
{
    std::vector<std::u32string> zeilen;
    while (!text.empty()) {
        const std::size_t ende = text.find('\n');
        std::string_view zeile = text.substr(0, ende);
        text.remove_prefix(ende == std::string_view::npos ? text.size() : ende + 1);
        if (zeile.ends_with('\r')) {
            zeile.remove_suffix(1);
        }
        zeilen.push_back(ausUtf8(zeile));
    }
    return zeilen;
}

/// The statement's word; "erwarte" takes the one behind it too.
std::string nimmAnweisungswort(std::u32string_view& rest)
{
    std::string wort = alsUtf8(nimmWort(rest));
    if (wort == "erwarte") {
        wort += " " + alsUtf8(nimmWort(rest));
    }
    return wort;
}

std::size_t höchstzahl(const Anweisungsform& form)
{
    return form.weitere.empty() ? form.pflicht.size() + form.möglich.size() : static_cast<std::size_t>(-1);
}

Argumentart artVon(const Anweisungsform& form, std::size_t n)
{
    if (n < form.pflicht.size()) {
        return form.pflicht[n].art;
    }
    const std::size_t möglich = n - form.pflicht.size();
    return möglich < form.möglich.size() ? form.möglich[möglich].art : form.weitere.front().art;
}

/// Puts `name=value` behind the required arguments into the options; false when it is none of the form's.
bool nimmOption(Anweisung& anweisung, const std::u32string& wort)
{
    const std::size_t gleich = wort.find(U'=');
    const std::string name = alsUtf8(std::u32string_view(wort).substr(0, gleich));
    const auto& optionen = anweisung.form->optionen;
    const auto option = std::find_if(optionen.begin(), optionen.end(), [&](const auto& o) { return o.name == name; });
    if (gleich == std::u32string::npos || option == optionen.end()) {
        return false;
    }
    const std::u32string wert = wort.substr(gleich + 1);
    const auto& werte = option->werte;
    if (!werte.empty() && std::find(werte.begin(), werte.end(), alsUtf8(wert)) == werte.end()) {
        std::string auswahl;
        for (const auto w : werte) {
            auswahl.append(auswahl.empty() ? "" : ", ").append(w);
        }
        throw Formfehler(name + "= einer der Werte " + auswahl);
    }
    return anweisung.optionen.emplace(name, wert).second;
}

void ordneZu(Anweisung& anweisung, std::vector<std::u32string> worte)
{
    const Anweisungsform& form = *anweisung.form;
    for (auto& wort : worte) {
        const std::size_t n = anweisung.argumente.size();
        if (n >= form.pflicht.size() && nimmOption(anweisung, wort)) {
            continue;
        }
        if (n >= höchstzahl(form) || !anweisung.optionen.empty()) {
            throw Formfehler("Zeilenende statt »" + alsUtf8(wort) + "«");
        }
        prüfeArgument(artVon(form, n), wort);
        anweisung.argumente.push_back(std::move(wort));
    }
    if (anweisung.argumente.size() < form.pflicht.size()) {
        throw Formfehler(benennung(form.pflicht[anweisung.argumente.size()].art));
    }
}

Anweisung liesAnweisung(std::u32string_view zeile, std::size_t nummer)
{
    Anweisung anweisung;
    anweisung.zeile = nummer;
    std::string wort = nimmAnweisungswort(zeile);
    if (wort == "unmöglich") {
        anweisung.unmöglich = true;
        wort = nimmAnweisungswort(zeile);
    }
    anweisung.form = findeForm(wort);
    if (anweisung.form == nullptr) {
        throw Formfehler("eine Anweisung statt »" + wort + "«");
    }
    if (anweisung.unmöglich && !anweisung.form->auchUnmöglich) {
        throw Formfehler("eine Handlung an einem Element hinter »unmöglich«");
    }
    ordneZu(anweisung,
            zerlegeArgumente(zeile, anweisung.form->einzelzeichen ? Umbruch::Einzelzeichen : Umbruch::Zeilenumbruch));
    return anweisung;
}

/// Collects the statements line by line.
class Leser {
public:
    void lies(std::u32string_view zeile, std::size_t nummer)
    {
        std::u32string_view rest = zeile;
        rest.remove_prefix(std::min(rest.find_first_not_of(U" \t"), rest.size()));
        if (rest.starts_with(U'|')) {
            nimmZeile(rest.substr(1));
            return;
        }
        m_zeilenMöglich = false;
        if (!rest.empty() && rest.front() != U'#') {
            anweisungen.push_back(liesAnweisung(rest, nummer));
            m_zeilenMöglich = anweisungen.back().form->mitZeilen;
        }
    }

    std::vector<Anweisung> anweisungen;

private:
    void nimmZeile(std::u32string_view inhalt)
    {
        if (!m_zeilenMöglich) {
            throw Formfehler("eine Anweisung statt einer Zeile mit »|«");
        }
        anweisungen.back().zeilen.push_back(löseFluchtfolgen(inhalt, Umbruch::Zeilenumbruch));
    }

    bool m_zeilenMöglich = false;
};

} // namespace

std::int64_t Anweisung::zahl(std::size_t n) const
{
    return std::stoll(alsUtf8(argument(n)));
}

std::vector<Anweisung> liesAnweisungen(std::string_view text)
{
    constexpr std::string_view bytefolgemarke = "\xEF\xBB\xBF";
    if (text.starts_with(bytefolgemarke)) {
        text.remove_prefix(bytefolgemarke.size());
    }
    if (!istUtf8(text)) {
        throw Sprachfehler(0, "Text in UTF-8");
    }
    Leser leser;
    std::size_t nummer = 0;
    for (const auto& zeile : inZeilen(text)) {
        ++nummer;
        try {
            leser.lies(zeile, nummer);
        } catch (const Formfehler& fehler) {
            throw Sprachfehler(nummer, fehler.what());
        }
    }
    return std::move(leser.anweisungen);
}

Szenario liesSzenario(const std::filesystem::path& pfad)
{
    std::ifstream datei(pfad, std::ios::binary);
    if (!datei || std::filesystem::is_directory(pfad)) {
        throw Sprachfehler(0, "eine lesbare Datei");
    }
    const std::string text{std::istreambuf_iterator<char>(datei), std::istreambuf_iterator<char>()};
    return {pfad, liesAnweisungen(text)};
}
