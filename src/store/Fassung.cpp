#include "store/Fassung.h"

#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <utility>

Fassung::Fassung(Tabelle tabelle, std::filesystem::path pfad, std::unique_ptr<Dateiinhalt> inhalt,
                 std::optional<std::uint64_t> alteLänge)
    : m_tabelle(tabelle), m_pfad(std::move(pfad)), m_inhalt(std::move(inhalt)), m_alteLänge(alteLänge)
{}

std::string_view Fassung::behalte(std::string_view satz)
{
    return m_neue.emplace_back(satz);
}

void Fassung::anfüge(std::string_view satz)
{
    const auto text = behalte(satz);
    if (m_zeilen) {
        m_zeilen->push_back({text, leseSchlüsselDerZeile(m_tabelle, text, m_pfad, m_zeilen->size() + 1)});
    } else {
        m_anhang.push_back(text);
    }
}

void Fassung::zerlege()
{
    if (m_zeilen) {
        return;
    }
    std::vector<Zeile> zeilen;
    laufe([&](std::string_view zeile, std::size_t nummer) {
        zeilen.push_back({zeile, leseSchlüsselDerZeile(m_tabelle, zeile, m_pfad, nummer)});
        return true;
    });
    m_zeilen = std::move(zeilen);
    m_anhang.clear();
}

bool Fassung::ersetze(const Satzschlüssel& schlüssel, std::string_view satz)
{
    zerlege();
    const auto text = behalte(satz);
    bool gefunden = false;
    for (auto& zeile : *m_zeilen) {
        if (zeile.schlüssel == schlüssel) {
            zeile.text = text;
            gefunden = true;
        }
    }
    return gefunden;
}

bool Fassung::lösche(const Satzschlüssel& schlüssel)
{
    zerlege();
    return std::erase_if(*m_zeilen, [&](const Zeile& zeile) { return zeile.schlüssel == schlüssel; }) > 0;
}

void Fassung::löscheKlienten(std::int32_t kernID)
{
    zerlege();
    std::erase_if(*m_zeilen, [&](const Zeile& zeile) { return zeile.schlüssel.kernID == kernID; });
}

void Fassung::laufe(const Zeilenbesuch& besuch) const
{
    std::size_t nummer = 0;
    const auto gib = [&](std::string_view zeile) {
        ++nummer;
        prüfeSatzlänge(zeile, m_pfad, nummer);
        return besuch(zeile, nummer);
    };
    if (m_zeilen) {
        static_cast<void>(std::ranges::all_of(*m_zeilen, [&](const Zeile& zeile) { return gib(zeile.text); }));
        return;
    }
    Zeilen zeilen(m_inhalt->text());
    while (const auto zeile = zeilen.nächste()) {
        if (!gib(*zeile)) {
            return;
        }
    }
    static_cast<void>(std::ranges::all_of(m_anhang, gib));
}

void Fassung::schreibe(Schreiber& schreiber) const
{
    if (m_zeilen) {
        for (const auto& zeile : *m_zeilen) {
            schreiber.zeile(zeile.text);
        }
        return;
    }
    const auto inhalt = m_inhalt->text();
    schreiber.text(inhalt);
    if (!m_anhang.empty() && !inhalt.empty() && !inhalt.ends_with('\n') && !inhalt.ends_with('\r')) {
        schreiber.text("\r\n");
    }
    for (const auto zeile : m_anhang) {
        schreiber.zeile(zeile);
    }
}
