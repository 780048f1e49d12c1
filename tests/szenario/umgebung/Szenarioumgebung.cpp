#include "umgebung/Szenarioumgebung.h"

#include "umgebung/Meldungsworte.h"

namespace {

/// A desktop of 1920 × 1080 pixels, in twips.
constexpr Größe schirm{1920 * 15, 1080 * 15};

bool passt(Antwort antwort, Knöpfe knöpfe)
{
    switch (knöpfe) {
    case Knöpfe::OK:
        return antwort == Antwort::OK;
    case Knöpfe::OKAbbrechen:
        return antwort == Antwort::OK || antwort == Antwort::Abbrechen;
    case Knöpfe::JaNein:
        return antwort == Antwort::Ja || antwort == Antwort::Nein;
    }
    return false;
}

/// What Escape would answer.
Antwort ausweg(Knöpfe knöpfe)
{
    return knöpfe == Knöpfe::JaNein ? Antwort::Nein : Antwort::Abbrechen;
}

} // namespace

Szenarioumgebung::Szenarioumgebung(std::filesystem::path programmordner)
    : m_programmordner(std::move(programmordner)), m_zugriff(new Sperrzugriff),
      m_dateien(std::unique_ptr<Dateizugriff>(m_zugriff))
{}

bool Szenarioumgebung::istErsteInstanz(const std::filesystem::path& /*datenordner*/)
{
    return !std::exchange(m_zweiteInstanz, false);
}

Antwort Szenarioumgebung::zeigeMeldung(const Meldung& meldung)
{
    meldungen.push_back(meldung);
    return meldung.knöpfe == Knöpfe::OK ? Antwort::OK : beantworte(meldung);
}

Antwort Szenarioumgebung::beantworte(const Meldung& meldung)
{
    if (m_antworten.empty() && antwortgeber) {
        return antwortgeber(meldung);
    }
    std::string gefunden = "keine";
    if (!m_antworten.empty()) {
        const Antwort antwort = m_antworten.front();
        m_antworten.pop_front();
        if (passt(antwort, meldung.knöpfe)) {
            return antwort;
        }
        gefunden = wortFür(antwort);
    }
    if (!m_versäumnis) {
        m_versäumnis.emplace("eine Antwort (" + std::string(wortFür(meldung.knöpfe)) + ") auf die Meldung " +
                                 zeige(meldung.text),
                             gefunden);
    }
    return ausweg(meldung.knöpfe);
}

std::optional<std::filesystem::path> Szenarioumgebung::wähleDatei(const Dateiwahl& /*wahl*/)
{
    if (m_dateiwahlen.empty() && dateigeber) {
        return dateigeber();
    }
    if (m_dateiwahlen.empty()) {
        if (!m_versäumnis) {
            m_versäumnis.emplace("dateiwahl für den Dialog", "keine");
        }
        return std::nullopt;
    }
    auto datei = std::move(m_dateiwahlen.front());
    m_dateiwahlen.pop_front();
    return datei;
}

Größe Szenarioumgebung::bildschirmgröße()
{
    return schirm;
}

void Szenarioumgebung::zeichne()
{
    if (zeichnung) {
        zeichnung();
    }
}

void Szenarioumgebung::wirfVersäumnis()
{
    if (m_versäumnis) {
        throw Scheitern(*m_versäumnis);
    }
}

void Szenarioumgebung::prüfeVorrat() const
{
    if (!m_antworten.empty()) {
        throw Scheitern("eine Meldung für jede Antwort", "keine für " + std::string(wortFür(m_antworten.front())));
    }
    if (!m_dateiwahlen.empty()) {
        throw Scheitern("einen Dateidialog für jede dateiwahl", "keinen");
    }
}
