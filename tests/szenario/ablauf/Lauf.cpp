#include "ablauf/Lauf.h"

#include "sprache/Unicode.h"

#include "platform/text/Eingabe.h"

#include <algorithm>

namespace {

std::filesystem::path alsPfad(std::u32string_view text)
{
    std::filesystem::path pfad{std::u32string(text)};
    return pfad.make_preferred();
}

} // namespace

Lauf::Lauf(const Szenario& szenario, Oberfläche& oberfläche)
    : m_szenarioordner(std::filesystem::absolute(szenario.pfad).parent_path()), m_umgebung(m_ordner.pfad()),
      m_schiedsrichter(m_ordner.pfad()), m_oberfläche(oberfläche)
{
    m_umgebung.zeichnung = [this] { m_oberfläche.zeichne(); };
}

Lauf::~Lauf()
{
    if (m_programm) {
        m_oberfläche.beende();
    }
}

std::filesystem::path Lauf::imProgramm(std::u32string_view pfad) const
{
    return m_ordner.pfad() / alsPfad(pfad);
}

std::filesystem::path Lauf::draußen(std::u32string_view pfad) const
{
    return m_szenarioordner / alsPfad(pfad);
}

void Lauf::starte()
{
    if (läuft()) {
        throw Scheitern("ein beendetes Programm", "es läuft noch");
    }
    if (m_programm) {
        prüfeAngesprochen();
        m_oberfläche.beende();
        m_programm.reset();
    }
    m_absturzAngesprochen = false;
    m_programm = std::make_unique<Programm>(m_umgebung);
    m_oberfläche.beginne(*m_programm);
    m_programm->starte();
    m_oberfläche.zeichne();
}

std::string Lauf::absturz() const
{
    return wurdeGestartet() ? m_programm->zustand().ablauf.absturz() : std::string();
}

void Lauf::prüfeAngesprochen() const
{
    if (!m_umgebung.meldungen.empty()) {
        throw Scheitern("keine weitere Meldung", zeige(m_umgebung.meldungen.front().text));
    }
    if (!absturz().empty() && !m_absturzAngesprochen) {
        throw Scheitern("keinen Absturz", zeige(absturz()));
    }
}

void Lauf::nachAnweisung()
{
    const std::string text = absturz();
    auto& meldungen = m_umgebung.meldungen;
    if (!text.empty() && !meldungen.empty() && meldungen.back().text == text) {
        meldungen.pop_back();
    }
    m_umgebung.wirfVersäumnis();
}

const Bildschirm* Lauf::inGebrauch() const
{
    return läuft() ? m_programm->zustand().folge.inGebrauch() : nullptr;
}

Ziel Lauf::finde(std::u32string_view name) const
{
    if (!wurdeGestartet()) {
        throw Scheitern("ein gestartetes Programm", "keines");
    }
    const std::string text = alsTabellentext(name);
    if (text == "rahmen") {
        return {.istRahmen = true};
    }
    const std::size_t punkt = text.find('.');
    if (punkt == std::string::npos) {
        return findeÜberall(text);
    }
    return findeAufBildschirm(std::string_view(text).substr(0, punkt), std::string_view(text).substr(punkt + 1));
}

Ziel Lauf::findeAufBildschirm(std::string_view bildschirm, std::string_view element) const
{
    auto* const seite = läuft() ? m_programm->zustand().folge.finde(bildschirm) : nullptr;
    if (seite == nullptr) {
        return {};
    }
    auto* const gefunden = seite->finde(element);
    if (gefunden == nullptr) {
        throw Scheitern("ein Element " + zeige(element) + " auf " + alsUtf8(bildschirm), "keines");
    }
    return {.bildschirm = seite, .element = gefunden};
}

Ziel Lauf::findeÜberall(std::string_view name) const
{
    if (!läuft()) {
        return {};
    }
    const auto& folge = m_programm->zustand().folge;
    auto bildschirme = folge.geladene();
    std::reverse(bildschirme.begin(), bildschirme.end());
    // the screen in use comes first, then the ones that can be seen beside it, then the others
    std::stable_partition(bildschirme.begin(), bildschirme.end(), [&](const auto* b) { return folge.istSichtbar(*b); });
    std::stable_partition(bildschirme.begin(), bildschirme.end(),
                          [&](const auto* b) { return folge.istSichtbar(*b) && folge.istFrei(*b); });
    for (auto* bildschirm : bildschirme) {
        if (auto* element = bildschirm->finde(name)) {
            return {.bildschirm = bildschirm, .element = element};
        }
    }
    if (auto* bildschirm = folge.finde(name)) {
        return {.bildschirm = bildschirm};
    }
    if (name.starts_with("frm")) {
        return {};
    }
    const auto* hier = folge.inGebrauch();
    throw Scheitern("ein Element " + zeige(name),
                    "keines auf " + (hier == nullptr ? "dem Rahmen" : alsUtf8(hier->name())));
}

Element& Lauf::findeElement(std::u32string_view name) const
{
    const Ziel ziel = finde(name);
    if (ziel.element == nullptr) {
        throw Scheitern("ein Element »" + alsUtf8(name) + "«", läuft() ? "keines" : "kein laufendes Programm");
    }
    return *ziel.element;
}
