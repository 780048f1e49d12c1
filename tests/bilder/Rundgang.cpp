#include "Rundgang.h"

#include "ablauf/Ausfuehrung.h"
#include "sprache/Szenariodatei.h"

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace {

constexpr std::string_view platzhalter = "LANGERNAME";
constexpr std::string_view haltwort = "# bild ";

/// A name that breaks nowhere, as wide as names come.
std::string langerName(int länge)
{
    constexpr std::string_view silben = "Wommelshausenmann";
    std::string name;
    for (int i = 0; i < länge; ++i) {
        name += silben[static_cast<std::size_t>(i) % silben.size()];
    }
    return name;
}

std::string lies(const std::string& pfad)
{
    std::ifstream datei(pfad, std::ios::binary);
    if (!datei) {
        throw std::runtime_error("cannot be read: " + pfad);
    }
    std::ostringstream text;
    text << datei.rdbuf();
    return text.str();
}

void ersetze(std::string& text, std::string_view was, const std::string& wodurch)
{
    for (auto ort = text.find(was); ort != std::string::npos; ort = text.find(was, ort + wodurch.size())) {
        text.replace(ort, was.size(), wodurch);
    }
}

} // namespace

Rundgang::Rundgang(const std::string& pfad, int namenslänge) : m_pfad(pfad), m_text(lies(pfad))
{
    ersetze(m_text, platzhalter, langerName(namenslänge));
    findeHalte();
}

Rundgang::Rundgang(std::string text) : m_pfad("."), m_text(std::move(text))
{
    findeHalte();
}

Rundgang Rundgang::ausText(std::string text)
{
    return Rundgang(std::move(text));
}

void Rundgang::findeHalte()
{
    std::istringstream zeilen(m_text);
    std::string zeile;
    for (std::size_t nummer = 1; std::getline(zeilen, zeile); ++nummer) {
        if (zeile.starts_with(haltwort)) {
            m_halte.push_back({nummer, zeile.substr(haltwort.size())});
        }
    }
}

std::string Rundgang::gehe(Oberfläche& oberfläche, const std::function<void(const std::string& name)>& halt) const
{
    std::size_t nächster = 0;
    const Szenario szenario{m_pfad, liesAnweisungen(m_text)};
    const auto fehlschlag = führeAus(szenario, oberfläche, [&](std::size_t zeile) {
        for (; nächster < m_halte.size() && m_halte[nächster].zeile < zeile; ++nächster) {
            halt(m_halte[nächster].name);
        }
    });
    if (fehlschlag) {
        return m_pfad + ':' + std::to_string(fehlschlag->zeile) + ": " + fehlschlag->text;
    }
    return nächster == m_halte.size() ? std::string() : m_pfad + ": a stop behind the last statement";
}
